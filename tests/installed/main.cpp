// Uses the installed library as a client does: a wall with one window, styled by the installed skins, and,
// with the argument "office", the spreadsheet application that the installed plugin drives.

#include <Common/CommonFun.h>
#include <UI/Spreadsheet/AxExcelFunction.h>
#include <UI/TVWall/KvTVWallDisplayWnd.h>

#include <QApplication>

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
    const bool office
        = argc < 2 || UICommonMdl::AxExcelFunction::CheckExcelVersion() == UICommonMdl::AxExcel_Xlsx;
    return placed && cut && office ? 0 : 1;
}
