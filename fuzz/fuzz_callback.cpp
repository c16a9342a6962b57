// What a page calls: any bytes as name and parameter.

#include "Expect.h"

#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>

#include <QApplication>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

using UICommonMdl::CActiveXLinkWebCtrl;

namespace {

CActiveXLinkWebCtrl& Web()
{
    static CActiveXLinkWebCtrl web;
    return web;
}

bool IsLoadReport(const std::string& name) { return name == "initComplete" || name == "initMComplete"; }

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Never deleted: the platform leaves a few objects behind when it is.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* application = new QApplication(*argc, *argv);
    return application != nullptr ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string name = bytes.substr(0, bytes.find('\n'));
    const std::string param = bytes.substr(std::min(size, name.size() + 1));
    int calls = 0;
    int loads = 0;
    QObject context;
    QObject::connect(&Web(), &CActiveXLinkWebCtrl::sgnMainCall, &context, [&] { ++calls; });
    QObject::connect(&Web(), &CActiveXLinkWebCtrl::sgnLoadFinished, &context, [&] { ++loads; });
    Expect(Web().CallBack(name.c_str(), param.c_str()) == 0, "a callback gives 0");
    Expect(calls == 1, "each callback is passed on once");
    // Up to the first zero byte, and a byte order mark in front does not count.
    if (name.find('\0') == std::string::npos && name.compare(0, 3, "\xef\xbb\xbf") != 0)
        Expect(loads == (IsLoadReport(name) ? 1 : 0), "exactly the two names report a load");
    return 0;
}
