// A stored wall from outside: what comes out can be used as it is, and is the same when it is stored again.

#include "Expect.h"

#include <gallery/Wall/WallLayout.h>

#include <cstddef>
#include <cstdint>

using namespace OperatorClient;

namespace {

void CheckRect(const KvGUI::StructScaleRect& rect)
{
    Expect(rect.dLeft >= 0 && rect.dTop >= 0, "a rectangle begins inside");
    Expect(rect.dRight <= 1 && rect.dBottom <= 1, "and ends there");
    Expect(rect.dLeft < rect.dRight && rect.dTop < rect.dBottom, "and has an area");
}

void CheckScreen(const ScreenLayout& screen)
{
    CheckRect(screen.rect);
    for (const WindowLayout& window : screen.windows) {
        CheckRect(window.rect);
        Expect(window.z >= 0 && window.z <= WallLayout::MaxWindows, "a z-value is within bounds");
        Expect(SourceSpec::FromText(window.source.ToText()) == window.source, "a source is its text");
    }
}

} // namespace

extern "C" int __lsan_is_turned_off(); // of the leak sanitizer's interface

extern "C" int __lsan_is_turned_off()
{
    return 1; // QJsonDocument leaks what it has read of a text that then proves to be broken
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const std::optional<WallLayout> layout = WallLayout::FromText(text);
    if (!layout)
        return 0;
    Expect(layout->rows >= 1 && layout->rows <= WallLayout::MaxGrid, "rows are within bounds");
    Expect(layout->columns >= 1 && layout->columns <= WallLayout::MaxGrid, "columns are within bounds");
    Expect(layout->screens.size() <= WallLayout::MaxScreens, "there are not too many screens");
    int windows = 0;
    for (const ScreenLayout& screen : layout->screens) {
        CheckScreen(screen);
        windows += screen.windows.size();
    }
    Expect(windows <= WallLayout::MaxWindows, "there are not too many windows");
    const QString stored = layout->ToText();
    const std::optional<WallLayout> again = WallLayout::FromText(stored);
    Expect(again && again->ToText() == stored, "a stored wall comes back");
    return 0;
}
