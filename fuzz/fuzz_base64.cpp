// Base64 text from outside: decoding keeps to its buffer, and each text that is accepted is the one text of
// its bytes.

#include "Expect.h"

#include <Common/Base64.h>
#include <Platform/kvl/DBase64.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string bytes = Common::deBase64(text);
    if (!bytes.empty())
        Expect(Common::enBase64(bytes) == text, "an accepted text is the text of its bytes");
    Expect(Common::deBase64(Common::enBase64(text)) == text, "bytes survive");

    // Exactly as large as promised, so that the address sanitizer sees a write past the end.
    std::vector<char> buffer(text.size() / 4 * 3);
    const int count = Common::deBase64(text, buffer.data());
    Expect(count < 0 || static_cast<std::size_t>(count) == bytes.size(), "both forms agree");

    std::vector<char> tooSmall(buffer.size() / 2);
    kvl::DBase64::Decode(
        text.data(), static_cast<long long>(text.size()), tooSmall.data(),
        static_cast<long long>(tooSmall.size()));
    return 0;
}
