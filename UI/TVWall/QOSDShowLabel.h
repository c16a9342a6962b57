#pragma once

#include <QColor>
#include <QLabel>
#include <QStringList>

namespace UICommonMdl {

/// A rolling text overlay: draws its text in its colours and moves it in one of five ways.
///
/// The label has no timer of its own: whoever owns several of them calls Advance() for each with the time
/// that has passed, so that all of them move in step.
class QOSDShowLabel : public QLabel
{
    Q_OBJECT

public:
    /// How the text moves. Any other value moves it right to left.
    enum RollMode
    {
        RightToLeft = 0,
        LeftToRight = 1,
        TopToBottom = 2,
        BottomToTop = 3,
        BackAndForth = 4
    };

    /// All that a label shows.
    struct Content
    {
        QString text; ///< a line feed separates lines
        int fontPixelSize = 1; ///< whatever an application's sheet says about labels
        QColor textColor;
        QColor backColor;
        bool roll = true; ///< false: the text stands still
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
        int rollMode = RightToLeft;
    };

    explicit QOSDShowLabel(QWidget* parent);

    /// Shows @p content from the start of its way. Set the font's face and the
    /// label's size first: the text is padded to its width.
    void SetContent(const Content& content);
    /// Whether the text moves at all.
    bool IsRolling() const;
    /// Moves the text on by the way of @p milliseconds.
    void Advance(int milliseconds);
    /// Offset of the text from its resting place, in pixels.
    QPoint TextOffset() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double WayLength() const;
    QFont TextFont() const;

    Content m_content;
    QStringList m_lines;
    QSize m_textSize;
    double m_way = 0.0; // pixels travelled since the start of this round
};

} // namespace UICommonMdl
