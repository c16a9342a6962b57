#pragma once

#include "WindowTitle.h"

#include <QGraphicsItem>

namespace UICommonMdl {

class KvTVWallNormalButton;
class KvTVWallNormalView;
class KvTVWallNormalWindow;

/// The title bar of a window of the normal wall: its text and the buttons for audio, snapping, maximising
/// and closing.
class KvTVWallNormalTitleItem : public QGraphicsItem
{
public:
    KvTVWallNormalTitleItem(KvTVWallNormalWindow* window, KvTVWallNormalView* view);

    void SetText(const QString& text); ///< elided at its end where it does not fit
    void SetVolumeOn(bool on);
    void SetMaximized(bool maximized);
    void SetSnapped(bool snapped);
    void SetAudioButtonVisible(bool visible);
    void UpdateToolTips(); ///< in the present language
    void FitTo(const QSize& window); ///< takes its place in a window of this size
    const QList<KvTVWallNormalButton*>& Buttons() const { return m_buttons; } ///< from left to right

    QRectF boundingRect() const override { return QRectF(QPointF(0, 0), m_size); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    void PlaceButtons();

    KvTVWallNormalView* const m_pView;
    WindowTitle m_title;
    QString m_text;
    QSize m_size;
    int m_iTextWidth = 0; // left of the buttons
    QList<KvTVWallNormalButton*> m_buttons;
};

} // namespace UICommonMdl
