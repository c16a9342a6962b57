#pragma once

#include <QBasicTimer>
#include <QPointer>
#include <QWidget>
#include <UIComponentsExport.h>

class QPropertyAnimation;
class QTextEdit;

namespace UICommonMdl {

/// The error bubble of input forms: a small window with an arrow that points at the input it explains. It
/// fades in, stays for a while and fades out.
///
/// There is one bubble in a process, so that a form never shows two. It takes neither the focus nor clicks:
/// what lies under it can be used as if it were not there.
/// @code
/// if (edit->text().isEmpty())
///     CTipLabel::Instance()->ShowTip(tr("Enter a name"), edit, CTipLabel::Left);
/// @endcode
/// The bubble goes at once when its anchor is hidden or deleted, and when the anchor's window moves.
class UICOMPONENTS_EXPORT CTipLabel : public QWidget
{
    Q_OBJECT

public:
    /// The side of the bubble that carries the arrow. The bubble stands on the other side of its anchor:
    /// with its arrow on the left it stands to the right of the anchor.
    enum DisplayPosition
    {
        Left = 0, ///< the bubble stands to the right of the anchor
        Top = 1, ///< the bubble stands below the anchor
        Right = 2, ///< the bubble stands to the left of the anchor
        Bottom = 3, ///< the bubble stands above the anchor
        None = 4 ///< no arrow; the bubble stands below the anchor
    };

    /// The one bubble, made by the first call; never null and never destroyed. Needs the application object.
    static CTipLabel* Instance();

    /// Shows @p text beside @p anchor and starts the display time anew; what was shown before is replaced.
    ///
    /// The bubble is 200 to 300 pixels wide; a wider text is wrapped. Where the screen has no room on the
    /// wanted side, the bubble changes to the other side of the anchor or moves along it; it always lies on
    /// one screen.
    /// @param text plain text; when empty, the bubble is hidden
    /// @param anchor the input, or any visible widget; null hides the bubble
    /// @param position another value than those named counts as None
    void ShowTip(const QString& text, QWidget* anchor, DisplayPosition position);

    /// Hides the bubble at once, without fading.
    /// @param anchor only when it is shown for this widget; null: in any case
    void HideTip(const QWidget* anchor = nullptr);

    /// Sets how long the next bubble stays, from its appearance to the beginning of its fading out; 3000 at
    /// first.
    /// @param milliseconds 300 and less are ignored
    void SetDisplayTime(int milliseconds);

private Q_SLOTS:
    void OnFadeOutFinished();

protected:
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CTipLabel();
    ~CTipLabel() override = default;

    QPropertyAnimation* MakeFade(double from, double to);
    void LetClicksThrough();
    QSize BodySize(const QString& text) const;
    void SetText(const QString& text);
    int MoveLinesTogether(int lineHeight);
    int SetMargins(int beside, int above);
    void SetAnchor(QWidget* anchor);

    int m_iDisplayPosition = None; ///< of the bubble as it stands now
    QBasicTimer m_hideTimer;
    int m_iDisplayTime = 3000; ///< milliseconds
    QTextEdit* m_pTextBox;
    QPropertyAnimation* m_pFadeIn;
    QPropertyAnimation* m_pFadeOut;
    int m_iArrowStart = 0; ///< pixels from the bubble's left or upper edge to the arrow
    QPointer<QWidget> m_pAnchor;
    QPointer<QWidget> m_pAnchorWindow;
    QMetaObject::Connection m_anchorDestroyed;
};

} // namespace UICommonMdl
