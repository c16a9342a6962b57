#include <designer/DesignerWidget.h>

#include <QIcon>
#include <QWidget>

namespace UIComponentsDesigner {

DesignerWidget::DesignerWidget(const WidgetEntry& entry, QObject* parent)
    : QObject(parent)
    , m_entry(entry)
{ }

QString DesignerWidget::name() const { return QString::fromLatin1(m_entry.className); }

QString DesignerWidget::group() const { return QString::fromLatin1(m_entry.group); }

QString DesignerWidget::toolTip() const { return QString::fromLatin1(m_entry.toolTip); }

QString DesignerWidget::whatsThis() const { return toolTip(); }

QString DesignerWidget::includeFile() const { return QString::fromLatin1(m_entry.header); }

QIcon DesignerWidget::icon() const
{
    return QIcon(QStringLiteral(":/UIComponentsDesigner/icons/%1.svg").arg(QLatin1String(m_entry.icon)));
}

bool DesignerWidget::isContainer() const { return false; }

QWidget* DesignerWidget::createWidget(QWidget* parent) { return m_entry.create(parent); }

QString DesignerWidget::domXml() const
{
    const QString className = name();
    QString objectName = className.section(QStringLiteral("::"), -1);
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral(
               R"(<ui language="c++"><widget class="%1" name="%2"><property name="geometry"><rect><x>0</x><y>0</y>)"
               R"(<width>%3</width><height>%4</height></rect></property></widget></ui>)")
        .arg(className, objectName)
        .arg(m_entry.size.width())
        .arg(m_entry.size.height());
}

} // namespace UIComponentsDesigner
