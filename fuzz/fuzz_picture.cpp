// Picture files from outside: whatever is in them, they are read or not, cut and fitted to a byte limit.
//
// Given an empty folder as corpus, the target first fills it with small pictures of several formats.

#include "Expect.h"

#include <UI/CutPhoto/CropPicture.h>
#include <UI/CutPhoto/JpegFitting.h>
#include <UI/CutPhoto/JpegTables.h>

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <cstddef>
#include <cstdint>
#include <numeric>

using namespace UICommonMdl;

namespace {

constexpr qint64 MostPixels = 1 << 14; // more only makes the fuzzer slow

QImage SeedPicture()
{
    QImage image(QSize(19, 17), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgba(x * 13, y * 15, (x ^ y) * 8, 255 - x));
    return image;
}

void WriteSeeds(const QDir& corpus)
{
    const QImage picture = SeedPicture();
    const QImage::Format formats[]
        = {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_Grayscale8,
           QImage::Format_RGBA64};
    for (const char* file : {"JPG", "PNG", "BMP", "PPM", "XBM", "XPM"})
        for (const QImage::Format format : formats) {
            const QString name = QStringLiteral("%1-%2").arg(QLatin1String(file)).arg(format);
            picture.convertToFormat(format).save(corpus.filePath(name), file);
        }
}

bool IsTooLarge(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return qint64(size.width()) * size.height() > MostPixels;
}

void Cut(const QImage& picture)
{
    CutImageInfo info;
    info.image = picture;
    info.bHasImage = !picture.isNull();
    const QRect photo(0, 0, 40, 30);
    CropPicture::Limits limits;
    limits.iMaxCapacity = 700;
    limits.maximum = QSize(90, 90);
    limits.bKeepAspectRatio = true;
    const CropPicture::CheckedCut cut
        = CropPicture::CheckCut(info, QRect(3, 2, 30, 20), photo, photo.size(), limits);
    // A side of one pixel cannot be halved.
    const bool small = cut.image.width() <= 90 && cut.image.height() <= 90;
    Expect(small || qMin(cut.image.width(), cut.image.height()) == 1, "a valid cut keeps to its limit");
}

/// Large enough for sizes to be counted instead of encoded.
void FitQuickly(const QImage& image)
{
    constexpr int Maximum = 2500;
    int quality = 100;
    int bytes = 0;
    do {
        bytes = JpegBytes(image, quality).size();
        quality = NextLowerQuality(quality);
    } while (quality >= 0 && bytes > Maximum);
    const JpegFit fit = FitJpeg(image, Maximum);
    Expect(fit.bytes == bytes && fit.ratio == quality, "the quick search ends where the plain one does");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    for (int i = 1; i < *argc; ++i) {
        const QDir corpus(QString::fromLocal8Bit((*argv)[i]));
        if ((*argv)[i][0] != '-' && corpus.exists() && corpus.isEmpty())
            WriteSeeds(corpus);
    }
    // Never deleted: the platform leaves a few objects behind when it is.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* application = new QGuiApplication(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // damaged files
    return application != nullptr ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const std::optional<JpegTables> tables = ReadJpegTables(bytes);
    Expect(!tables || tables->headerBytes + tables->scanBytes < bytes.size(), "tables end inside the file");
    if (IsTooLarge(bytes))
        return 0;

    QBuffer file;
    file.setData(bytes);
    Expect(file.open(QIODevice::ReadOnly), "bytes can be read");
    const QImage picture = CropPicture::ReadPicture(file);
    // What follows reads no file and takes its time.
    const unsigned chance = std::accumulate(data, data + size, 0U);
    if (chance % 32 == 0)
        Cut(picture);
    if (chance % 2048 == 0 && !picture.isNull())
        FitQuickly(picture.scaled(150, 130));
    return 0;
}
