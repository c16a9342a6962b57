#include <Platform/BasicUIComponents/StyledWidgets.h>

#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <Platform/BasicUIComponents/SkinPath.h>
#include <Platform/BasicUIComponents/StyleSheets.h>
#include <QEvent>
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

namespace {

/// Also sets a sheet that the widget has: its rules by properties are then looked at again.
void SetSheet(QWidget* widget, const QString& text)
{
    // Qt does not parse a second sheet where children have asked for the first before the widget is polished.
    if (!widget->styleSheet().isEmpty() && text != widget->styleSheet())
        widget->ensurePolished();
    widget->setStyleSheet(text);
}

void ChangeSheet(QWidget* widget, const QString& text)
{
    if (text != widget->styleSheet())
        SetSheet(widget, text);
}

} // namespace

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

StyledWidgets::Styling& StyledWidgets::StylingOf(QWidget* widget)
{
    Styling& styling = m_stylings[widget];
    // Also after a client's widget->disconnect(): then the note of a dead widget may stand at this address.
    if (styling.widget.isNull()) {
        styling = {widget, {}, {}, {}};
        connect(widget, &QObject::destroyed, this, [this](QObject* gone) { m_stylings.remove(gone); });
    }
    return styling;
}

void StyledWidgets::Apply(QWidget* widget, const StyleSheetSource& source)
{
    QVector<StyleSheetSource>& sources = StylingOf(widget).sources;
    sources.removeOne(source);
    sources.append(source);
    const QString text = StyleSheetText(source);
    if (!text.isEmpty())
        SetSheet(widget, text);
}

void StyledWidgets::ApplyBase(QWidget* widget, const StyleSheetSource& source)
{
    StylingOf(widget).base = {source};
    widget->installEventFilter(this);
}

bool StyledWidgets::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        watched->removeEventFilter(this);
        auto* widget = static_cast<QWidget*>(watched);
        if (widget->styleSheet().isEmpty())
            Restyle(widget);
    }
    return QObject::eventFilter(watched, event);
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

void StyledWidgets::Restyle(QWidget* widget)
{
    const auto found = m_stylings.find(widget);
    if (found == m_stylings.end())
        return;
    Styling& styling = *found;
    for (auto source = styling.sources.crbegin(); source != styling.sources.crend(); ++source) {
        const QString text = StyleSheetText(*source);
        if (text.isEmpty())
            continue;
        ChangeSheet(widget, text);
        return;
    }
    // A sheet that the client set by hand stays.
    if (styling.base.isEmpty()
        || (!widget->styleSheet().isEmpty() && widget->styleSheet() != styling.baseText))
        return;
    const QString text = StyleSheetText(styling.base.first());
    if (text.isEmpty())
        return;
    styling.baseText = text;
    ChangeSheet(widget, text);
}
