#include <Common/Base64.h>

#include <Platform/kvl/DBase64.h>
#include <algorithm>
#include <limits>
#include <vector>

namespace Common {

namespace {

/// Length of the longest data whose base64 text a string can hold.
unsigned long long LongestData()
{
    return static_cast<unsigned long long>(std::string().max_size()) / 4 * 3 - 3;
}

/// Decodes into @p bytes, which is made large enough; the count, or negative for a malformed text.
int Decode(const std::string& text, std::vector<char>& bytes)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return -1;
    bytes.assign(text.size() / 4 * 3 + 4, '\0');
    return static_cast<int>(kvl::DBase64::Decode(
        text.data(), static_cast<long long>(text.size()), bytes.data(),
        static_cast<long long>(bytes.size())));
}

} // namespace

std::string enBase64(const char* data, unsigned long long len)
{
    if (data == nullptr || len > LongestData())
        return {};
    std::vector<char> text(static_cast<std::size_t>((len + 2) / 3 * 4 + 1), '\0');
    kvl::DBase64::Encode(data, static_cast<long long>(len), text.data(), static_cast<long long>(text.size()));
    return text.data();
}

std::string enBase64(const std::string& data) { return enBase64(data.data(), data.size()); }

// The texts come by value because that is the interface that client applications were built against.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
int deBase64(std::string text, char* out)
{
    std::vector<char> bytes;
    const int count = Decode(text, bytes);
    if (count > 0 && out == nullptr)
        return -1;
    if (count > 0)
        std::copy_n(bytes.data(), count, out);
    return count;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
std::string deBase64(std::string text)
{
    std::vector<char> bytes;
    const int count = Decode(text, bytes);
    return {bytes.data(), static_cast<std::size_t>(std::max(count, 0))};
}

} // namespace Common
