#include <UI/LinkWeb/CActiveXLinkWebCtrl.h>

#include <Platform/Automation/AutomationRegistry.h>
#include <Platform/Automation/HostedControl.h>
#include <Platform/Automation/LinkWebMembers.h>

#include <QChildEvent>
#include <QPointer>
#include <QResizeEvent>
#include <QUrl>

namespace UICommonMdl {

namespace {

bool IsLoadReport(const QString& name)
{
    return name == QLatin1String("initComplete") || name == QLatin1String("initMComplete");
}

/// Events that are to go on to the widgets behind the page when the page does not use them.
bool IsPassedOn(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
        return true;
    default:
        return false;
    }
}

} // namespace

CActiveXLinkWebCtrl::CActiveXLinkWebCtrl(QWidget* parent)
    : QWidget(parent)
{ }

CActiveXLinkWebCtrl::~CActiveXLinkWebCtrl()
{
    // Out of the member first: while the control goes, its events still pass this widget's filter.
    const std::unique_ptr<Automation::HostedControl> control = std::move(m_pControl);
    if (!control)
        return;
    control->dynamicCall(LINKWEB::AddListenerMember, {qulonglong(0)});
    control->clear();
}

bool CActiveXLinkWebCtrl::HasControl() const { return m_pControl != nullptr; }

QString CActiveXLinkWebCtrl::GetUrl() { return m_strUrl; }

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes a copy
void CActiveXLinkWebCtrl::SetUrl(QString url)
{
    if (!QUrl(url, QUrl::TolerantMode).isValid())
        return;
    m_strUrl = url;
    if (!m_pControl && !CreateControl())
        return;
    // A control may call back at any moment, and a slot may then delete this widget.
    const QPointer<CActiveXLinkWebCtrl> alive(this);
    const auto listener = reinterpret_cast<quintptr>(static_cast<LINKWEB::ILinkWebAPI*>(this));
    m_pControl->dynamicCall(LINKWEB::AddListenerMember, {qulonglong(listener)});
    if (alive)
        m_pControl->dynamicCall(LINKWEB::LoadMember, {url, 0, QString(), QString()});
    if (alive)
        m_pControl->show();
}

bool CActiveXLinkWebCtrl::CreateControl()
{
    m_pControl = Automation::AutomationRegistry::CreateControl(this);
    if (!m_pControl)
        return false;
    if (QWidget* widget = m_pControl->widget())
        widget->setGeometry(rect());
    WatchControl();
    m_pControl->setControl(LINKWEB::ControlClassId);
    return true;
}

void CActiveXLinkWebCtrl::WatchControl()
{
    QWidget* widget = m_pControl->widget();
    if (!widget)
        return;
    widget->installEventFilter(this);
    for (QObject* child : widget->children())
        child->installEventFilter(this);
}

bool CActiveXLinkWebCtrl::IsWatched(const QObject* object) const
{
    const QWidget* widget = m_pControl ? m_pControl->widget() : nullptr;
    return widget && (object == widget || (object->isWidgetType() && object->parent() == widget));
}

bool CActiveXLinkWebCtrl::eventFilter(QObject* watched, QEvent* event)
{
    if (IsWatched(watched)) {
        if (IsPassedOn(event->type()))
            event->ignore();
        // Only the control's own children: theirs have other parents.
        if (event->type() == QEvent::ChildAdded && watched == m_pControl->widget())
            static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    }
    return QWidget::eventFilter(watched, event);
}

void CActiveXLinkWebCtrl::resizeEvent(QResizeEvent* event)
{
    if (m_pControl && m_pControl->winId() != 0) {
        const QPointer<CActiveXLinkWebCtrl> alive(this);
        if (QWidget* widget = m_pControl->widget())
            widget->setGeometry(QRect(QPoint(0, 0), event->size()));
        ExecuteJavaScript(QStringLiteral("zoomChange()"));
        if (!alive)
            return;
    }
    QWidget::resizeEvent(event);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes a copy
void CActiveXLinkWebCtrl::ExecuteJavaScript(QString script)
{
    if (m_pControl)
        m_pControl->dynamicCall(LINKWEB::RunScriptMember, {script});
}

int CActiveXLinkWebCtrl::MainCall(QString name, QString param)
{
    // NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes copies
    Q_EMIT sgnMainCall(name, param);
    return 0;
}

long CActiveXLinkWebCtrl::CallBack(const char* name, const char* param)
{
    const QString nameText = QString::fromUtf8(name);
    const QString paramText = QString::fromLocal8Bit(param);
    const QPointer<CActiveXLinkWebCtrl> alive(this);
    if (IsLoadReport(nameText))
        Q_EMIT sgnLoadFinished(true);
    if (alive)
        MainCall(nameText, paramText);
    return 0;
}

void CActiveXLinkWebCtrl::Reflush() { }

void CActiveXLinkWebCtrl::clearCache() { }

} // namespace UICommonMdl
