#pragma once

#include <UI/CutPhoto/CutImageInfo.h>
#include <UIComponentsExport.h>

#include <QColor>
#include <QWidget>
#include <memory>

namespace UICommonMdl {

class CCutPhotoWithZoomPrivate;

/// The canvas on which an operator frames the part of a photo that is kept as a face, human-body or vehicle
/// picture, with handles to move and resize the frame and a search menu.
///
/// Give it a size, a picture and the limits of the result; when the operator is done, ask whether the choice
/// is valid and take the cut:
/// @code
///     auto* canvas = new UICommonMdl::CCutPhotoWithZoom(container);
///     canvas->resize(container->size());
///     canvas->SetImageMaxCapacity(200 * 1024);
///     canvas->SetSrcPhoto(path);
///     ...
///     if (canvas->IsCutPhotoVaildWithNotify())
///         canvas->GetCutPhoto().image.save(target, "JPG", qMax(0, canvas->GetCompressRatio()));
/// @endcode
///
/// <b>The picture</b> is stretched over the whole widget, its proportions are not kept. A resize reads the
/// file again and the frame follows the picture; a picture handed over in memory is lost by a resize, and
/// nothing is read again after a search was chosen.
///
/// <b>By hand.</b> A drag draws the frame; one that is less than 6 pixels wide or high, or that ran to the
/// left or up, becomes the whole photo when the button is let go. From then on the frame has three handles of
/// 10 pixels around its corners: top left moves it inside the picture, top right resizes it (the bottom left
/// corner stays), bottom right opens the search menu, as a press of the right button does anywhere. The
/// menu's "Cancel" takes the frame away. Escape does so too and leaves full screen.
///
/// <b>Signals</b> are emitted before the canvas's menu is taken away. A slot may delete the canvas, also one
/// of a choice in the menu, and it may go while the menu is open. Only a canvas that is a window by itself
/// has to stay while the menu of a right press is open: Qt uses the window once more after such a press.
///
/// The constructor makes one connection that names a signal which this class does not have, so that Qt
/// warns once for each canvas; a host that has such a signal connects its own to OnKeyPressed().
class UICOMPONENTS_EXPORT CCutPhotoWithZoom : public QWidget
{
    Q_OBJECT
    /// The skin's colour for what lies around the canvas; the canvas itself is covered by its picture and
    /// paints nothing with it.
    Q_PROPERTY(QColor backgroundColor READ BackgroundColor)

public:
    /// Makes a canvas without a picture, without limits, its tip bubble showing.
    explicit CCutPhotoWithZoom(QWidget* parent = nullptr);
    ~CCutPhotoWithZoom() override;

    /// @name The picture
    /// @{

    /// Reads the picture file @p path, whose format is told by its content, not by its name. The ending of
    /// the name may be left out: the file of that name and the ending of a picture is read when there is none
    /// without. An empty path does nothing. A file that is missing or unreadable leaves the canvas without a
    /// source picture (GetCutPhoto() is cleared) and is not reported. The pixels are taken as the file stores
    /// them: a camera's note that it was held on its side is not applied.
    void SetSrcPhoto(const QString& path);

    /// Takes @p image as the source picture and stretches it over the widget's present size. A frame that is
    /// there keeps its place relative to the photo. The path of GetCutPhoto() is empty then.
    void SetSrcImage(const QImage& image);

    /// The source picture; after IsCutPhotoVaildWithNotify() returned true, the cut.
    CutImageInfo GetCutPhoto() const;

    /// Replaces what GetCutPhoto() returns and what a cut is taken from; what is shown does not change.
    void SetCutImage(const CutImageInfo& info);

    QColor BackgroundColor() const; ///< by the skin in use
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
    /// Declared for hosts that connect both canvases alike; this one never emits it.
    void SignalUpdateCutRect(const QRect& rcCut, bool bAddX, bool bAddY);
    void SignCloseWind(); ///< OnKeyPressed() was reached: the host should close
    void SignClickHumanSearch(); ///< "Human Body Image Search" was chosen in the menu
    void SignClickVehicleSearch(); ///< "Vehicle Images Search" was chosen in the menu
    void SignClickFaceSearch(); ///< "Face Image Search" was chosen in the menu

public Q_SLOTS:
    /// Sets the cursor by the place of the last press; for a timer of the host, the canvas has none.
    /// Nothing while no frame is completed.
    void OnTimeOut();
    void OnHumanSearchPicture(); ///< reports the choice and takes the menu away
    void OnVehicleSearchPicture(); ///< reports the choice and takes the menu away
    void OnKeyPressed(); ///< emits SignCloseWind() and empties the frame
    void OnFaceSearchPicture(); ///< reports the choice and takes the menu away
    void OnClose(); ///< takes the frame and the menu away; the next press draws a new frame

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    CCutPhotoWithZoomPrivate* d_func() const { return m_pPrivate.get(); }

    const std::unique_ptr<CCutPhotoWithZoomPrivate> m_pPrivate;
};

} // namespace UICommonMdl
