#include "SearchMenu.h"

#include <QKeyEvent>

namespace UICommonMdl {

namespace {

struct ItemColors
{
    const char* application;
    const char* background;
    const char* text;
};

constexpr ItemColors ChosenItem[] = {
    {"Tamsin", "#29465a", "#bbbbbb"},  {"Brellow", "#1269a2", "#000000"}, {"Quorra", "#04B2DF", "#000000"},
    {"Corvale", "#29465a", "#bbbbbb"}, {"Mendal", "#29465a", "#bbbbbb"},
};

constexpr int IconSize = 20;

} // namespace

QString SearchMenuStyle(const QString& application)
{
    const QString sheet = QStringLiteral("QMenu::item:hover{background-color:%1;color:%2}"
                                         "QMenu::item:selected{background-color:%1;color:%2}");
    for (const ItemColors& colors : ChosenItem)
        if (application == QLatin1String(colors.application))
            return sheet.arg(QLatin1String(colors.background), QLatin1String(colors.text));
    return QString();
}

SearchMenuIcons::SearchMenuIcons(QObject* parent) { setParent(parent); }

int SearchMenuIcons::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_SmallIconSize ? IconSize : QProxyStyle::pixelMetric(metric, option, widget);
}

EscapeWatch::EscapeWatch(QWidget& menu) { menu.installEventFilter(this); }

bool EscapeWatch::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        m_bPressed = true;
    return false;
}

} // namespace UICommonMdl
