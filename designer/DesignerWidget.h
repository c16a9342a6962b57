#pragma once

#include <designer/WidgetEntry.h>

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace UIComponentsDesigner {

/// One widget of the library in Qt Designer's widget box.
class DesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    DesignerWidget(const WidgetEntry& entry, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    /// By Designer only, before it makes a widget; a QUiLoader in a program calls nothing.
    void initialize(QDesignerFormEditorInterface* editor) override;
    bool isInitialized() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override; ///< the widget as it is dropped on a form

private:
    WidgetEntry m_entry;
    bool m_bInDesigner = false;
};

} // namespace UIComponentsDesigner
