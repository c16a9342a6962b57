#include <UI/FormInputs/WmAddGroup.h>

#include "GroupName.h"
#include "ui_WmAddGroup.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvPushButton.h>
#include <Platform/BasicUIComponents/KvTranslatedText.h>
#include <QPointer>
#include <QRegExpValidator>
#include <QToolTip>

namespace UICommonMdl {

namespace {

constexpr int SaveAndNew = QDialogButtonBox::Open; // the third button of the base class
constexpr int UsualMaxLen = 32;

} // namespace

WmAddGroup::WmAddGroup(QWidget* parent)
    : KvCustomDialog(parent, QDialogButtonBox::Ok | QDialogButtonBox::Cancel | SaveAndNew)
{
    Init();
    setObjectName(QStringLiteral("WmAddGroup"));
    CommonFun::SetStyleSheet(this, QString(), QString(), QString());
}

WmAddGroup::~WmAddGroup() = default;

void WmAddGroup::Init()
{
    if (m_ui)
        return;
    m_ui.reset(new ::Ui::AddGroup);
    m_ui->setupUi(GetCentralWidget());
    new KvGUI::KvTranslatedText(GetButton(QDialogButtonBox::Ok), "text", [] { return tr("Save"); });
    new KvGUI::KvTranslatedText(GetButton(QDialogButtonBox::Cancel), "text", [] { return tr("Cancel"); });
    new KvGUI::KvTranslatedText(GetButton(SaveAndNew), "text", [] { return tr("Save and New"); });
    connect(this, &KvCustomDialog::SignalOtherButtonClicked, this, &WmAddGroup::OnBtnSaveAndNew);
    connect(this, &KvCustomDialog::SignalOkButtonClicked, this, &WmAddGroup::OnBtnSave);
    connect(this, &KvCustomDialog::SignalCancelButtonClicked, this, &WmAddGroup::OnClose);
    connect(m_ui->edtName, &QLineEdit::textChanged, this, &WmAddGroup::OnLineEditTextChanged);
    SetMaxLen(UsualMaxLen);
    SetNameRegExp(QRegExp());
    resize(1, 1); // the layout decides
}

/// Each name is typed without the mouse, also after a button that was clicked before had the focus.
void WmAddGroup::showEvent(QShowEvent* event)
{
    m_ui->edtName->setFocus();
    KvCustomDialog::showEvent(event);
}

void WmAddGroup::changeEvent(QEvent* event)
{
    KvCustomDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_ui->retranslateUi(GetCentralWidget());
}

void WmAddGroup::SetParentGroupID(qint64 iParentID) { m_iParentID = iParentID; }

void WmAddGroup::SetToolTip(const QString& strTip) { m_strToolTip = strTip; }

void WmAddGroup::SetIsCloseAfterSave(bool bClose) { m_bCloseAfterSave = bClose; }

void WmAddGroup::SetSaveAndNewVisible(bool bVisible) { SetButtonVisible(SaveAndNew, bVisible); }

void WmAddGroup::SetMaxLen(int iMaxLen)
{
    if (iMaxLen == m_iMaxLen)
        return;
    m_iMaxLen = iMaxLen;
    ApplyMaxLen();
}

void WmAddGroup::SetLenCheckType(NameLenCheckType_e eType)
{
    if (eType == m_iLenCheckType)
        return;
    m_iLenCheckType = eType;
    ApplyMaxLen();
}

void WmAddGroup::ApplyMaxLen()
{
    // QLineEdit takes a negative length for none.
    if (m_iLenCheckType == NameLenCheckBytes)
        m_ui->edtName->setMaxLength(qMax(0, m_iMaxLen));
    else if (m_iLenCheckType == NameLenCheckCharacters)
        m_ui->edtName->setMaxLength(m_iMaxLen > 0 ? m_iMaxLen - 1 : 0);
}

void WmAddGroup::SetNameRegExp(const QRegExp& regExp)
{
    auto* validator = new QRegExpValidator(GroupNameExpression(regExp), this);
    m_ui->edtName->setValidator(validator);
    delete m_pValidator;
    m_pValidator = validator;
}

void WmAddGroup::EmptyEditLine() { m_ui->edtName->clear(); }

void WmAddGroup::CanCloseDialog()
{
    EmptyEditLine();
    const bool close = m_bClosePending;
    m_bClosePending = false;
    if (close)
        this->close();
}

void WmAddGroup::ClearAndClose()
{
    EmptyEditLine();
    close();
}

void WmAddGroup::OnLineEditTextChanged(const QString& strText)
{
    const QString fitting = FittingGroupName(strText, m_iMaxLen, m_iLenCheckType != NameLenCheckBytes);
    if (fitting == strText)
        return;
    const int position = m_ui->edtName->cursorPosition();
    m_ui->edtName->setText(fitting);
    m_ui->edtName->setCursorPosition(position);
}

/// Returns false, and tells the operator why, when there is no name.
bool WmAddGroup::TakeName(QString& strName)
{
    m_ui->edtName->setFocus(); // for the next name, and before the tool tip, which goes with the focus
    strName = m_ui->edtName->text().trimmed();
    if (!CommonFun::IsQStrEmpty(strName))
        return true;
    QToolTip::showText(m_ui->edtName->mapToGlobal(QPoint(0, 0)), m_strToolTip, m_ui->edtName);
    return false;
}

void WmAddGroup::OnBtnSave()
{
    QString name;
    if (!TakeName(name))
        return;
    const QPointer<WmAddGroup> self(this);
    const qint64 parentId = m_iParentID;
    if (m_bCloseAfterSave)
        ClearAndClose();
    else
        m_bClosePending = true;
    if (self)
        emit SignalNewName(name);
    if (self)
        emit SignalNewName(parentId, name);
}

void WmAddGroup::OnBtnSaveAndNew()
{
    QString name;
    if (!TakeName(name))
        return;
    if (m_bCloseAfterSave)
        EmptyEditLine();
    emit SignalSaveAndNew(m_iParentID, name);
}

void WmAddGroup::OnClose() { ClearAndClose(); }

void WmAddGroup::OnCloseBtmClicked() { ClearAndClose(); }

} // namespace UICommonMdl
