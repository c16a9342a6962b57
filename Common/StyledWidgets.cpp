#include <Common/StyledWidgets.h>

#include <Common/SkinPath.h>
#include <Common/StyleSheets.h>
#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <QVector>

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
    auto styling = m_stylings.find(widget);
    if (styling == m_stylings.end()) {
        styling = m_stylings.insert(widget, {widget, {}, {}});
        connect(widget, &QObject::destroyed, this, [this](QObject* gone) { m_stylings.remove(gone); });
    }
    styling->wanted = source;
    const QString text = StyleSheetText(source);
    if (text.isEmpty())
        return;
    styling->worn = source;
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
    for (const Styling& styling : qAsConst(m_stylings))
        widgets.append(styling.widget);
    for (const QPointer<QWidget>& widget : qAsConst(widgets)) {
        if (widget)
            Restyle(widget);
    }
}

void StyledWidgets::Restyle(QWidget* widget)
{
    const auto styling = m_stylings.find(widget);
    if (styling == m_stylings.end())
        return;
    QString text = StyleSheetText(styling->wanted);
    if (!text.isEmpty())
        styling->worn = styling->wanted;
    else if (!styling->worn.fileName.isEmpty())
        text = StyleSheetText(styling->worn);
    if (!text.isEmpty() && text != widget->styleSheet())
        widget->setStyleSheet(text);
}
