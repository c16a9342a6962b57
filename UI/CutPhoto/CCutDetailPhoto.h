#pragma once

#include <UI/CutPhoto/CutImageInfo.h>
#include <UIComponentsExport.h>

#include <QWidget>
#include <memory>

namespace UICommonMdl {

class CCutDetailPhotoPrivate;

/// The plain crop canvas: the operator drags a rectangle over a photo, and the host is told of every step.
///
/// @code
///     auto* canvas = new UICommonMdl::CCutDetailPhoto(container);
///     canvas->resize(container->size());
///     canvas->SetImageMaxCapacity(200 * 1024);
///     canvas->SetPicMaxSize(1920, 1080);
///     canvas->SetSrcPhoto(path);
///     connect(canvas, &UICommonMdl::CCutDetailPhoto::SignalUpdateCutRect, this, &MyDialog::KeepVisible);
///     ...
///     if (canvas->IsCutPhotoVaildWithNotify())
///         Store(canvas->GetCutPhoto().image);
/// @endcode
///
/// <b>The picture</b> is stretched over the size that the widget has at that moment, its proportions are not
/// kept, and starts fully selected. A later resize changes neither: set the picture again.
///
/// <b>By hand.</b> A drag that begins on the picture draws a new frame, cut at the picture's edges; a click
/// changes nothing. The tip bubble goes away with the first drag. There are no handles and no keys.
///
/// CCutPhotoWithZoom is the canvas with handles and a search menu; the two have their names in common and no
/// base class.
class UICOMPONENTS_EXPORT CCutDetailPhoto : public QWidget
{
    Q_OBJECT

public:
    /// Makes a canvas without a picture, without limits, its tip bubble showing.
    explicit CCutDetailPhoto(QWidget* parent = nullptr);
    ~CCutDetailPhoto() override;

    /// @name The picture
    /// @{

    /// Reads the picture file @p path, whose format is told by its content, not by its name. The ending of
    /// the name may be left out: the file of that name and the ending of a picture is read when there is none
    /// without. An empty path does nothing. A file that is missing or unreadable leaves the canvas without a
    /// source picture (GetCutPhoto() is cleared) and is not reported. The pixels are taken as the file stores
    /// them: a camera's note that it was held on its side is not applied.
    void SetSrcPhoto(const QString& path);

    /// Takes @p image as the source picture, stretches it over the widget's present size and selects all
    /// of it. The path of GetCutPhoto() is empty then.
    void SetSrcImage(const QImage& image);

    /// The source picture; after IsCutPhotoVaildWithNotify() returned true, the cut.
    CutImageInfo GetCutPhoto() const;

    /// Replaces what GetCutPhoto() returns and what a cut is taken from; what is shown does not change.
    void SetCutImage(const CutImageInfo& info);
    /// @}

    /// @name The choice and its limits
    /// @{

    /// Sets the frame in widget coordinates, as it is: not limited to the photo and not repainted.
    void SetCutRegion(const QRect& rcCut);

    /// Size in bytes that the cut may have as a JPEG; 0, the initial value, does not limit it (and no other
    /// check is made then). A negative limit counts as 0.
    void SetImageMaxCapacity(int iMaxCapacity);

    /// Resolution in pixels that the cut may have, where its bytes are limited too; 0 x 0, the initial value,
    /// does not limit it. With only one of them 0, every cut is too large. A negative limit counts as 0.
    void SetPicMaxSize(int iMaxWidth, int iMaxHeight);

    /// Whether a cut with too many pixels is halved until it fits (true) or refused (false, at first).
    void SetKeepAspectRatio(bool bKeep);

    /// Cuts the frame out of the source picture, checks it against the limits and, when all is well, makes
    /// it the image of GetCutPhoto(). The image itself is never compressed: encode it as a JPEG with
    /// GetCompressRatio().
    ///
    /// An empty frame and too many pixels are told to the operator by a notification; a cut that stays over
    /// the byte limit at every quality is refused without one. A frame that means less than one pixel of the
    /// source picture in one direction is valid: the cut is a null image then.
    /// @return whether the cut is valid
    bool IsCutPhotoVaildWithNotify();

    /// The JPEG quality found by the last check against a byte limit: one step below the first quality that
    /// fits it (90 when 100 fits). -1 when only the lowest quality, 0, or none fits: encode with 0 then.
    /// 100 before the first check.
    int GetCompressRatio() const;

    /// @p image halved, as often as needed, to the largest size inside the limits of SetPicMaxSize(); as it
    /// is when one of them is 0. Halving stops where a side would become 0.
    QImage ChanageImageByAspectRatio(const QImage& image) const;
    /// @}

Q_SIGNALS:
    /// Each step of a drag. A slot may delete the canvas.
    /// @param rcCut the frame in widget coordinates
    /// @param bAddX, bAddY whether the pointer is at or beyond the point of the press: the frame grows to
    ///        the right, or down
    void SignalUpdateCutRect(const QRect& rcCut, bool bAddX, bool bAddY);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ShowTipText();
    void DragTo(const QPoint& pointer);
    void SetCrop(const QRect& crop);
    void HideTip();
    void UpdateTipPos();
    CCutDetailPhotoPrivate* d_func() const { return m_pPrivate.get(); }

    const std::unique_ptr<CCutDetailPhotoPrivate> m_pPrivate;
};

} // namespace UICommonMdl
