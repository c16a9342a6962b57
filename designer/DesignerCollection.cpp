#include <designer/DesignerCollection.h>

#include <designer/DesignerWidget.h>

namespace UIComponentsDesigner {

DesignerCollection::DesignerCollection(QObject* parent)
    : QObject(parent)
{
    for (const WidgetEntry& entry : Widgets())
        m_widgets.append(new DesignerWidget(entry, this));
}

QList<QDesignerCustomWidgetInterface*> DesignerCollection::customWidgets() const { return m_widgets; }

} // namespace UIComponentsDesigner
