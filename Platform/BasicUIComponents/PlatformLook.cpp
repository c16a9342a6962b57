#include <Platform/BasicUIComponents/PlatformLook.h>

#include <Platform/BasicUIComponents/KvSkinNotifier.h>
#include <Platform/BasicUIComponents/SkinPath.h>
#include <Platform/BasicUIComponents/StyleSheets.h>
#include <Platform/BasicUIComponents/StyledWidgets.h>
#include <QApplication>
#include <QMetaEnum>
#include <QWidget>

namespace {

QString SubDir() { return QStringLiteral("BasicUIComponents"); }

QString LibraryModule() { return QStringLiteral("UICommonModule"); }

void ReadColour(const QString& line, QPalette& palette)
{
    const QStringList words = line.simplified().split(QLatin1Char(' '));
    if (words.size() != 2)
        return;
    const QString disabled = QStringLiteral("Disabled");
    const bool disabledOnly = words.at(0).startsWith(disabled);
    const QString name = disabledOnly ? words.at(0).mid(disabled.size()) : words.at(0);
    bool known = false;
    const int role
        = QMetaEnum::fromType<QPalette::ColorRole>().keyToValue(name.toLatin1().constData(), &known);
    const QColor colour(words.at(1));
    if (!known || role >= QPalette::NColorRoles || !colour.isValid())
        return;
    palette.setColor(
        disabledOnly ? QPalette::Disabled : QPalette::All, static_cast<QPalette::ColorRole>(role), colour);
}

} // namespace

void UsePlatformSheet(QWidget* widget, const QString& fileName)
{
    StyledWidgets::Instance().ApplyBase(widget, {SubDir(), fileName, QString()});
}

void UseSkinPalette(QWidget* widget)
{
    widget->setPalette(SkinPalette());
    QObject::connect(
        KvGUI::KvSkinNotifier::Instance(), &KvGUI::KvSkinNotifier::SignalSkinChanged, widget,
        [widget] { widget->setPalette(SkinPalette()); });
}

QPalette PaletteFromText(const QString& text, QPalette base)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines)
        ReadColour(line, base);
    return base;
}

QPalette SkinPalette()
{
    const QString folder = SkinResourcePath(LibraryModule(), LibraryModule(), SubDir());
    return PaletteFromText(StyleSheetText(QStringLiteral("Palette.txt"), folder), QApplication::palette());
}
