// Texts from outside: the comma-separated parsers, channel ids, and byte budgets.

#include "Expect.h"

#include <Common/ByteBudget.h>
#include <Common/CommonFun.h>
#include <Common/QCommon.h>

#include <cstddef>
#include <cstdint>

using XCM::QCommon;

namespace {

void ParseCommas(const QString& text)
{
    const QRect rect = QCommon::StringToRect(text);
    const QSize size = QCommon::StringToSize(text);
    const QColor colour = QCommon::StringToColor(text);
    const int commas = text.count(QLatin1Char(','));
    Expect(commas == 3 || rect == QRect(0, 0, 0, 0), "four numbers make a rectangle");
    Expect(commas == 1 || size == QSize(0, 0), "two numbers make a size");
    Expect(commas == 2 || !colour.isValid(), "three numbers make a colour");
    // The sanitizer sees an overflow here.
    Expect(rect.left() + qint64(rect.width()) == qint64(rect.right()) + 1, "the width is an int");
    Expect(rect.top() + qint64(rect.height()) == qint64(rect.bottom()) + 1, "the height is an int");
}

void ReadChannelId(const std::string& channel)
{
    std::string device;
    const int result = QCommon::GetDevIdByChnlId(channel, device);
    Expect(channel.compare(0, device.size(), device) == 0, "a device id begins the channel id");
    Expect(result == 0 ? device.size() <= 47 : device == channel, "a device id is short");
}

void CutToBudget(const QString& text, int maxBytes, int block)
{
    for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Local8Bit}) {
        const QString cut = CutToByteBudget(text, maxBytes, encoding, block);
        Expect(cut == CutToByteBudget(text, maxBytes, encoding), "the size of the blocks does not matter");
        Expect(text.startsWith(cut), "a cut text is a beginning");
        const int bytes = encoding == TextEncoding::Utf8 ? cut.toUtf8().size() : cut.toLocal8Bit().size();
        Expect(bytes <= maxBytes, "a cut text keeps to its budget");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::string bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
    const QString text = QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
    ParseCommas(text);
    ReadChannelId(bytes);
    QCommon::isDigitStr(text);
    QCommon::GetAsciiCharNum(bytes);
    // The bytes as they are, so that torn surrogate pairs occur.
    const QString units = QString::fromUtf16(
        reinterpret_cast<const char16_t*>(bytes.data()), static_cast<int>(bytes.size() / 2));
    CutToBudget(units, data[0], 2 + data[1]);
    return 0;
}
