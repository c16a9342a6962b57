#pragma once

#include <UIComponentsExport.h>

#include <QDialog>
#include <QPointer>
#include <QVector>
#include <memory>

class QPropertyAnimation;

namespace UICommonMdl {

namespace Ui {
class CFloatDialog;
}

/// A side panel that docks to the upper right corner of its parent, takes the parent's full height, and
/// slides in from the right and out to the right.
///
/// Give it a width and its content, show the dialog once, and slide the panel in and out:
/// @code
///     auto* panel = new UICommonMdl::CFloatDialog(page);
///     panel->SetTitle(tr("Details"));
///     panel->SetFixWidth(280);
///     panel->AddCentralWidget(details);
///     panel->show();
///     connect(panel, &UICommonMdl::CFloatDialog::SignalBtnCloseClicked, panel,
///             [panel] { panel->AnimaShow(false); });
///     panel->AnimaShow(true);
/// @endcode
///
/// The dialog itself is a frameless window that stays where the panel is when it is shown. It is only as
/// large as the part of the panel that is to be seen, so that it hides and holds up nothing else.
///
/// The panel follows its parent: it is placed again when the parent or an ancestor moves, resizes or gets
/// another parent. When the parent hides, the panel goes with it at once and comes back with it. A panel
/// that slid out does not come back.
///
/// Keys that the content does not want end here: Escape closes nothing. Shortcuts of the parent's window that
/// shall work in the panel too have the context Qt::ApplicationShortcut. A request to close from the desktop
/// counts as a click on the close button. Any slot may delete the dialog.
class UICOMPONENTS_EXPORT CFloatDialog : public QDialog
{
    Q_OBJECT

public:
    /// The panel is out; the dialog has the object name "CFloatDialog".
    explicit CFloatDialog(QWidget* parent);
    ~CFloatDialog() override;

    /// @name Content
    /// @{

    /// Adds @p widget to the panel below those that were added before. Null does nothing.
    void AddCentralWidget(QWidget* widget);

    /// The place for the content, below the title bar; never null.
    QWidget* GetCentralWidget() const;

    void SetTitle(const QString& strTitle); ///< the text of the title bar, plain

    /// Sets the width of dialog and panel in pixels; a negative one counts as 0. The right edge stays where
    /// the parent's is.
    void SetFixWidth(int iWidth);

    /// Appends @p strStyle to the dialog's style sheet. It stays when the skin changes.
    void SetCentralWidgetStyle(const QString& strStyle);

    void InitUI(); ///< hides the information icon beside the title
    /// @}

    /// @name In and out
    /// @{

    /// Slides the panel in (true) or out, in half a second. While it slides, the opposite request turns it
    /// back on its way, which takes as long as it had slid; the same request does nothing.
    void AnimaShow(bool show);

    /// Brings the panel in (true) or out at once. A panel that was taken out so comes back when the parent
    /// is shown again. Nothing when that was the last request.
    void DirectShow(bool show);

    bool IsShown() const; ///< it is in, or slides either way
    QPoint HiddenPos(); ///< where the panel is when it is out: (its width, 0)
    /// @}

    /// @name Place
    ///
    /// Called by the dialog itself whenever the parent's place or size, or its own width, may be another one.
    /// @{

    void UpdateHeight(int h); ///< fixes the dialog's height in pixels; 0 or less leaves it
    void UpdatePos(); ///< moves the dialog to the parent's upper right corner
    /// @}

    /// Ends the dialog as QDialog::done() does; a slot of its signals may delete it.
    void done(int iResult) override;

public Q_SLOTS:
    void OnBtnCloseClicked(); ///< emits SignalBtnCloseClicked()

Q_SIGNALS:
    void SignalAnimationFinished(); ///< a slide has reached its end
    void SignalBtnCloseClicked(); ///< the panel stays in until the client takes it out
    void SignalParentChange(); ///< an ancestor has another parent now

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    static constexpr int m_Duration = 500; // milliseconds
    static constexpr int m_Margin = 0; // pixels

    void WatchAncestors();
    void FollowParent(const QEvent& event);
    bool IsSliding() const;
    void PlacePanel();
    void UpdateShape();
    void ShowStep();
    void GiveFocusBack();
    void LoadStyleSheet();

    std::unique_ptr<Ui::CFloatDialog> m_ui;
    QWidget* m_floatWgt;
    QPropertyAnimation* m_pAnimation;
    QVector<QPointer<QWidget>> m_watched; // the ancestors
    QString m_strSkinSheet; // the part of the style sheet that is the skin's
    bool m_bShown = false;
    bool m_bShowWithParent = false;
};

} // namespace UICommonMdl
