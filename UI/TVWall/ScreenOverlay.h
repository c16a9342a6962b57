#pragma once

#include <Platform/BasicUIComponents/StructOSDInfo.h>

#include <QColor>
#include <QRect>
#include <QSize>
#include <QString>
#include <Qt>
#include <string>
#include <vector>

/// Where a screen's text overlays stand and how they look, on plain values, and the file of its base map.
namespace UICommonMdl::ScreenOverlay {

constexpr int SlotsOfAKind = 8; ///< a screen shows this many plain and this many rolling overlays

/// One overlay in pixels of its screen.
struct Placement
{
    QRect geometry; ///< the record's rectangle, 5 pixels higher so that descenders fit
    int fontPixelSize = 1; ///< at least 1
};

/// The face of an overlay: the style sheet selects the family by the label's object name.
struct Face
{
    QString objectName; ///< "KaiStyle", "SongStyle" or empty
    bool bold = false;
};

/// The records split by kind, each in the given order.
struct Sorted
{
    std::vector<KvGUI::StructOSDInfo> plain;
    std::vector<KvGUI::StructOSDInfo> rolling;
};

Sorted SortedByKind(const std::vector<KvGUI::StructOSDInfo>& infos);

/// Places one overlay on a screen of @p screen pixels. The font size is the record's percentage of the
/// height of one of its lines, or of the overlay's width where that is less.
Placement Placed(const KvGUI::StructOSDInfo& info, const QSize& screen);

QString Text(const KvGUI::StructOSDInfo& info);
QColor TextColor(const KvGUI::StructOSDInfo& info); ///< parts outside 0 ... 255 are brought into it
QColor BackColor(const KvGUI::StructOSDInfo& info); ///< as TextColor
Face FaceOf(const std::string& fontName);
/// Any value but 1 and 2 is left. Absolute: text of a right-to-left script stays on the record's side.
Qt::Alignment AlignmentOf(int iAlign);
/// Style sheet of a plain overlay's label.
QString StyleSheet(const KvGUI::StructOSDInfo& info, int fontPixelSize);

/// @p text with spaces of @p spaceWidth pixels that fill a label of @p width pixels, of which the text itself
/// takes @p textWidth; unchanged when 7 pixels or less are left. At most 4096 spaces are added: where
/// @p alignment leaves room beside a text that is painted in its own direction.
QString PaddedToWidth(const QString& text, int textWidth, int spaceWidth, int width, Qt::Alignment alignment);

/// The picture file to show for a base map: a raw video frame (a path with ".yuv" in it) stands for the
/// still picture beside it, so everything from the last "." is replaced by ".jpg".
std::string BaseMapFile(const std::string& path);

} // namespace UICommonMdl::ScreenOverlay
