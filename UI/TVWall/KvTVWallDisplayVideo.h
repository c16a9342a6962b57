#pragma once

#include <QWidget>

namespace UICommonMdl {

/// The video area of a window: a widget for the client to put its renderer into. Until something covers it
/// it shows a text, for example why there is no picture. The style sheet colours it.
class KvTVWallDisplayVideo : public QWidget
{
    Q_OBJECT

public:
    explicit KvTVWallDisplayVideo(QWidget* parent);

    void SetText(const QString& text);
    /// Paints such a text in the middle of an area.
    static void PaintText(QPainter& painter, const QRect& area, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};

} // namespace UICommonMdl
