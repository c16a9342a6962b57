#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QRect>
#include <QString>

class QColor;
class QPainter;

namespace UICommonMdl {

/// The parts of a window's title bar that every kind of wall has in common: its text and how it is drawn,
/// the buttons and their tool tips, and where bar and video area stand in a window.
class WindowTitle
{
    Q_DECLARE_TR_FUNCTIONS(UICommonMdl::WindowTitle)

public:
    enum class Button
    {
        Volume,
        Snap,
        Max,
        Close
    };

    /// What a button says: its action. @p on: the volume is on, the window is snapped, is maximised.
    static QString ToolTip(Button button, bool on);
    static QString Numbered(int number); ///< "Window 1"; empty for a number below 1
    /// Number and content text in one; either may be empty.
    static QString Joined(const QString& title, const QString& content);

    static QRect BarRect(const QSize& window); ///< of the title bar in a window of this size
    static QRect VideoRect(const QSize& window); ///< of the video area; reaches over the lower edge

    /// Draws a text where its own direction starts in @p bar: at the left, and at the right for a text that
    /// runs from right to left. Where it does not fit, it ends with an ellipsis. The width is measured again
    /// only for another text or font.
    void Draw(QPainter& painter, const QRect& bar, const QString& text, const QColor& color);

private:
    QString m_measuredText;
    QFont m_measuredFont;
    int m_textWidth = 0;
};

} // namespace UICommonMdl
