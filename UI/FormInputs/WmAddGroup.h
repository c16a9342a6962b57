#pragma once

#include <Platform/BasicUIComponents/KvCustomDialog.h>

#include <QRegExp>
#include <QScopedPointer>

class QValidator;

namespace Ui {
class AddGroup;
}

namespace UICommonMdl {

/// The dialog in which the operator types the name of a new group under a given parent group.
/// @code
/// WmAddGroup dialog(this);
/// dialog.SetTitle(tr("New group"));
/// dialog.SetParentGroupID(parent);
/// dialog.SetToolTip(tr("Enter a name"));
/// connect(&dialog, QOverload<qint64, const QString&>::of(&WmAddGroup::SignalNewName), this, &Tree::Add);
/// connect(&dialog, &WmAddGroup::SignalSaveAndNew, this, &Tree::Add);
/// dialog.exec();
/// @endcode
/// "Save" reports the name and closes, "Save and New" reports it and stays for the next one. A name of
/// nothing but blanks is answered by a tool tip. Names are reported without the white space around them.
///
/// Where a server has the last word, call SetIsCloseAfterSave(false), and CanCloseDialog() once it has
/// accepted the name. Any slot may delete the dialog.
class UICOMPONENTS_EXPORT WmAddGroup : public KvGUI::KvCustomDialog
{
    Q_OBJECT

public:
    /// How the length of the name is counted while it is typed.
    enum NameLenCheckType_e : int
    {
        NameLenCheckBytes
        = 0, ///< the name has at most the maximum length in bytes of the local 8-bit encoding
        NameLenCheckCharacters = 1 ///< the name has fewer characters (UTF-16 units) than the maximum length
    };

    explicit WmAddGroup(QWidget* parent = nullptr);
    ~WmAddGroup() override;

    /// Builds the dialog's content. The constructor has called it; further calls do nothing.
    void Init();

    void SetParentGroupID(qint64 iParentID); ///< reported with each name; -1 at first
    void SetToolTip(const QString& strTip); ///< shown for a blank name; empty at first, which shows nothing

    /// Whether "Save" closes the dialog; true at first. Otherwise CanCloseDialog() does.
    void SetIsCloseAfterSave(bool bClose);

    void SetSaveAndNewVisible(bool bVisible); ///< the button "Save and New"; shown at first

    /// Sets the longest name, counted by SetLenCheckType(); 32 at first. What is typed beyond it is cut. A
    /// name that stands in the edit is cut too when it has more characters.
    void SetMaxLen(int iMaxLen);

    /// Sets how names are counted; NameLenCheckBytes at first. Another value than those named counts
    /// characters too, and leaves what can be typed as it was.
    void SetLenCheckType(NameLenCheckType_e eType);

    /// Sets which names can be typed.
    /// @param regExp must match the whole name. When it is invalid or its pattern empty, the default: all
    ///        characters but control characters, the quotation mark, "#", "$", "*", "/" and U+FFFE, U+FFFF.
    void SetNameRegExp(const QRegExp& regExp);

    void EmptyEditLine(); ///< clears the name

    /// Clears the name, and closes the dialog when a "Save" since the last call has not closed it.
    void CanCloseDialog();

public Q_SLOTS:
    void OnBtnSave(); ///< reports the name by SignalNewName() and closes; a blank one gets a tool tip
    void OnBtnSaveAndNew(); ///< reports the name by SignalSaveAndNew(); a blank one gets a tool tip
    void OnClose(); ///< clears the name and closes
    void OnCloseBtmClicked() override; ///< clears the name and closes
    void OnLineEditTextChanged(const QString& strText); ///< cuts what was typed to the maximum length

Q_SIGNALS:
    void SignalNewName(const QString& strName); ///< "Save" was pressed
    void SignalNewName(qint64 iParentID, const QString& strName); ///< the same; comes second
    void SignalSaveAndNew(qint64 iParentID, const QString& strName); ///< "Save and New" was pressed

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ApplyMaxLen();
    bool TakeName(QString& strName);
    void ClearAndClose();

    QScopedPointer<::Ui::AddGroup> m_ui;
    qint64 m_iParentID = -1;
    QString m_strToolTip;
    int m_iLenCheckType = NameLenCheckBytes;
    bool m_bCloseAfterSave = true;
    bool m_bClosePending = false;
    int m_iMaxLen = 0;
    QValidator* m_pValidator = nullptr;
};

} // namespace UICommonMdl
