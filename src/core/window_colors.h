#pragma once

#include "core/controls.h"

#include <string_view>
#include <vector>

namespace horvanta {

/// The two colours of a window, which its main date and some further controls wear.
class WindowColors {
  public:
    /// A control that wears them too, or a shade of them: then the settings name its colours by a key of its own.
    struct Further {
        Control& control;
        int shade = 0;
        std::string_view key = "";
    };

    /// The settings name the colours by `settingsKey`. All controls wear the standard ones from now on.
    WindowColors(std::string_view settingsKey, const ColorPair& standardColors, Control& mainDateControl,
                 std::vector<Further> furtherControls = {});
    WindowColors(const WindowColors&) = delete;
    WindowColors& operator=(const WindowColors&) = delete;

    void SetColor(Color color, bool isBackground);

    /// The colour that is worn now.
    Color Shown(bool isBackground) const { return mainDate.colors->Part(isBackground); }

    const std::string_view key;
    const ColorPair standard;
    Control& mainDate;
    const std::vector<Further> further;
};

}  // namespace horvanta
