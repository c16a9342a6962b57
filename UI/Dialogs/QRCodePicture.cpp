#include <UI/Dialogs/QRCodePicture.h>

#include <memory>
#include <qrencode.h>

namespace UICommonMdl::QRCodePicture {

namespace {

constexpr int SmallestVersion = 2;
constexpr int CaseSensitive = 1;
constexpr unsigned char DarkBit = 1;

struct FreeCode
{
    void operator()(QRcode* code) const { QRcode_free(code); }
};

} // namespace

QImage Modules(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const std::unique_ptr<QRcode, FreeCode> code(
        QRcode_encodeString(bytes.constData(), SmallestVersion, QR_ECLEVEL_H, QR_MODE_8, CaseSensitive));
    if (code == nullptr)
        return {};
    QImage image(code->width, code->width, QImage::Format_Indexed8);
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(0, 0, 0)});
    const unsigned char* module = code->data;
    for (int y = 0; y < code->width; ++y) {
        for (int x = 0; x < code->width; ++x, ++module)
            image.setPixel(x, y, *module & DarkBit);
    }
    return image;
}

QImage Scaled(const QString& text)
{
    const QImage modules = Modules(text);
    return modules.isNull() ? modules : modules.scaledToWidth(Width, Qt::FastTransformation);
}

} // namespace UICommonMdl::QRCodePicture
