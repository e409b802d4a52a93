#include "app/time_astro.h"

#include "calendars/gregorian.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"

#include <algorithm>
#include <functional>

namespace horvanta {
namespace {

constexpr ColorPair defaultColors{Color::FromNumber(65535), Color::FromNumber(0)};

/// A step of the step menu: its size in days, and what its buttons do in words.
struct Step {
    double size;
    std::string_view next;
    std::string_view jump;
};

constexpr Step steps[] = {
    {1, "a day", "a week"},
    {7, "a week", "4 weeks"},
};
static_assert(std::size(steps) == std::extent_v<decltype(HorvantaMDI::StepMenu)>);

/// How many steps a jump takes.
struct Jump {
    double increment;
    double steps;
};

constexpr Jump jumps[] = {{1, 7}, {7, 4}, {29.530588853, 12}};
constexpr double otherJump = 10;

double StepsOfJump() {
    const auto* jump = std::ranges::find(jumps, Increment, &Jump::increment);
    return jump == std::end(jumps) ? otherJump : jump->steps;
}

}  // namespace

TimeAstro::TimeAstro(HorvantaMDI& frame) : frame_(frame) {
    TimeOfDay.colors = defaultColors;
    FixedDayNum.colors = defaultColors;
    FixedDayNum.LostFocus = [this] { FixedDayNum_LostFocus(); };
    TimeOfDay.DblClick = [this] { PickBackgroundColor(); };
    TimeOfDay.RightClick = [this] { PickForegroundColor(); };
    JumpToPast.Click = [this] { JumpToPast_Click(); };
    NextDown.Click = [this] { NextDown_Click(); };
    DayDown.Click = [this] { DayUpDown(-1, 1); };
    DayUp.Click = [this] { DayUpDown(1, 1); };
    NextUp.Click = [this] { NextUp_Click(); };
    JumpToFuture.Click = [this] { JumpToFuture_Click(); };
    ClipBoardStatus.Click = [this] { ClipBoardStatus_Click(); };
    form.KeyDown = [this](int code, int shift) { return Form_KeyDown(code, shift); };

    frame.Form_KeyDown = form.KeyDown;
    frame.TakeFocus = [this] { TakeFocus(); };
    frame.ShowClipboardText = [this](const std::string& clip) { ClipBoardStatus.text = clip; };
    for (std::int32_t index = 1; MenuItem & item : frame.StepMenu) {
        item.Shows(StepIndex, index);
        item.Click = [this, index] { StepMenu_Click(index); };
        ++index;
    }
}

/// The words tell on which side of the displayed date the saved one lies: the program's own way of putting it.
void TimeAstro::ShowMoment() {
    const double difference = Round(SavedMoment - DisplayedMoment, 3);
    SavedToFrom.text = std::string("day") + (std::fabs(difference) != 1 ? "s " : " ") +
                       (difference < 0 ? "before" : "after") + " saved date.";
    SavedDiffBox.text = GeneralText(std::fabs(difference));
    FixedDayNum.text = GeneralText(DisplayedMoment);
    TimeOfDay.text = FormatTime(DisplayedMoment, 0);
    if (tooltipNumbering_ != NumberingSerial) SetFixedDayNumberToolTip();
}

void TimeAstro::JumpDate(double count, bool snap) {
    if (count == 0) return;
    DisplayedMoment += Increment * count;
    if (snap && count == Floor(count)) DisplayedMoment = Floor(DisplayedMoment);
    UpdateStatus();
}

void TimeAstro::DayUpDown(double count, double size) {
    const double chosen = Increment;
    Increment = size;
    JumpDate(count, true);
    Increment = chosen;
}

void TimeAstro::NextUp_Click() { JumpDate(1, true); }
void TimeAstro::NextDown_Click() { JumpDate(-1, true); }
void TimeAstro::JumpToFuture_Click() { JumpDate(StepsOfJump(), true); }
void TimeAstro::JumpToPast_Click() { JumpDate(-StepsOfJump(), true); }

bool TimeAstro::Form_KeyDown(int code, int shift) {
    switch (code) {
        case KeyPause:
        case KeyEscape:
        case KeyHome: frame_.MenuJumpToToday.Click(); return true;
        case KeySpace: DayUpDown(shift != 0 ? -1 : 1, 1); return true;
        case KeyPageUp: JumpToFuture_Click(); return true;
        case KeyPageDown: JumpToPast_Click(); return true;
        case KeyUp: NextUp_Click(); return true;
        case KeyDown: NextDown_Click(); return true;
        case KeyNumericPlus: DayUpDown(1, 1); return true;
        case KeyNumericMinus: DayUpDown(-1, 1); return true;
        default: return false;
    }
}

void TimeAstro::StepMenu_Click(std::int32_t index) {
    const bool known = index >= 1 && index <= static_cast<std::int32_t>(std::size(steps));
    const std::int32_t chosen = known ? index : 1;
    SetIncrement(chosen, steps[chosen - 1].size);
}

void TimeAstro::SetIncrement(std::int32_t index, double size) {
    StepIndex = index;
    Increment = size;
    IncrementDisplay.text = "Step by " + RemoveAmpersands(frame_.StepMenu[index - 1].caption);
    SetStepCaptions(index);
}

/// Where a step is a day, the day buttons would repeat the step buttons and make room for them.
void TimeAstro::SetStepCaptions(std::int32_t index) {
    const Step& step = steps[index - 1];
    const bool byDays = frame_.StepMenu[index - 1].caption.find("Days") != std::string::npos;
    DayDown.visible = DayUp.visible = !byDays;
    NextDown.text = byDays ? "<" : "<<";
    NextUp.text = byDays ? ">" : ">>";
    JumpToPast.text = byDays ? "<<" : "<<<";
    JumpToFuture.text = byDays ? ">>" : ">>>";
    NextDown.tooltip = "Back " + std::string(step.next) + " (Down)";
    NextUp.tooltip = "Forward " + std::string(step.next) + " (Up)";
    JumpToPast.tooltip = "Back " + std::string(step.jump) + " (Page Down)";
    JumpToFuture.tooltip = "Forward " + std::string(step.jump) + " (Page Up)";
}

void TimeAstro::TakeFocus() { FixedDayNum.TakeFocus(); }

void TimeAstro::SetFixedDayNumberToolTip() {
    tooltipNumbering_ = NumberingSerial;
    FixedDayNum.tooltip =
        "Universal Days relative to day 1 on " + FixedToGregorianString(1) + " (Gregorian) at Midnight";
}

/// A text that was only looked at keeps the moment, digits that it does not show included.
void TimeAstro::FixedDayNum_LostFocus() {
    const std::string shown = GeneralText(DisplayedMoment);
    const auto day = ParseNumber(FixedDayNum.text);
    if (!day) CurrentDesktop->Beep();
    const bool changed = day && *day != DisplayedMoment && Trimmed(FixedDayNum.text) != shown;
    FixedDayNum.text = shown;
    if (!changed) return;
    DisplayedMoment = *day;
    UpdateStatus();
}

void TimeAstro::ClipBoardStatus_Click() { frame_.SetClipboardText(""); }

void TimeAstro::PickBackgroundColor() {
    frame_.PickColor(TimeOfDay, true, std::bind_front(&TimeAstro::SetColor, this));
}

void TimeAstro::PickForegroundColor() {
    frame_.PickColor(TimeOfDay, false, std::bind_front(&TimeAstro::SetColor, this));
}

void TimeAstro::SetColor(Color color, bool isBackground) {
    TimeOfDay.colors->Part(isBackground) = color;
    FixedDayNum.colors->Part(isBackground) = color;
}

}  // namespace horvanta
