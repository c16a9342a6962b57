#include <gallery/Photo/PhotoCrop.h>

#include <Platform/BasicUIComponents/KvMessageNotify.h>
#include <UI/CutPhoto/CCutDetailPhoto.h>
#include <UI/CutPhoto/CCutPhotoDlg.h>
#include <UI/CutPhoto/CCutPhotoDlgWithZoom.h>
#include <UI/CutPhoto/CCutPhotoWithZoom.h>
#include <gallery/FollowLanguage.h>
#include <gallery/LastFolders.h>
#include <gallery/Pictures/StillPicture.h>

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QPointer>
#include <QSaveFile>
#include <QTimer>
#include <limits>

namespace OperatorClient {

namespace {

const QSize LargestCanvas(960, 640); // with the dialog's bars exactly 4:3
const QSize SmallestCanvas(320, 240);
constexpr int AfterLayout = 50; // milliseconds; by then the dialog has its size
constexpr int LargestJpegSide = 65535; // pixels

QByteArray JpegOf(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality);
    return bytes;
}

void Tell(const QString& text, QWidget* parent)
{
    KvGUI::KvMessageNotify::Instance()->AddTextNotification(text, parent);
}

/// The limits as the dialogs take them. These know no limit of one side only, and look at the pixels only
/// when the bytes are limited.
CutLimits DialogLimits(CutLimits limits)
{
    if (limits.width == 0 && limits.height == 0)
        return limits;
    if (limits.width == 0)
        limits.width = LargestJpegSide;
    if (limits.height == 0)
        limits.height = LargestJpegSide;
    if (limits.bytes == 0)
        limits.bytes = std::numeric_limits<int>::max();
    return limits;
}

Search SearchOf(const UICommonMdl::CCutPhotoDlg&) { return Search::None; }

Search SearchOf(const UICommonMdl::CCutPhotoDlgWithZoom& dialog)
{
    return static_cast<Search>(dialog.GetSavePictureType());
}

template <typename Dialog>
PhotoCut CutOf(const Dialog& dialog)
{
    PhotoCut cut;
    cut.image = dialog.GetCutPhoto().image;
    cut.quality = qMax(0, dialog.GetCanvas()->GetCompressRatio());
    cut.search = SearchOf(dialog);
    cut.jpeg = JpegOf(cut.image, cut.quality);
    return cut;
}

template <typename Dialog>
std::optional<PhotoCut>
Ask(const Photo& photo, const CutLimits& clientLimits, const KvGUI::KvTranslatedText::Source& title,
    QWidget* parent)
{
    const CutLimits limits = DialogLimits(clientLimits);
    // The parent may take the dialog along while it is open.
    const QPointer<Dialog> dialog(new Dialog(parent));
    const QSize canvas = PhotoCrop::CanvasSize(photo.image.size());
    FollowLanguage(dialog.data(), "windowTitle", title);
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
    if (result == QDialog::Accepted)
        cut = CutOf(*dialog);
    delete dialog;
    // A frame on a picture of few pixels can hold none of them as a whole.
    if (cut && cut->jpeg.isEmpty()) {
        Tell(PhotoCrop::tr("This part is too small or too large for a JPEG picture."), parent);
        return std::nullopt;
    }
    return cut;
}

template <typename Canvas>
bool HasPicture(const QDialog& dialog)
{
    const auto* canvas = dialog.findChild<Canvas*>();
    return canvas != nullptr && canvas->GetCutPhoto().bHasImage;
}

QString PictureFilter() { return PhotoCrop::tr("Pictures (%1)").arg(StillPicture::FilePatterns()); }

/// Runs the dialog and deletes it, unless its parent takes it along. @return empty when nothing was chosen
QString ChosenFile(const QPointer<QFileDialog>& dialog)
{
    const bool chosen = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return {};
    QString path = chosen ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return path;
}

} // namespace

std::optional<PhotoCut> PhotoCrop::WithZoom(
    const Photo& photo, const CutLimits& limits, const KvGUI::KvTranslatedText::Source& title,
    QWidget* parent)
{
    return Ask<UICommonMdl::CCutPhotoDlgWithZoom>(photo, limits, title, parent);
}

std::optional<PhotoCut> PhotoCrop::Plain(
    const Photo& photo, const CutLimits& limits, const KvGUI::KvTranslatedText::Source& title,
    QWidget* parent)
{
    return Ask<UICommonMdl::CCutPhotoDlg>(photo, limits, title, parent);
}

bool PhotoCrop::ShowsPicture(const QDialog& dialog)
{
    return dialog.isVisible()
        && (HasPicture<UICommonMdl::CCutDetailPhoto>(dialog)
            || HasPicture<UICommonMdl::CCutPhotoWithZoom>(dialog));
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
    auto* dialog
        = new QFileDialog(parent, tr("Open a photo"), LastFolders::Of(FileUse::Photo), PictureFilter());
    dialog->setFileMode(QFileDialog::ExistingFile);
    QString path = ChosenFile(dialog);
    LastFolders::Note(FileUse::Photo, path);
    return path;
}

QString PhotoCrop::AskAndSave(const PhotoCut& cut, QWidget* parent)
{
    // Not the dialog's static function, which would overwrite a file that it has not asked about: the one
    // with the suffix that the operator left out.
    auto* dialog = new QFileDialog(parent, tr("Save the cut"), LastFolders::Of(FileUse::Cut));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilter(tr("JPEG pictures (*.jpg *.jpeg)"));
    dialog->setDefaultSuffix(QStringLiteral("jpg"));
    dialog->selectFile(QStringLiteral("cut.jpg"));
    const QString path = ChosenFile(dialog);
    if (path.isEmpty())
        return {};
    LastFolders::Note(FileUse::Cut, path);
    const bool saved = Save(cut, path);
    const QString name = QFileInfo(path).fileName();
    Tell(saved ? tr("Saved as \"%1\".").arg(name) : tr("\"%1\" cannot be written.").arg(name), parent);
    return saved ? path : QString();
}

bool PhotoCrop::Save(const PhotoCut& cut, const QString& path)
{
    QSaveFile file(path);
    // The commit alone would take a file whose end did not fit on the disk.
    return file.open(QIODevice::WriteOnly) && file.write(cut.jpeg) == cut.jpeg.size() && file.flush()
        && file.commit();
}

QSize PhotoCrop::CanvasSize(const QSize& picture)
{
    if (picture.isEmpty())
        return LargestCanvas;
    return picture.scaled(LargestCanvas, Qt::KeepAspectRatio).expandedTo(SmallestCanvas);
}

} // namespace OperatorClient
