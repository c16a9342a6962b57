#pragma once

#include <QSize>

class QLabel;
class QRect;
class QScrollArea;
class QWidget;

namespace KvGUI {
class KvCustomDialog;
}

namespace UICommonMdl {

/// Pixels of a crop dialog's height that are not for its canvas: the title bar and the bottom row.
constexpr int kCutPhotoDialogExtraHeight = 80;

/// The canvas's size until the client sets another one: it fits its dialog exactly.
constexpr QSize kFirstCanvasSize(800, 520);

/// The size of a crop dialog for a canvas of @p canvas pixels: always 4:3, in whole pixels rounded down.
QSize CutPhotoDialogSize(const QSize& canvas);

/// Where a scroll bar goes so that the edge of a growing frame can be seen.
/// @param value where the bar is
/// @param forward whether the frame grows to the right or down
/// @param start the frame's first pixel, in the container
/// @param length the frame's length
/// @param containerLength the container's length in this direction
/// @param margin what is kept free beyond the edge
int FollowedScrollValue(int value, bool forward, int start, int length, int containerLength, int margin);

/// What the two crop dialogs have in common, apart from the canvas.
struct CutPhotoForm
{
    QScrollArea* scrollArea = nullptr;
    QWidget* container = nullptr; ///< filled by the canvas; the scroll area leaves its size alone
    QLabel* sign = nullptr; ///< first item of the bottom row
    QLabel* hint = nullptr; ///< second item of the bottom row
};

/// Builds the form in the dialog's central widget, @p canvas in its container. The hint has no text yet.
CutPhotoForm BuildCutPhotoForm(KvGUI::KvCustomDialog* dialog, QWidget* canvas);

/// Gives the container this size and the dialog the size for it, and places the bottom row.
void SetCutPhotoResolution(KvGUI::KvCustomDialog* dialog, const CutPhotoForm& form, int width, int height);

/// Gives the hint the room before the buttons, and hides it where that is too little.
void FitCutPhotoHint(const KvGUI::KvCustomDialog* dialog, const CutPhotoForm& form);

/// Scrolls so that the edge of the frame that the pointer drags can be seen.
void FollowCutRect(const CutPhotoForm& form, const QRect& rcCut, bool bAddX, bool bAddY);

} // namespace UICommonMdl
