#pragma once

#include <QByteArray>
#include <QImage>

namespace TestSupport {

/// The bytes of the QR code that a real reader finds in @p picture; null when it finds none or several.
QByteArray ReadQrCode(const QImage& picture);

} // namespace TestSupport
