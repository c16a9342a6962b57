#pragma once

#include <QPalette>
#include <QString>

class QWidget;

/// The look of the widgets of this folder. Each calls one of these functions in its constructor and
/// follows the skin from then on.

/// Gives @p widget the sheet "BasicUIComponents/<fileName>" of the skin when it is polished and after each
/// change of skin, unless it has been given another: a subclass's or a client's own sheet takes its place.
void UsePlatformSheet(QWidget* widget, const QString& fileName);

/// Gives @p widget the palette of the skin, now and after each change of skin, so that it keeps the skin's
/// colours when somebody replaces its sheet. (Children do not take it over: under a sheet none do.)
void UseSkinPalette(QWidget* widget);

/// The colours that the skin's file "BasicUIComponents/Palette.txt" gives, the application's palette for
/// all others. A line of the file is the name of a QPalette::ColorRole and a colour; a name that begins
/// with "Disabled" counts for disabled widgets only. Other lines are skipped.
QPalette SkinPalette();

/// @p base with the colours that the lines of @p text name.
QPalette PaletteFromText(const QString& text, QPalette base);
