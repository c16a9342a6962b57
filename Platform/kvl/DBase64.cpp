#include <Platform/kvl/DBase64.h>

#include <limits>

namespace kvl {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Value of a base64 digit, or -1.
int DigitValue(char digit)
{
    if (digit >= 'A' && digit <= 'Z')
        return digit - 'A';
    if (digit >= 'a' && digit <= 'z')
        return digit - 'a' + 26;
    if (digit >= '0' && digit <= '9')
        return digit - '0' + 52;
    if (digit == '+')
        return 62;
    if (digit == '/')
        return 63;
    return -1;
}

unsigned ByteAt(const char* bytes, long long index) { return static_cast<unsigned char>(bytes[index]); }

int PaddingLength(const char* text, long long length)
{
    if (length == 0 || text[length - 1] != '=')
        return 0;
    return text[length - 2] == '=' ? 2 : 1;
}

/// Reads the digits of one group of four into the upper bits of 24; false when one is not a digit.
bool ReadGroup(const char* group, int digits, unsigned& bits)
{
    bits = 0;
    for (int i = 0; i < digits; ++i) {
        const int value = DigitValue(group[i]);
        if (value < 0)
            return false;
        bits |= static_cast<unsigned>(value) << (18 - 6 * i);
    }
    return true;
}

/// Bits of a padded last group that stand for no byte.
bool HasStrayBits(unsigned bits, int bytes) { return (bits & (0xFFFFFFU >> (8 * bytes))) != 0; }

} // namespace

long long DBase64::Encode(const char* src, long long srcLen, char* dst, long long dstLen)
{
    if (dst == nullptr || srcLen < 0 || (src == nullptr && srcLen > 0))
        return -1;
    if (srcLen > std::numeric_limits<long long>::max() / 4 * 3 - 2)
        return -1;
    const long long length = (srcLen + 2) / 3 * 4;
    if (dstLen < length)
        return -1;

    char* out = dst;
    for (long long i = 0; i < srcLen; i += 3) {
        const long long rest = srcLen - i;
        unsigned bits = ByteAt(src, i) << 16;
        if (rest > 1)
            bits |= ByteAt(src, i + 1) << 8;
        if (rest > 2)
            bits |= ByteAt(src, i + 2);
        *out++ = kAlphabet[bits >> 18];
        *out++ = kAlphabet[bits >> 12 & 63];
        *out++ = rest > 1 ? kAlphabet[bits >> 6 & 63] : '=';
        *out++ = rest > 2 ? kAlphabet[bits & 63] : '=';
    }
    if (dstLen > length)
        *out = '\0';
    return length;
}

long long DBase64::Decode(const char* src, long long srcLen, char* dst, long long dstLen)
{
    if (dst == nullptr || srcLen < 0 || srcLen % 4 != 0 || (src == nullptr && srcLen > 0))
        return -1;
    const int padding = PaddingLength(src, srcLen);
    const long long length = srcLen / 4 * 3 - padding;
    if (dstLen < length)
        return -1;

    long long written = 0;
    for (long long i = 0; i < srcLen; i += 4) {
        const int missing = i + 4 == srcLen ? padding : 0;
        const int bytes = 3 - missing;
        unsigned bits = 0;
        if (!ReadGroup(src + i, 4 - missing, bits) || HasStrayBits(bits, bytes))
            return -1;
        for (int k = 0; k < bytes; ++k)
            dst[written++] = static_cast<char>(bits >> (16 - 8 * k) & 0xFFU);
    }
    return length;
}

} // namespace kvl
