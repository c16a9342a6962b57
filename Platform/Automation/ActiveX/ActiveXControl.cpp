#include <Platform/Automation/ActiveX/ActiveXControl.h>

namespace ActiveX {

ActiveXControl::ActiveXControl(QWidget* parent)
    : m_pWidget(new QAxWidget(parent, Qt::WindowFlags()))
{ }

ActiveXControl::~ActiveXControl() { delete m_pWidget.data(); }

QWidget* ActiveXControl::widget() const { return m_pWidget; }

bool ActiveXControl::setControl(const QString& classId)
{
    return m_pWidget && m_pWidget->setControl(classId);
}

QVariant ActiveXControl::dynamicCall(const QString& member, const QVariantList& arguments)
{
    if (!m_pWidget || m_pWidget->isNull())
        return QVariant();
    QVariantList values = arguments; // the call may write into them
    return m_pWidget->dynamicCall(member.toLatin1().constData(), values);
}

WId ActiveXControl::winId() const { return m_pWidget ? m_pWidget->winId() : 0; }

void ActiveXControl::show()
{
    if (m_pWidget)
        m_pWidget->show();
}

void ActiveXControl::clear()
{
    if (m_pWidget)
        m_pWidget->clear();
}

} // namespace ActiveX
