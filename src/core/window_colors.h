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

    /// The settings name the colours by `settingsKey`; with an empty one the window keeps them itself. All controls
    /// wear the standard ones from now on.
    WindowColors(std::string_view settingsKey, const ColorPair& standardColors, Control& mainDateControl,
                 std::vector<Further> furtherControls = {});
    WindowColors(const WindowColors&) = delete;
    WindowColors& operator=(const WindowColors&) = delete;

    void SetColor(Color color, bool isBackground);

    /// Lets the main date stand out by a mark, or not.
    void MarkDate(Mark mark);

    /// The colours that were chosen; a mark may give the main date another one for its text.
    const ColorPair& Chosen() const { return chosen_; }

    /// Of the two that were chosen.
    Color Shown(bool isBackground) const { return chosen_.Part(isBackground); }

    const std::string_view key;
    const ColorPair standard;
    Control& mainDate;
    const std::vector<Further> further;

  private:
    ColorPair chosen_;
    Mark mark_ = Mark::None;
};

}  // namespace horvanta
