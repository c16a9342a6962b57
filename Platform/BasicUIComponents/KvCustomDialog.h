#pragma once

#include <Platform/BasicUIComponents/KvDialog.h>
#include <QDialogButtonBox>
#include <QMap>
#include <QPointer>

class QHBoxLayout;

namespace KvGUI {

class KvPushButton;

/// A KvDialog with a row of up to three buttons below the central widget: OK, Cancel and one more.
///
/// The buttons are named by the values of QDialogButtonBox::StandardButton. They only emit their signals:
/// what a click does is the client's to say, for example after it has looked at the input.
/// @code
/// KvGUI::KvCustomDialog dialog(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
/// connect(&dialog, &KvGUI::KvCustomDialog::SignalOkButtonClicked, &dialog, &QDialog::accept);
/// connect(&dialog, &KvGUI::KvCustomDialog::SignalCancelButtonClicked, &dialog, &QDialog::reject);
/// @endcode
/// OK is the default button, which the Enter key presses from any input of the dialog. Any slot may delete
/// the dialog.
class UICOMPONENTS_EXPORT KvCustomDialog : public KvDialog
{
    Q_OBJECT

public:
    /// Height of the row of buttons in pixels.
    static constexpr int kButtonBarHeight = 46;

    /// @param iButtons the buttons: QDialogButtonBox::Ok, QDialogButtonBox::Cancel and at most one other
    ///        value of QDialogButtonBox::StandardButton, combined; of several others the lowest counts.
    ///        Each button has its standard text at first. Without any there is no row.
    /// @param iDialogFlags see KvDialog::DialogFlag
    explicit KvCustomDialog(
        QWidget* parent = nullptr, int iButtons = QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
        int iDialogFlags = CloseButton);

    /// The button of the value @p iButton; null when the dialog has none of that value, or the client has
    /// deleted it.
    KvPushButton* GetButton(int iButton) const;

    /// Shows or hides the button. The Enter key does not press a hidden one. A value that the dialog has
    /// no button for does nothing, here and below.
    void SetButtonVisible(int iButton, bool bVisible);

    /// Sets the button's text; "&" before a letter makes it the button's shortcut. The standard text
    /// follows the language that Qt's own texts are in, this one stays as it is.
    void SetButtonText(int iButton, const QString& strText);

    /// Lets the button be pressed or not.
    void SetButtonEnabled(int iButton, bool bEnabled);

Q_SIGNALS:
    void SignalOkButtonClicked(); ///< by mouse, Space or Enter; the dialog stays open
    void SignalCancelButtonClicked(); ///< not for Escape or the title bar's button; the dialog stays open
    void SignalOtherButtonClicked(); ///< the third button; the dialog stays open

private:
    void AddButton(QHBoxLayout* row, int iButton, void (KvCustomDialog::*clicked)());

    QMap<int, QPointer<KvPushButton>> m_buttons; ///< by their value
};

} // namespace KvGUI
