#pragma once

#include "WallArrangement.h"

#include <QPixmap>
#include <QPointer>
#include <QPolygon>
#include <QWidget>

namespace UICommonMdl {

class KvTVWallDisplayWnd;

/// The overview of a zoomed wall: a miniature of the wall with a frame around what its view shows.
/// A click or a drag moves the view there; the button in its corner collapses the overview to a button that
/// brings it back. The arrow keys move the view too, Space and Return do what the buttons do.
///
/// It has the size of the picture of its state and stands where its parent places it. The miniature is drawn
/// anew only after the wall's arrangement has changed, however often its surroundings are painted.
class KvTVWallDisplayEagleEye : public QWidget
{
    Q_OBJECT
    /// Colour of the frame around what the view shows, and of the keyboard focus.
    Q_PROPERTY(QColor viewColor READ ViewColor WRITE SetViewColor)
    /// Colours of the windows in the miniature.
    Q_PROPERTY(QColor windowColor READ WindowColor WRITE SetWindowColor)
    Q_PROPERTY(QColor selectedWindowColor READ SelectedWindowColor WRITE SetSelectedWindowColor)

public:
    KvTVWallDisplayEagleEye(const KvTVWallDisplayWnd* wall, QWidget* parent);
    KvTVWallDisplayEagleEye(const WallArrangement* wall, QWidget* parent); ///< of any kind of wall

    /// Shows what the view shows, as fractions of the wall.
    void SetArea(float left, float top, float width, float height);

    QColor ViewColor() const { return m_colors.view; }
    void SetViewColor(const QColor& color);
    QColor WindowColor() const { return m_colors.window; }
    void SetWindowColor(const QColor& color);
    QColor SelectedWindowColor() const { return m_colors.selected; }
    void SetSelectedWindowColor(const QColor& color);

Q_SIGNALS:
    void SignalAreaChanged(); ///< the overview may have another size now
    /// The operator wants the view's upper left corner at these fractions of the wall, which may lie outside.
    void SignalLocated(float fX, float fY);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private Q_SLOTS:
    void OnArrangementChanged();
    void OnSkinChanged();

private:
    void LoadPictures();
    void SetExpanded(bool expanded);
    void FitToPicture();
    const QPixmap& Picture() const { return m_bExpanded ? m_areaPicture : m_expandPicture; }
    QRect ContentRect() const;
    QPolygon ShrinkRegion() const;
    QPolygon ExpandRegion() const;
    bool IsOnButton(const QPoint& pos) const;
    void ShowWhatAPressDoes(const QPoint& pos);
    void LocateAround(const QPoint& pos);
    void SetColor(QColor& member, const QColor& color);
    void PaintMiniature(QPainter& painter);

    const QPointer<const WallArrangement> m_pWall;
    bool m_bExpanded = true;
    float m_fLeft = 0.0F;
    float m_fTop = 0.0F;
    float m_fWidth = 1.0F;
    float m_fHeight = 1.0F;
    bool m_bPressedOnButton = false;
    bool m_bFocusShown = false; // came by the keyboard
    WallMiniature::Colors m_colors;
    qreal m_dDensity = 1.0; // for which the pictures were loaded
    QPixmap m_areaPicture;
    QPixmap m_shrinkPicture;
    QPixmap m_expandPicture;
    QPixmap m_miniature; // null when it has to be drawn anew
};

} // namespace UICommonMdl
