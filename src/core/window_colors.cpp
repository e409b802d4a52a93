#include "core/window_colors.h"

#include <utility>

namespace horvanta {

WindowColors::WindowColors(std::string_view settingsKey, const ColorPair& standardColors, Control& mainDateControl,
                           std::vector<Further> furtherControls)
    : key(settingsKey), standard(standardColors), mainDate(mainDateControl), further(std::move(furtherControls)) {
    mainDate.colors = standard;
    for (const Further& other : further) other.control.colors = standard;
    SetColor(standard.background, true);
    SetColor(standard.foreground, false);
}

void WindowColors::SetColor(Color color, bool isBackground) {
    mainDate.colors->Part(isBackground) = color;
    for (const auto& [control, shade, ownKey] : further) {
        control.colors->Part(isBackground) = shade == 0 ? color : Shade(color, shade);
    }
}

}  // namespace horvanta
