#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

namespace UICommonMdl {

constexpr int OctetCount = 4; ///< of an IPv4 address
constexpr int LargestOctet = 255;
constexpr int LongestOctet = 3; ///< digits

/// Whether the text holds nothing but the digits 0 to 9, and at most as many as an octet has.
bool AreOctetDigits(const QString& text);

/// The four octets of a text that is a whole dotted IPv4 address (digits and three dots, each octet 0 to
/// 255), blanks and line ends around it aside; empty for any other text.
QStringList OctetsOfAddress(const QString& text);

/// The octets joined with dots; empty when all of them are empty.
QString JoinedOctets(const QStringList& octets);

/// Whether the typed octet is complete, because a further digit would make it larger than 255.
bool IsOctetComplete(const QString& octet);

/// The places of octets and the dots between them.
struct IpAddrLayout
{
    QVector<QRect> octets; ///< OctetCount
    QVector<QRect> dots; ///< one less
};

/// Divides @p area from left to right between the octets, all equally wide but for a pixel, and the dots.
/// An area that is too narrow for the dots gives octets without width.
IpAddrLayout LayOutOctets(const QRect& area, int dotWidth);

} // namespace UICommonMdl
