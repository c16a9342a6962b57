#include <gallery/Wall/SampleOverlays.h>

#include <QCoreApplication>

namespace OperatorClient {

namespace {

// Overlays are placed in 1/8192 of the screen.
constexpr int Whole = 8192;

std::string Translated(const char* text)
{
    return QCoreApplication::translate("OperatorClient::SampleOverlays", text).toStdString();
}

KvGUI::StructOSDInfo Standing()
{
    KvGUI::StructOSDInfo info;
    info.iFontR = 240;
    info.iFontG = 242;
    info.iFontB = 245;
    info.iBackR = 24;
    info.iBackG = 56;
    info.iBackB = 96;
    info.iLeft = Whole * 3 / 100;
    info.iTop = Whole * 71 / 100;
    info.iRight = Whole * 27 / 100;
    info.iBottom = Whole * 84 / 100;
    info.iFontPercent = 58;
    info.iAlign = 1;
    info.strFontName = "simHei";
    info.strText = Translated(QT_TRANSLATE_NOOP("OperatorClient::SampleOverlays", "North gate\nSector A"));
    return info;
}

KvGUI::StructOSDInfo Rolling()
{
    KvGUI::StructOSDInfo info;
    info.iFontR = 255;
    info.iFontG = 214;
    info.iFontB = 102;
    info.iBackR = 16;
    info.iBackG = 17;
    info.iBackB = 20;
    info.iLeft = 0;
    info.iTop = Whole * 90 / 100;
    info.iRight = Whole;
    info.iBottom = Whole * 98 / 100;
    info.iFontPercent = 66;
    info.bRoll = true;
    info.iRollMode = 0;
    info.strText = Translated(QT_TRANSLATE_NOOP(
        "OperatorClient::SampleOverlays",
        "Visitors report to the reception in building A.  Deliveries use the south gate until 18:00."));
    return info;
}

} // namespace

std::vector<KvGUI::StructOSDInfo> SampleOverlays() { return {Standing(), Rolling()}; }

} // namespace OperatorClient
