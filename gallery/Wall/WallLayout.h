#pragma once

#include <Platform/BasicUIComponents/StructScaleRect.h>
#include <gallery/Pictures/SourceSpec.h>

#include <QString>
#include <QVector>
#include <optional>

namespace OperatorClient {

/// A video window of a stored wall.
struct WindowLayout
{
    KvGUI::StructScaleRect rect; ///< as fractions of its screen
    int z = 0;
    SourceSpec source;
    bool titled = true;
};

/// A monitor of a stored wall.
struct ScreenLayout
{
    KvGUI::StructScaleRect rect; ///< as fractions of the wall
    QString text; ///< shown in the middle of the screen
    bool overlays = false;
    bool baseMap = false;
    bool cellBound = false;
    QVector<WindowLayout> windows;
};

/// All that a wall needs to come back as it was left.
struct WallLayout
{
    static constexpr int NormalFamily = 0; ///< drawn in a scene
    static constexpr int DisplayFamily = 1; ///< built from widgets
    static constexpr int MaxGrid = 16; ///< rows, columns
    static constexpr int MaxScreens = MaxGrid * MaxGrid;
    static constexpr int MaxWindows = 1024; ///< on the whole wall

    int rows = 2;
    int columns = 2;
    int family = DisplayFamily;
    int selectionMode = 0; ///< 0 ... 2
    bool titles = true;
    bool gutter = true;
    bool sound = true; ///< of the whole wall
    int volume = 50; ///< of the whole wall, per cent
    bool details = true; ///< of the selected window, beside the wall
    QVector<ScreenLayout> screens;

    /// One line of text.
    QString ToText() const;

    /// Reads such a text. Only a text that is no layout at all gives nothing. Otherwise the result can be
    /// used as it is: numbers and counts are within bounds, rectangles lie inside their area, and what
    /// makes no sense is left out.
    static std::optional<WallLayout> FromText(const QString& text);
};

/// The wall of the first start: four screens that show what a wall can do.
WallLayout FirstWall();

} // namespace OperatorClient
