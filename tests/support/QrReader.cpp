#include "QrReader.h"

#include <zbar.h>

namespace TestSupport {

QByteArray ReadQrCode(const QImage& picture)
{
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    QByteArray pixels;
    for (int y = 0; y < grey.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(grey.constScanLine(y)), grey.width());

    zbar::zbar_image_scanner_t* scanner = zbar::zbar_image_scanner_create();
    zbar_image_scanner_set_config(scanner, zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
    zbar_image_scanner_set_config(scanner, zbar::ZBAR_QRCODE, zbar::ZBAR_CFG_ENABLE, 1);
    // The bytes as they stand in the code, without a guess at their encoding.
    zbar_image_scanner_set_config(scanner, zbar::ZBAR_QRCODE, zbar::ZBAR_CFG_BINARY, 1);
    zbar::zbar_image_t* image = zbar::zbar_image_create();
    zbar_image_set_format(image, zbar_fourcc('Y', '8', '0', '0'));
    zbar_image_set_size(image, unsigned(grey.width()), unsigned(grey.height()));
    zbar_image_set_data(image, pixels.constData(), static_cast<unsigned long>(pixels.size()), nullptr);
    QByteArray bytes;
    if (zbar_scan_image(scanner, image) == 1) {
        const zbar::zbar_symbol_t* symbol = zbar::zbar_image_first_symbol(image);
        bytes = QByteArray(zbar_symbol_get_data(symbol), int(zbar_symbol_get_data_length(symbol)));
    }
    zbar_image_destroy(image);
    zbar_image_scanner_destroy(scanner);
    return bytes;
}

} // namespace TestSupport
