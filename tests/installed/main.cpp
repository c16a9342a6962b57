// Uses the installed library as a client does: a wall with one window, styled by the installed skins, a
// dialog in another language, a skin of the client's own with the argument "skin", and with "office" the
// spreadsheet application that the installed plugin drives.

#include <Common/CommonFun.h>
#include <Platform/BasicUIComponents/KvLanguage.h>
#include <Platform/BasicUIComponents/KvSkin.h>
#include <UI/Dialogs/CDisplayQRcodeDlg.h>
#include <UI/PersonImage/WmPersonImage.h>
#include <UI/Spreadsheet/AxExcelFunction.h>
#include <UI/TVWall/KvTVWallDisplayWnd.h>

#include <QApplication>

namespace {

/// Whether the client's skin reaches a living widget, and leaves alone what it has no sheet for.
bool TakesOwnSkin(const QWidget& wall)
{
    const UICommonMdl::WmPersonImage person;
    const QString sheetOfTheWall = wall.styleSheet();
    KvGUI::SetSkinVersion(QStringLiteral("Harbour"));
    return person.styleSheet().contains(QLatin1String("#142836")) && wall.styleSheet() == sheetOfTheWall;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    UICommonMdl::KvTVWallDisplayWnd wall;
    wall.SetTVWallGridCount(1, 1);
    wall.AddScreen({0.0, 0.0, 1.0, 1.0}, QVariant());
    wall.OpenWindow(0, {0.0, 0.0, 0.5, 0.5, true}, QVariant());
    wall.show();
    const bool placed = wall.GetWindowWidget(0, 0) != nullptr && !wall.styleSheet().isEmpty();
    const bool cut = UICommonMdl::CommonFun::GetUtf8ValidByteLenString(QStringLiteral("abc"), 2).size() == 2;
    const QStringList wanted = QApplication::arguments();
    const bool skin = !wanted.contains(QLatin1String("skin")) || TakesOwnSkin(wall);
    const bool office = !wanted.contains(QLatin1String("office"))
        || UICommonMdl::AxExcelFunction::CheckExcelVersion() == UICommonMdl::AxExcel_Xlsx;
    KvGUI::SetLanguage(QStringLiteral("zh_CN"));
    const bool translated
        = UICommonMdl::CDisplayQRcodeDlg().windowTitle() == QStringLiteral("\u663e\u793a\u4e8c\u7ef4\u7801");
    return placed && cut && skin && office && translated ? 0 : 1;
}
