#include <gallery/Photo/PhotoCrop.h>

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoDlg.h>
#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QPointer>
#include <QSaveFile>
#include <QTimer>

namespace OperatorClient {

namespace {

const QSize LargestCanvas(960, 640); // with the dialog's bars exactly 4:3
const QSize SmallestCanvas(320, 240);
constexpr int AfterLayout = 50; // milliseconds; by then the dialog has its size

QByteArray JpegOf(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes;
}

Search SearchOf(const UICommonMdl::CCutPhotoDlg&) { return Search::None; }

Search SearchOf(const UICommonMdl::CCutPhotoDlgWithZoom& dialog)
{
    return static_cast<Search>(dialog.GetSavePictureType());
}

template <typename Dialog>
std::optional<PhotoCut>
Ask(const Photo& photo, const CutLimits& limits, const QString& title, QWidget* parent)
{
    // The parent may take the dialog along while it is open.
    const QPointer<Dialog> dialog(new Dialog(parent));
    const QSize canvas = PhotoCrop::CanvasSize(photo.image.size());
    dialog->SetDlgTitle(title);
    dialog->SetPhotoResolution(canvas.width(), canvas.height());
    dialog->SetImageMaxCapacity(limits.bytes);
    dialog->SetPicMaxSize(limits.width, limits.height);
    dialog->SetKeepAspectRatio(limits.halve);
    dialog->SetSrcPhoto(photo.path);
    if (photo.path.isEmpty()) {
        // A picture in memory is lost when the canvas gets its size after it.
        QTimer::singleShot(
            AfterLayout, dialog, [dialog, image = photo.image] { dialog->GetCanvas()->SetSrcImage(image); });
    }
    const int result = dialog->exec();
    if (dialog.isNull())
        return std::nullopt;
    std::optional<PhotoCut> cut;
    if (result == QDialog::Accepted) {
        cut = PhotoCut();
        cut->image = dialog->GetCutPhoto().image;
        cut->quality = qMax(0, dialog->GetCanvas()->GetCompressRatio());
        cut->search = SearchOf(*dialog);
        cut->jpeg = JpegOf(cut->image, cut->quality);
    }
    delete dialog;
    return cut;
}

QString PictureFilter()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray& format : formats)
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    return PhotoCrop::tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' ')));
}

void Tell(const QString& text, QWidget* parent)
{
    KvGUI::KvMessageNotify::Instance()->AddTextNotification(text, parent);
}

} // namespace

std::optional<PhotoCut>
PhotoCrop::WithZoom(const Photo& photo, const CutLimits& limits, const QString& title, QWidget* parent)
{
    return Ask<UICommonMdl::CCutPhotoDlgWithZoom>(photo, limits, title, parent);
}

std::optional<PhotoCut>
PhotoCrop::Plain(const Photo& photo, const CutLimits& limits, const QString& title, QWidget* parent)
{
    return Ask<UICommonMdl::CCutPhotoDlg>(photo, limits, title, parent);
}

QImage PhotoCrop::Read(const QString& path, QWidget* parent)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull())
        Tell(tr("\"%1\" cannot be shown: %2").arg(QFileInfo(path).fileName(), reader.errorString()), parent);
    return image;
}

QString PhotoCrop::AskForFile(QWidget* parent)
{
    return QFileDialog::getOpenFileName(parent, tr("Open a photo"), QString(), PictureFilter());
}

QString PhotoCrop::AskAndSave(const PhotoCut& cut, QWidget* parent)
{
    // Not the dialog's static function, which would overwrite a file that it has not asked about: the one
    // with the suffix that the operator left out.
    const QPointer<QFileDialog> dialog(new QFileDialog(parent, tr("Save the cut")));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(tr("JPEG pictures (*.jpg *.jpeg)"));
    dialog->setDefaultSuffix(QStringLiteral("jpg"));
    dialog->selectFile(QStringLiteral("cut.jpg"));
    const bool chosen = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return {};
    const QString path = dialog->selectedFiles().value(0);
    delete dialog;
    if (!chosen || path.isEmpty())
        return {};
    const bool saved = Save(cut, path);
    const QString name = QFileInfo(path).fileName();
    Tell(saved ? tr("Saved as \"%1\".").arg(name) : tr("\"%1\" cannot be written.").arg(name), parent);
    return saved ? path : QString();
}

bool PhotoCrop::Save(const PhotoCut& cut, const QString& path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(cut.jpeg) == cut.jpeg.size() && file.commit();
}

QSize PhotoCrop::CanvasSize(const QSize& picture)
{
    if (picture.isEmpty())
        return LargestCanvas;
    return picture.scaled(LargestCanvas, Qt::KeepAspectRatio).expandedTo(SmallestCanvas);
}

} // namespace OperatorClient
