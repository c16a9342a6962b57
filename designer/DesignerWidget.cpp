#include <designer/DesignerWidget.h>

#include <Platform/BasicUIComponents/KvSkin.h>

#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QWidget>

namespace UIComponentsDesigner {

namespace {

constexpr int IconSize = 22; // pixels, as in Designer's widget box

} // namespace

DesignerWidget::DesignerWidget(const WidgetEntry& entry, QObject* parent)
    : QObject(parent)
    , m_entry(entry)
{ }

QString DesignerWidget::name() const { return QString::fromLatin1(m_entry.className); }

QString DesignerWidget::group() const { return QString::fromLatin1(m_entry.group); }

QString DesignerWidget::toolTip() const { return QString::fromLatin1(m_entry.toolTip); }

QString DesignerWidget::whatsThis() const { return toolTip(); }

QString DesignerWidget::includeFile() const { return QString::fromLatin1(m_entry.header); }

/// As pixmaps: Designer's widget box passes over icons without sizes, and an SVG picture has none.
QIcon DesignerWidget::icon() const
{
    const QIcon drawing(
        QStringLiteral(":/UIComponentsDesigner/icons/%1.svg").arg(QLatin1String(m_entry.icon)));
    QIcon icon;
    for (const int size : {IconSize, 2 * IconSize})
        icon.addPixmap(drawing.pixmap(size, size));
    return icon;
}

bool DesignerWidget::isContainer() const { return false; }

void DesignerWidget::initialize(QDesignerFormEditorInterface*)
{
    m_bInDesigner = true;
    // Designer paints the form itself, in the desktop's colours: the signs of the other skin would not be
    // seen.
    const bool light = QGuiApplication::palette().color(QPalette::Window).lightnessF() > 0.5;
    KvGUI::SetSkinVersion(light ? QStringLiteral("White") : QStringLiteral("Black"));
}

bool DesignerWidget::isInitialized() const { return m_bInDesigner; }

QWidget* DesignerWidget::createWidget(QWidget* parent)
{
    QWidget* widget = m_entry.create(parent);
    if (m_bInDesigner && m_entry.furnish != nullptr)
        m_entry.furnish(widget);
    return widget;
}

QString DesignerWidget::domXml() const
{
    const QString className = name();
    const QString displayName = className.section(QStringLiteral("::"), -1);
    QString objectName = displayName;
    objectName[0] = objectName.at(0).toLower();
    return QStringLiteral(
               R"(<ui language="c++" displayname="%1"><widget class="%2" name="%3"><property name="geometry">)"
               R"(<rect><x>0</x><y>0</y><width>%4</width><height>%5</height></rect></property></widget></ui>)")
        .arg(displayName, className, objectName)
        .arg(m_entry.size.width())
        .arg(m_entry.size.height());
}

} // namespace UIComponentsDesigner
