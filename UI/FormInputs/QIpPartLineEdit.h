#pragma once

#include <Platform/BasicUIComponents/KvLineEdit.h>

#include <QPointer>

namespace UICommonMdl {

/// One octet of QIpAddrEdit: takes numbers from 0 to 255 and hands the focus on to its neighbours while the
/// operator types. The period goes to the next octet, Backspace in an empty octet to the one before.
///
/// A number above 255 becomes 255. A whole dotted address, pasted or dropped here, is not put into this
/// octet but reported by addresspasted().
class UICOMPONENTS_EXPORT QIpPartLineEdit : public KvGUI::KvLineEdit
{
    Q_OBJECT

public:
    explicit QIpPartLineEdit(QWidget* parent = nullptr);

    /// Sets the octet to the right, which gets the focus when this one is complete; null for the last octet.
    /// Both neighbours may be deleted before this one.
    void set_nexttab_edit(QIpPartLineEdit* edit);
    /// Sets the octet to the left; null for the first octet.
    void set_front_edit(QIpPartLineEdit* edit);

    /// While switched off, a change of the text neither moves the focus nor is limited to 255: for setting
    /// texts by the program. Switched on at first.
    void setDealTextEditEnable(bool enable);

Q_SIGNALS:
    /// The operator pasted or dropped @p address, four octets with dots, blanks around it removed.
    void addresspasted(const QString& address);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private Q_SLOTS:
    void text_edited(const QString& text);

private:
    static void GoTo(QIpPartLineEdit* edit);
    bool TakeAddress(const QString& text);
    void PasteFromMenu();

    QPointer<QIpPartLineEdit> m_pNextEdit;
    QPointer<QIpPartLineEdit> m_pFrontEdit;
    bool m_bDealTextEdit = true;
};

} // namespace UICommonMdl
