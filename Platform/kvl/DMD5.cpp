#include <Platform/kvl/DMD5.h>

#include <algorithm>
#include <limits>

namespace kvl {

DMD5::DMD5()
    : m_hash(QCryptographicHash::Md5)
{ }

void DMD5::Init() { m_hash.reset(); }

void DMD5::Update(const void* data, std::size_t length)
{
    if (data == nullptr)
        return;
    // The hash counts in int; more than that is added in several steps.
    constexpr std::size_t kLargestStep = std::numeric_limits<int>::max();
    const char* next = static_cast<const char*>(data);
    while (length > 0) {
        const std::size_t step = std::min(length, kLargestStep);
        m_hash.addData(next, static_cast<int>(step));
        next += step;
        length -= step;
    }
}

void DMD5::Final(unsigned char* digest) const
{
    if (digest == nullptr)
        return;
    const QByteArray bytes = m_hash.result();
    std::copy(bytes.begin(), bytes.end(), digest);
}

} // namespace kvl
