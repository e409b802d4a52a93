#pragma once

#include "core/controls.h"

#include <functional>
#include <string>
#include <string_view>

/// The frame of the program as data: its menu tree, the clipboard line, and the few acts of the time window that
/// other windows call. The owners of the commands hang their handlers here.
namespace horvanta {

/// How the frame stands on the screen; the numbers are those of the settings.
enum FrameState { FrameNormal = 0, FrameMinimized = 1, FrameMaximized = 2 };

class HorvantaMDI {
  public:
    /// Puts a text on the clipboard and shows it in the clipboard line; an empty text clears both.
    void SetClipboardText(const std::string& clip);

    /// Copies what a control shows, behind its tooltip.
    void CopyToClipboard(const Control& control);

    /// Shows a text in a box that offers to copy it. The copy has the title behind the text.
    void AskCopyToClipboard(const std::string& message, const std::string& title);

    /// Lets the user choose one of the colours of a window, starting from that of its main date, and sets it.
    void PickColor(const Control& mainDate, bool isBackground, const std::function<void(Color, bool)>& setColor);

    const std::string name = "HorvantaMDI";
    const std::string text = "Horvanta";
    FrameState state = FrameMaximized;
    Place place;  ///< Of the frame that is neither minimised nor maximised; no size until the desktop gives one.

    // Acts of the time window.
    std::function<bool(int code, int shift)> Form_KeyDown;
    std::function<void()> TakeFocus;
    std::function<void(const std::string& clip)> ShowClipboardText;

    std::function<void()> Close;  ///< The user closed the frame.

    // clang-format off
    MenuItem menuBar;
    MenuItem FileMenu{menuBar, "FileMenu", "&File"};
      MenuItem SaveThisMoment{FileMenu, "SaveThisMoment", "Save This &Moment"};
      MenuItem JumpTo{FileMenu, "JumpTo", "&Jump To..."};
        MenuItem JumpToSaved{JumpTo, "JumpToSaved", "&Saved Moment"};
        MenuItem MenuJumpToToday{JumpTo, "MenuJumpToToday", "&Today (at midnight)"};
      MenuItem QuitSubMenu{FileMenu, "QuitSubMenu", "&Quit"};
        MenuItem MenuExit{QuitSubMenu, "MenuExit", "and &Save Preferences"};
        MenuItem QuitWithoutSavePrefs{QuitSubMenu, "QuitWithoutSavePrefs", "&without Saving Preferences"};
        MenuItem ResetPrefsAndQuit{QuitSubMenu, "ResetPrefsAndQuit", "but &Reset All Preferences"};
        MenuItem ResetColorsAndQuit{QuitSubMenu, "ResetColorsAndQuit", "but Reset All &Colors"};
    MenuItem IncrementTimeScale{menuBar, "IncrementTimeScale", "&Step"};
      MenuItem StepMenu[2] = {{IncrementTimeScale, "StepMenu 1", "&Days"}, {IncrementTimeScale, "StepMenu 2", "&Weeks"}};
    MenuItem OptionsMenu{menuBar, "OptionsMenu", "&Options"};
      MenuItem AlwaysToday{OptionsMenu, "AlwaysToday", "&Always Start With Today"};
    MenuItem WindowS{menuBar, "WindowS", "&Window"};
      MenuItem GregCal{WindowS, "GregCal", "&Gregorian and ISO Date"};
    // clang-format on
};

}  // namespace horvanta
