#include <UI/FormInputs/QIpAddrEdit.h>

#include "IpAddress.h"

#include <Common/CommonFun.h>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QStyle>
#include <UI/FormInputs/QIpPartLineEdit.h>
#include <algorithm>

namespace UICommonMdl {

namespace {

constexpr int DotWidth = 5; // pixels
constexpr int SymbolLeft = 2 + 3; // pixels; level with the asterisk of a CRequiredEdit
constexpr int SymbolWidth = 6; // pixels, at least
constexpr int OctetPadding = 8; // pixels beside the digits of an octet, together

void DealWithEdits(const std::array<QIpPartLineEdit*, OctetCount>& octets, bool enable)
{
    for (QIpPartLineEdit* octet : octets)
        octet->setDealTextEditEnable(enable);
}

} // namespace

QIpAddrEdit::QIpAddrEdit(QWidget* parent)
    : QFrame(parent)
    , m_pSymbolRequired(new QLabel(QStringLiteral("*"), this))
{
    setObjectName(QStringLiteral("QIpAddrEdit"));
    setLayoutDirection(Qt::LeftToRight); // an address is written so in every language
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    BuildOctets();
    BuildDots();
    BuildSymbol();
    NameOctets();
    CommonFun::SetStyleSheet(this, QStringLiteral("IpAddrEdit"), QString(), QString());
}

/// A client's slot may delete the field while the signal of an octet is on its way up. Qt still works with
/// that octet afterwards, so the octets live until the event loop comes round.
QIpAddrEdit::~QIpAddrEdit()
{
    if (m_iEmitting == 0)
        return;
    for (QIpPartLineEdit* octet : m_octets) {
        octet->disconnect(this);
        octet->removeEventFilter(this);
        octet->setParent(nullptr);
        octet->deleteLater();
    }
}

void QIpAddrEdit::BuildOctets()
{
    for (QIpPartLineEdit*& octet : m_octets) {
        octet = new QIpPartLineEdit(this);
        octet->installEventFilter(this);
    }
    for (size_t i = 0; i + 1 < m_octets.size(); ++i) {
        QIpPartLineEdit* left = m_octets.at(i);
        QIpPartLineEdit* right = m_octets.at(i + 1);
        setTabOrder(left, right);
        left->set_nexttab_edit(right);
        right->set_front_edit(left);
    }
    for (QIpPartLineEdit* octet : m_octets) {
        connect(octet, &QLineEdit::textChanged, this, &QIpAddrEdit::textchangedslot);
        connect(octet, &QLineEdit::textEdited, this, &QIpAddrEdit::texteditedslot);
        connect(octet, &QIpPartLineEdit::addresspasted, this, &QIpAddrEdit::TakeAddress);
    }
    setFocusPolicy(Qt::StrongFocus); // a label's shortcut asks for it
    setFocusProxy(m_octets.front());
}

void QIpAddrEdit::BuildDots()
{
    int number = 0;
    for (QLabel*& dot : m_dots) {
        dot = new QLabel(QStringLiteral("."), this);
        dot->setObjectName(QStringLiteral("QIpAddrEdit--labeldot%1_").arg(++number));
        dot->setAlignment(Qt::AlignCenter);
    }
}

void QIpAddrEdit::BuildSymbol()
{
    m_pSymbolRequired->setObjectName(QStringLiteral("QIpAddrEdit--m_pSymbolRequired"));
    m_pSymbolRequired->setMinimumSize(SymbolWidth, height());
    m_pSymbolRequired->move(SymbolLeft, 0);
    m_pSymbolRequired->hide();
}

void QIpAddrEdit::NameOctets()
{
    const QString name = accessibleName().isEmpty() ? tr("IP address") : accessibleName();
    int number = 0;
    for (QIpPartLineEdit* octet : m_octets)
        octet->setAccessibleName(tr("%1, octet %2").arg(name).arg(++number));
}

void QIpAddrEdit::settext(const QString& text)
{
    const QPointer<QIpAddrEdit> self(this);
    const QStringList parts = text.split(QLatin1Char('.'));
    for (int i = 0; i < OctetCount && self; ++i) {
        DealWithEdits(m_octets, false); // a slot that sets an address has switched it on again
        m_octets.at(static_cast<size_t>(i))->setText(parts.value(i));
    }
    if (self)
        DealWithEdits(m_octets, true);
}

QString QIpAddrEdit::text()
{
    QStringList octets;
    for (const QIpPartLineEdit* octet : m_octets)
        octets.append(octet->text());
    return JoinedOctets(octets);
}

void QIpAddrEdit::clear()
{
    const QPointer<QIpAddrEdit> self(this);
    for (size_t i = 0; i < OctetCount && self; ++i)
        m_octets.at(i)->clear();
}

void QIpAddrEdit::TakeAddress(const QString& address)
{
    const QPointer<QIpAddrEdit> self(this);
    ForgetError();
    settext(address);
    if (!self)
        return;
    m_octets.back()->setFocus();
    m_octets.back()->deselect();
    m_octets.back()->end(false);
    Emit(&QIpAddrEdit::textedited);
}

void QIpAddrEdit::setRequired(bool required)
{
    m_bRequired = required;
    m_pSymbolRequired->setVisible(required);
    AdjustPartLenth();
    updateGeometry();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes a copy
void QIpAddrEdit::showErrorHint(bool show, QString text, CTipLabel::DisplayPosition position)
{
    m_bError = show;
    RefreshStyle();
    if (show)
        CTipLabel::Instance()->ShowTip(text, this, position);
    else
        CTipLabel::Instance()->HideTip(this);
}

void QIpAddrEdit::RefreshStyle()
{
    style()->unpolish(this);
    style()->polish(this);
    update();
}

/// The signal carries text(); afterwards the object may be gone.
void QIpAddrEdit::Emit(void (QIpAddrEdit::*signal)(const QString&))
{
    const QPointer<QIpAddrEdit> self(this);
    ++m_iEmitting;
    emit(this->*signal)(text());
    if (self)
        --m_iEmitting;
}

void QIpAddrEdit::textchangedslot(const QString&) { Emit(&QIpAddrEdit::textchanged); }

void QIpAddrEdit::texteditedslot(const QString&)
{
    ForgetError();
    Emit(&QIpAddrEdit::textedited);
}

/// Before an edit is reported: a slot may find the new address wrong, too.
void QIpAddrEdit::ForgetError()
{
    if (m_bError)
        showErrorHint(false, QString(), CTipLabel::None);
}

bool QIpAddrEdit::eventFilter(QObject* watched, QEvent* event)
{
    const bool focusEvent = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (focusEvent && std::find(m_octets.begin(), m_octets.end(), watched) != m_octets.end()) {
        m_bNotice = event->type() == QEvent::FocusIn;
        RefreshStyle();
    }
    return QFrame::eventFilter(watched, event);
}

void QIpAddrEdit::keyPressEvent(QKeyEvent* event)
{
    const QPointer<QIpAddrEdit> self(this);
    ++m_iEmitting;
    if (event->key() == Qt::Key_Enter)
        emit sgnEnterPress();
    if (!self)
        return;
    --m_iEmitting;
    QFrame::keyPressEvent(event);
}

void QIpAddrEdit::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    NameOctets();
    AdjustPartLenth();
}

void QIpAddrEdit::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    AdjustPartLenth();
}

