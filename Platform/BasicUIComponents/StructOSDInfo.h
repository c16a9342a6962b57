#pragma once

#include <string>

namespace KvGUI {

/// One text overlay on a screen of a video wall, as the server that manages the overlays describes it.
///
/// The wall reads the colours, the rectangle, the rolling, the font and the text; the fields marked
/// "for the client" travel with the record so that the client can edit and send it back unchanged.
/// A plain value: copy it freely.
struct StructOSDInfo
{
    int iFontAlpha = 255; ///< opacity of the text, 0 (invisible) to 255; for the client
    int iFontR = 255; ///< text colour, red, 0 to 255
    int iFontG = 255; ///< text colour, green, 0 to 255
    int iFontB = 255; ///< text colour, blue, 0 to 255
    int iBackAlpha = 255; ///< opacity of the background, 0 to 255; for the client
    int iBackR = 0; ///< background colour, red, 0 to 255
    int iBackG = 0; ///< background colour, green, 0 to 255
    int iBackB = 0; ///< background colour, blue, 0 to 255
    int iOsdId = 0; ///< number of the overlay at its server, 0 while it is not saved; for the client
    int iOsdType = 0; ///< 0 free text, 1 date and time, 2 camera name; for the client
    int iRollSpeed = 0; ///< wanted rolling speed in pixels a second, 0 for the server's own; for the client
    int iShowSeconds = 0; ///< time the overlay is shown, in seconds, 0 without end; for the client
    int iLayer = 0; ///< layer among overlays that cover each other, higher is nearer; for the client
    int iLeft = 0; ///< left edge in 1/8192 of the screen's width
    int iTop = 0; ///< top edge in 1/8192 of the screen's height
    int iRight = 0; ///< right edge in 1/8192 of the screen's width
    int iBottom = 0; ///< bottom edge in 1/8192 of the screen's height
    unsigned char iShowMode = 0; ///< 0 always shown, 1 only while an alarm is on; for the client
    /// 0 right to left, 1 left to right, 2 top to bottom, 3 bottom to top, 4 back and forth
    unsigned char iRollMode = 0;
    bool bRoll = false; ///< the text rolls; otherwise it stands still
    unsigned char iFontPercent = 100; ///< font size as a percentage of the height of one line
    unsigned char iAlign = 0; ///< 0 left, 1 centred both ways, 2 right
    std::string strText; ///< UTF-8; a line feed separates lines
    std::string strTimeFormat; ///< UTF-8; format of a date-and-time overlay; for the client
    std::string strFontName; ///< key of the font family: "simHei", "simKai", anything else for the third
};

} // namespace KvGUI
