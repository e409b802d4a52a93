#include "core/window_colors.h"

#include <utility>

namespace horvanta {

WindowColors::WindowColors(std::string_view settingsKey, const ColorPair& standardColors, Control& mainDateControl,
                           std::vector<Further> furtherControls)
    : key(settingsKey),
      standard(standardColors),
      mainDate(mainDateControl),
      further(std::move(furtherControls)),
      chosen_(standard) {
    for (const Further& other : further) other.control.colors = standard;
    SetColor(standard.background, true);
    SetColor(standard.foreground, false);
}

void WindowColors::SetColor(Color color, bool isBackground) {
    chosen_.Part(isBackground) = color;
    MarkDate(mark_);
    for (const auto& [control, shade, ownKey] : further) {
        control.colors->Part(isBackground) = shade == 0 ? color : Shade(color, shade);
    }
}

void WindowColors::MarkDate(Mark mark) {
    mark_ = mark;
    mainDate.colors = {chosen_.background, InkOf(mark, chosen_.background, chosen_.foreground)};
}

}  // namespace horvanta
