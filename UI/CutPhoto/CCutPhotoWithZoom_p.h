#pragma once

#include "CCutPhotoWithZoom.h"
#include "CropState.h"

#include <Platform/BasicUIComponents/KvMenu.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>

#include <QIcon>
#include <QPointer>
#include <QRegion>

namespace UICommonMdl {

class CComTipWigetWithZoom;

/// Covers the canvas, so that Qt gives the mouse to it and not to the canvas; it passes all on. Unlike the
/// canvas it can outlive a menu of a press in which the client deletes the canvas: Qt uses the receiver of a
/// right press once more afterwards.
class CropMouseArea : public QWidget
{
    Q_OBJECT // a sheet for plain widgets must not paint it

        public : using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override { }
};

/// State of the crop canvas with zoom and the steps that its event handlers are made of.
class CCutPhotoWithZoomPrivate
{
public:
    explicit CCutPhotoWithZoomPrivate(CCutPhotoWithZoom* canvas);
    ~CCutPhotoWithZoomPrivate();

    void LoadSkin();
    void PaintIcons(QPainter& painter);
    void ShowTipText();
    void UpdateTipPos();
    void ReadSource(const QString& path);

    /// Sets the frame and paints again what that changes.
    void SetCrop(const QRect& crop);
    /// Sets the frame without painting; the next SetCrop() paints everything.
    void SetCropUnpainted(const QRect& crop);

    /// A button was pressed. When a menu was shown, true, and the canvas may be gone.
    bool Press(const QPoint& pos, const QPoint& globalPos, Qt::MouseButton button);
    void Drag(const QPoint& pos, const QPoint& globalPos);
    void FinishCrop();
    void EndHold(); ///< nothing is moved or resized any more

    bool PopupMenu(); ///< modal: whether an action was chosen; the canvas may be gone when it returns
    void CloseMenu();
    void ReportSearch(void (CCutPhotoWithZoom::*signal)()); ///< the canvas may be gone when it returns

    CCutPhotoWithZoom* const q;
    CropState state;
    CropMouseArea* mouseArea;
    CComTipWigetWithZoom* tip = nullptr;
    QPoint press; ///< of the last press of a button
    QPoint moveOffset; ///< global position of the press less the frame's corner at the time
    QPoint anchor; ///< the frame's bottom left corner when it was last finished or moved
    QRect draw; ///< what a selection that runs backwards covered before the present step
    /// Signed extents of the last selection, or of the frame once it was moved or resized: the release looks
    /// at either for the least size.
    QSize drag = QSize(0, 0);
    bool hasCut = false; ///< a frame was completed
    bool moving = false;
    bool resizing = false;
    bool pressed = false; ///< something was pressed since the last OnClose(): the frame is painted
    bool cropUnpainted = false; ///< the frame on the screen is not the present one
    bool pressing = false; ///< a press is being handled, perhaps with its menu open
    bool escapeWasMenus = false; ///< an open menu took the press of Escape, whose release comes to the canvas
    bool searchRequested = false; ///< the host is about to close: a resize reads no file
    QColor background;
    QPointer<KvGUI::KvMenu> menu;

private:
    void BeginSelection(const QPoint& pos);
    void TakeHandle(const QPoint& pos, const QPoint& globalPos);
    void DragSelection(const QPoint& pos);
    void MoveCrop(const QPoint& pos, const QPoint& globalPos);
    void ResizeCrop(const QPoint& pos);
    QRegion IconRegion(const QRect& crop) const;
    QRegion CoveredByTip() const;
    void AddAction(const KvGUI::KvTranslatedText::Source& text, const char* picture, const char* slot);

    QIcon moveIcon;
    QIcon scaleIcon;
    QIcon searchIcon;
};

} // namespace UICommonMdl
