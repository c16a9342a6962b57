#include "IpAddress.h"

#include <algorithm>

namespace UICommonMdl {

namespace {

/// From this number of two digits on, every number that begins with it has gone beyond the largest octet.
constexpr int LastTwoDigits = 26;

bool IsDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

bool IsOctet(const QString& text)
{
    return !text.isEmpty() && AreOctetDigits(text) && text.toInt() <= LargestOctet;
}

} // namespace

bool AreOctetDigits(const QString& text)
{
    return text.size() <= LongestOctet && std::all_of(text.begin(), text.end(), IsDigit);
}

QStringList OctetsOfAddress(const QString& text)
{
    QStringList parts = text.trimmed().split(QLatin1Char('.'));
    if (parts.size() != OctetCount || !std::all_of(parts.cbegin(), parts.cend(), IsOctet))
        parts.clear();
    return parts;
}

QString JoinedOctets(const QStringList& octets)
{
    const bool empty
        = std::all_of(octets.begin(), octets.end(), [](const QString& octet) { return octet.isEmpty(); });
    return empty ? QString() : octets.join(QLatin1Char('.'));
}

bool IsOctetComplete(const QString& octet)
{
    return octet.size() >= LongestOctet || (octet.size() == 2 && octet.toInt() >= LastTwoDigits);
}

IpAddrLayout LayOutOctets(const QRect& area, int dotWidth)
{
    const int forOctets = qMax(0, area.width() - (OctetCount - 1) * dotWidth);
    IpAddrLayout layout;
    int left = area.left();
    for (int i = 0; i < OctetCount; ++i) {
        // What the division leaves over goes to the octets one pixel at a time.
        const int width = forOctets * (i + 1) / OctetCount - forOctets * i / OctetCount;
        layout.octets.append(QRect(left, area.top(), width, area.height()));
        left += width;
        if (i + 1 < OctetCount)
            layout.dots.append(QRect(left, area.top(), dotWidth, area.height()));
        left += dotWidth;
    }
    return layout;
}

} // namespace UICommonMdl
