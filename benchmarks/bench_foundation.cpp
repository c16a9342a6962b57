// Cutting texts to a number of bytes against encoding them once, and styled widgets against the same Qt
// widgets with the style sheet's text at hand.

#include "Ratio.h"

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvFile.h>

#include <QApplication>
#include <QPushButton>
#include <QTextCodec>

using UICommonMdl::CommonFun;

namespace {

constexpr int TextBytes = 1000000;
constexpr int TextRounds = 15;
constexpr int Widgets = 1000;
constexpr int WidgetRounds = 15;

struct Content
{
    const char* name;
    QString unit;
};

/// About 1 MB in the encoding.
QString LongText(const QString& unit, const QByteArray& encodedUnit)
{
    return unit.repeated(TextBytes / encodedUnit.size());
}

using Encode = QByteArray (*)(const QString&);
using Cut = QString (*)(const QString&, int);

void PrintBudgets(const char* encoding, const Content& content, Encode encode, Cut cut)
{
    const QString text = LongText(content.unit, encode(content.unit));
    const int full = encode(text).size();
    const struct
    {
        const char* name;
        int bytes;
    } budgets[] = {{"tiny", 16}, {"half", full / 2}, {"just-below-full", full - 1}};
    for (const auto& budget : budgets) {
        const QByteArray name
            = QByteArray("byte-budget/") + encoding + '/' + content.name + '/' + budget.name;
        int used = 0;
        Ratio::Print(
            name.constData(), TextRounds, [&] { used += cut(text, budget.bytes).size(); },
            [&] { used += encode(text).size(); });
        if (used == 0)
            std::puts("nothing was cut");
    }
}

void PrintAllBudgets()
{
    const Content contents[] = {
        {"ascii", QStringLiteral("camera 01 ")},
        {"han", QStringLiteral("\u4E2D\u6587")},
        {"pairs", QStringLiteral("\U0001F600")},
        {"mixed", QStringLiteral("wall \u00E9\u4E2D\U0001F600")},
    };
    for (const Content& content : contents)
        PrintBudgets(
            "utf-8", content, [](const QString& text) { return text.toUtf8(); },
            &CommonFun::GetUtf8ValidByteLenString);

    for (const char* codec : {"UTF-8", "GBK"}) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
        const QByteArray name = QByteArray("local-") + codec;
        for (const Content& content : contents)
            PrintBudgets(
                name.constData(), content, [](const QString& text) { return text.toLocal8Bit(); },
                &CommonFun::GetLocal8BitValidByteLenString);
    }
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

/// Makes the widgets, styles each one and deletes them.
template <typename Style>
void MakeWidgets(Style style)
{
    QWidget parent;
    for (int i = 0; i < Widgets; ++i)
        style(new QPushButton(&parent));
}

bool PrintWidgets()
{
    const QString folder = QStringLiteral("TVWallOperateWnd");
    const QString file = QStringLiteral("KvTVWallDisplayWnd.css");
    const QByteArray sheet
        = KvGUI::KvFile::ReadAll(file, CommonFun::GetSkinPath(QStringLiteral("UICommonModule"), folder));
    if (sheet.isEmpty()) {
        std::fputs("the skin has no style sheet for the widgets\n", stderr);
        return false;
    }
    const QString text = QString::fromUtf8(sheet);
    Ratio::Print(
        "styled-widgets/1000", WidgetRounds,
        [&] {
            MakeWidgets([&](QWidget* widget) { CommonFun::SetStyleSheet(widget, folder, file, QString()); });
        },
        [&] { MakeWidgets([&](QWidget* widget) { widget->setStyleSheet(text); }); });
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    PrintAllBudgets();
    return PrintWidgets() ? 0 : 1;
}
