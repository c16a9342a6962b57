#include <Platform/BasicUIComponents/StyledWidgets.h>

#include <Platform/BasicUIComponents/SkinPath.h>
#include <Platform/BasicUIComponents/StyleSheets.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <iterator>

QString StyleSheetText(const StyleSheetSource& source)
{
    const bool ownModule = source.module.isEmpty();
    const QString library = QStringLiteral("UICommonModule");
    const QString folder = ownModule
        ? SkinResourcePath(library, library, source.subDir)
        : SkinResourcePath(FirstSegment(source.module), source.module, source.subDir);
    return StyleSheetText(source.fileName, folder);
}

StyledWidgets& StyledWidgets::Instance()
{
    static StyledWidgets widgets;
    return widgets;
}

StyledWidgets::StyledWidgets()
{
    connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, this,
        &StyledWidgets::RestyleAll);
}

void StyledWidgets::Apply(QWidget* widget, const StyleSheetSource& source)
{
    Styling& styling = m_stylings[widget];
    // Also after a client's widget->disconnect(): then the note of a dead widget may stand at this address.
    if (styling.widget.isNull()) {
        styling = {widget, {}};
        connect(widget, &QObject::destroyed, this, [this](QObject* gone) { m_stylings.remove(gone); });
    }
    styling.sources.removeOne(source);
    styling.sources.append(source);
    const QString text = StyleSheetText(source);
    if (!text.isEmpty())
        widget->setStyleSheet(text);
}

void StyledWidgets::Forget(QWidget* widget)
{
    if (m_stylings.remove(widget) > 0)
        disconnect(widget, &QObject::destroyed, this, nullptr);
}

void StyledWidgets::RestyleAll()
{
    // A style change may run code of the client that makes, styles and deletes widgets.
    QVector<QPointer<QWidget>> widgets;
    widgets.reserve(m_stylings.size());
    for (auto styling = m_stylings.begin(); styling != m_stylings.end();) {
        widgets.append(styling->widget);
        styling = styling->widget.isNull() ? m_stylings.erase(styling) : std::next(styling);
    }
    for (const QPointer<QWidget>& widget : qAsConst(widgets)) {
        if (widget)
            Restyle(widget);
    }
}

void StyledWidgets::Restyle(QWidget* widget) const
{
    const QVector<StyleSheetSource> sources = m_stylings.value(widget).sources;
    for (auto source = sources.crbegin(); source != sources.crend(); ++source) {
        const QString text = StyleSheetText(*source);
        if (text.isEmpty())
            continue;
        if (text != widget->styleSheet())
            widget->setStyleSheet(text);
        return;
    }
}
