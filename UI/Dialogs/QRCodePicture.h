#pragma once

#include <QImage>
#include <QString>

/// QR codes as pictures.
namespace UICommonMdl::QRCodePicture {

constexpr int Width = 200; ///< pixels

/// The code of @p text, encoded as UTF-8 up to its first null character: one pixel a module, colour index 0
/// (white) or 1 (black), without quiet zone. The smallest version from 2 to 40 that holds the text at error
/// correction level H. A null image for an empty text and for one that no version holds: 1,273 bytes are
/// the most that always fit, texts with many digits or capitals may be longer.
QImage Modules(const QString& text);

/// The same Width pixels wide and high, each pixel that of its module. Modules have a whole number of pixels
/// at 25 modules a side only. Null as Modules().
QImage Scaled(const QString& text);

} // namespace UICommonMdl::QRCodePicture
