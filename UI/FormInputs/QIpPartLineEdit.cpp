#include <UI/FormInputs/QIpPartLineEdit.h>

#include "IpAddress.h"
#include "LineEditMenu.h"
#include "OctetValidator.h"

#include <Common/CommonFun.h>
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegExpValidator>

namespace UICommonMdl {

QIpPartLineEdit::QIpPartLineEdit(QWidget* parent)
    : KvLineEdit(parent)
{
    setValidator(new OctetValidator(this));
    // Not in force: it would refuse the third digit of 999 instead of making it 255.
    new QRegExpValidator(
        QRegExp(QStringLiteral("^(25[0-5]|2[0-4]\\d|1\\d{2}|[1-9]\\d{0,1}|0)"), Qt::CaseSensitive), this);
    setAlignment(Qt::AlignCenter);
    connect(this, &QLineEdit::textEdited, this, &QIpPartLineEdit::text_edited);
    connect(this, &QLineEdit::textChanged, this, &QIpPartLineEdit::text_edited);
    CommonFun::SetStyleSheet(this, QStringLiteral("IpAddrEdit"), QString(), QString());
}

void QIpPartLineEdit::set_nexttab_edit(QIpPartLineEdit* edit) { m_pNextEdit = edit; }

void QIpPartLineEdit::set_front_edit(QIpPartLineEdit* edit) { m_pFrontEdit = edit; }

void QIpPartLineEdit::setDealTextEditEnable(bool enable) { m_bDealTextEdit = enable; }

void QIpPartLineEdit::focusInEvent(QFocusEvent* event)
{
    selectAll();
    KvLineEdit::focusInEvent(event);
}

void QIpPartLineEdit::GoTo(QIpPartLineEdit* edit)
{
    edit->setFocus();
    edit->selectAll();
}

void QIpPartLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste) && TakeAddress(QGuiApplication::clipboard()->text())) {
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Period && !text().isEmpty() && !hasSelectedText() && m_pNextEdit)
        GoTo(m_pNextEdit);
    if (event->key() == Qt::Key_Backspace && text().isEmpty() && m_pFrontEdit)
        m_pFrontEdit->setFocus();
    KvLineEdit::keyPressEvent(event); // the validator refuses the period
}

void QIpPartLineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction* paste = PasteAction(menu)) {
        paste->disconnect(this);
        connect(paste, &QAction::triggered, this, &QIpPartLineEdit::PasteFromMenu);
    }
    menu->popup(event->globalPos());
}

void QIpPartLineEdit::PasteFromMenu()
{
    if (!TakeAddress(QGuiApplication::clipboard()->text()))
        paste();
}

void QIpPartLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    const bool pastes = event->button() == Qt::MiddleButton && clipboard->supportsSelection();
    if (pastes && TakeAddress(clipboard->text(QClipboard::Selection)))
        return;
    KvLineEdit::mouseReleaseEvent(event);
}

void QIpPartLineEdit::dropEvent(QDropEvent* event)
{
    if (TakeAddress(event->mimeData()->text()))
        event->acceptProposedAction();
    else
        KvLineEdit::dropEvent(event);
}

bool QIpPartLineEdit::TakeAddress(const QString& text)
{
    const QStringList octets = OctetsOfAddress(text);
    if (octets.isEmpty() || isReadOnly())
        return false;
    emit addresspasted(JoinedOctets(octets));
    return true;
}

void QIpPartLineEdit::text_edited(const QString& text)
{
    if (!m_bDealTextEdit || text.isEmpty())
        return;
    if (IsOctetComplete(text) && m_pNextEdit)
        GoTo(m_pNextEdit);
    if (text.toDouble() > LargestOctet) // a number of any length
        setText(QString::number(LargestOctet));
}

} // namespace UICommonMdl
