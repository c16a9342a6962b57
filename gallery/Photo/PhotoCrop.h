#pragma once

#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QString>
#include <optional>

class QDialog;
class QWidget;

namespace OperatorClient {

/// A photo to be cropped: a file, or a picture in memory that has no path.
struct Photo
{
    QString title;
    QString path;
    QImage image;
};

/// What a cut may be; 0 is no limit, each for itself.
struct CutLimits
{
    int bytes = 0; ///< of the cut as a JPEG
    int width = 0; ///< in pixels
    int height = 0;
    bool halve = true; ///< a cut with too many pixels is halved; otherwise refused
};

/// Why the operator ended a dialog with search; the dialog's numbers.
enum class Search
{
    None,
    Vehicle,
    Face,
    HumanBody
};

/// A cut as the operator accepted it.
struct PhotoCut
{
    QImage image;
    QByteArray jpeg; ///< the image at the quality below
    int quality = 100; ///< 0 to 100
    Search search = Search::None;
};

/// Asks for a part of a photo in one of the library's dialogs.
class PhotoCrop
{
    Q_DECLARE_TR_FUNCTIONS(OperatorClient::PhotoCrop)

public:
    /// In the dialog with handles and search.
    /// @param title of the dialog; asked again when the language changes
    /// @return nothing when the operator cancelled,
    /// or, with a message, when what was framed cannot be a JPEG
    static std::optional<PhotoCut> WithZoom(
        const Photo& photo, const CutLimits& limits, const KvGUI::KvTranslatedText::Source& title,
        QWidget* parent);

    /// In the plain dialog.
    static std::optional<PhotoCut> Plain(
        const Photo& photo, const CutLimits& limits, const KvGUI::KvTranslatedText::Source& title,
        QWidget* parent);

    /// Whether one of these dialogs is open and its canvas has got the photo.
    static bool ShowsPicture(const QDialog& dialog);

    /// Reads a photo file, to show it. The dialogs read it again by themselves.
    /// @return a null image, and a message to the operator, when it cannot be read
    static QImage Read(const QString& path, QWidget* parent);

    /// Asks for a photo file. @return empty when the operator cancelled
    static QString AskForFile(QWidget* parent);

    /// Asks where to save the cut and saves it, with a message to the operator.
    /// @return the file; empty when nothing was saved
    static QString AskAndSave(const PhotoCut& cut, QWidget* parent);

    /// Writes the cut's JPEG as a whole or not at all.
    static bool Save(const PhotoCut& cut, const QString& path);

    /// The size that the dialogs give their canvas for a picture: the picture's shape within what a usual
    /// display has room for.
    static QSize CanvasSize(const QSize& picture);
};

} // namespace OperatorClient
