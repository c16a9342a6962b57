#pragma once

#include <QDialog>
#include <UIComponentsExport.h>

class QVBoxLayout;

namespace KvGUI {

/// A dialog with the library's own title bar in place of the desktop's.
///
/// Put the content into the central widget, which has neither a layout nor an object name at first:
/// @code
/// KvGUI::KvDialog dialog(this);
/// dialog.SetTitle(tr("About"));
/// auto* layout = new QVBoxLayout(dialog.GetCentralWidget());
/// layout->addWidget(new QLabel(tr("Operator client")));
/// dialog.exec();
/// @endcode
///
/// The dialog is dragged by its title bar and closed by the button there or by Escape; both reject it.
/// It follows the skin. Its frame has a sheet of its own, inside the dialog; the sheet of the dialog
/// itself gives ordinary widgets in the central widget the library's look. A subclass or a client may
/// replace it, with CommonFun::SetStyleSheet for one that follows the skin, and then styles the content.
/// The frame's line is one pixel wide and lies below the central widget: leave a margin of 1 at the
/// sides where it should be seen.
///
/// Any slot may delete the dialog, also one of accepted(), rejected() and finished().
class UICOMPONENTS_EXPORT KvDialog : public QDialog
{
    Q_OBJECT

public:
    /// What the title bar offers; values can be combined.
    enum DialogFlag
    {
        NoFlag = 0, ///< no button; Escape still rejects the dialog
        CloseButton = 1 ///< a button that rejects the dialog
    };

    /// Height of the title bar in pixels.
    static constexpr int kTitleBarHeight = 34;

    explicit KvDialog(QWidget* parent = nullptr, int iDialogFlags = CloseButton);

    /// The title, which is also the window's title; shortened on the bar when it is too long.
    void SetTitle(const QString& strTitle);

    /// The place for the content; never null, owned by the dialog.
    QWidget* GetCentralWidget() const;

    /// Ends the dialog as QDialog::done() does; a slot of its signals may delete it.
    void done(int iResult) override;

public Q_SLOTS:
    /// The title bar's button was clicked or Escape pressed. Rejects the dialog; override it to do more.
    virtual void OnCloseBtmClicked();

protected:
    /// The frame's layout from top to bottom: title bar, central widget, and what a subclass adds.
    QVBoxLayout* FrameLayout() const;

    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* m_pCentralWidget;
    QVBoxLayout* m_pFrameLayout;
};

} // namespace KvGUI