void QIpAddrEdit::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        NameOctets();
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) {
        updateGeometry();
        AdjustPartLenth();
    }
}

/// The frame's own padding counts: the octets fill what its sheet leaves.
void QIpAddrEdit::AdjustPartLenth()
{
    QRect area = contentsRect();
    m_pSymbolRequired->setMinimumHeight(height());
    const QRect left(SymbolLeft, 0, qMax(SymbolWidth, m_pSymbolRequired->sizeHint().width()), height());
    // The address runs from left to right everywhere; its mark stands where those of other inputs do.
    const bool mirrored = parentWidget() != nullptr && parentWidget()->isRightToLeft();
    const QRect symbol = mirrored ? QStyle::visualRect(Qt::RightToLeft, rect(), left) : left;
    m_pSymbolRequired->setGeometry(symbol);
    if (m_bRequired && mirrored)
        area.setRight(qMin(area.right(), symbol.left() - 1));
    else if (m_bRequired)
        area.setLeft(qMax(area.left(), symbol.right() + 1));
    const IpAddrLayout layout = LayOutOctets(area, DotWidth);
    for (int i = 0; i < OctetCount; ++i)
        m_octets.at(static_cast<size_t>(i))->setGeometry(layout.octets.at(i));
    for (int i = 0; i + 1 < OctetCount; ++i)
        m_dots.at(static_cast<size_t>(i))->setGeometry(layout.dots.at(i));
}

QSize QIpAddrEdit::sizeHint() const { return minimumSizeHint() + QSize(4 * OctetPadding, 0); }

QSize QIpAddrEdit::minimumSizeHint() const
{
    const QMargins margins = contentsMargins();
    const int digits = fontMetrics().horizontalAdvance(QStringLiteral("000")) + OctetPadding;
    const int symbol = m_bRequired ? SymbolLeft + SymbolWidth : 0;
    const int width = OctetCount * digits + (OctetCount - 1) * DotWidth + symbol;
    const int height = m_octets.front()->sizeHint().height();
    return {width + margins.left() + margins.right(), height + margins.top() + margins.bottom()};
}

} // namespace UICommonMdl
