#include "views/time_astro.h"

#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/year_dates.h"
#include "calendars/gregorian.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "locale/locale_text.h"
#include "lunar/tithi.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace horvanta {
namespace {

/// A step of the step menu: its size in days, and what its buttons do in words.
struct Step {
    double size;
    std::string_view next;
    std::string_view jump;
};

constexpr Step steps[] = {
    {1, "a day", "a week"},
    {7, "a week", "4 weeks"},
    {MeanSynodicMonth, "a lunar cycle", "12 lunar cycles"},
    {MeanTropicalYear, "a year", "10 years"},
    {3652.42189, "a decade", "10 decades"},
    {36524.2189, "a century", "10 centuries"},
};
static_assert(std::size(steps) == decltype(HorvantaMDI::StepMenu)::size());

std::size_t Number(std::int32_t index) { return static_cast<std::size_t>(index); }

/// How many steps a jump takes.
struct Jump {
    double increment;
    double steps;
};

constexpr Jump jumps[] = {{1, 7}, {7, 4}, {MeanSynodicMonth, 12}};
constexpr double otherJump = 10;

/// What a person reads of the day number; a copy has all its digits.
std::string DayNumberText() {
    constexpr int decimals = 6;  // a tenth of a second
    return GeneralText(Round(DisplayedMoment, decimals));
}

double StepsOfJump() {
    const auto* jump = std::ranges::find(jumps, Increment, &Jump::increment);
    return jump == std::end(jumps) ? otherJump : jump->steps;
}

}  // namespace

TimeAstro::TimeAstro(HorvantaMDI& frame) : fields(form, frame, TimeOfDay), frame_(frame) {
    HangHandlers();
    HangMenus();
}

WindowRow TimeAstro::Row() {
    return {.form = form,
            .first = FixedDayNum,
            .update = [this] { Update(); },
            .finish = [this] { fields.ShowAstronomy(); },
            .open = OpenAt::EveryStart,
            .colors = &colors,
            .settings = StoredRows(),
            .check = &stepping::options.AlwaysToday};
}

void TimeAstro::HangHandlers() {
    FixedDayNum.LostFocus = [this] { FixedDayNum_LostFocus(); };
    JumpToPast.Click = [this] { JumpToPast_Click(); };
    NextDown.Click = [this] { NextDown_Click(); };
    DayDown.Click = [this] { DayUpDown(-1, 1); };
    DayUp.Click = [this] { DayUpDown(1, 1); };
    NextUp.Click = [this] { NextUp_Click(); };
    JumpToFuture.Click = [this] { JumpToFuture_Click(); };
    ClipBoardStatus.Click = [this] { ClipBoardStatus_Click(); };
    form.KeyDown = [this](int code, int shift) { return Form_KeyDown(code, shift); };
    HangCopies();
}

/// What is copied has all its digits.
void TimeAstro::HangCopies() {
    FixedDayNum.Click = FixedDayNumLabel.Click = [this] {
        frame_.SetClipboardText(FixedDayNum.tooltip + ": " + GeneralText(DisplayedMoment));
    };
    TimeOfDay.Click = UT.Click = [this] { frame_.SetClipboardText(LocalTimes(DisplayedMoment)); };
    SavedToFrom.Click = [this] { CopySavedDifference(); };
    frame_.CopyOnClick(SavedDiffBox, SavedToFrom.Click);
    FixedDayNum.copies = TimeOfDay.copies = true;
    for (Label* caption : {&FixedDayNumLabel, &UT, &SavedToFrom}) frame_.OfferCopy(*caption);
}

void TimeAstro::HangMenus() {
    frame_.Form_KeyDown = form.KeyDown;
    frame_.DayUpDown = [this](double count, double size) { DayUpDown(count, size); };
    frame_.TakeFocus = [this] { TakeFocus(); };
    frame_.ShowClipboardText = [this](const std::string& clip) { ClipBoardStatus.text = clip; };
    for (std::size_t number = 1; number <= std::size(steps); ++number) {
        const auto index = static_cast<std::int32_t>(number);
        MenuItem& item = frame_.StepMenu[number];
        item.Shows(stepping::options.StepIndex, index);
        item.Click = [this, index] { StepMenu_Click(index); };
    }
    frame_.StepBySolarYear.Shows(stepping::options.StepsBySolarYear);
    frame_.StepByOrbitalYear.ShowsWhen([] { return !stepping::options.StepsBySolarYear; });
    frame_.StepBySolarYear.Click = [this] { StepBySolarYear_Click(); };
    frame_.StepByOrbitalYear.Click = [this] { StepByOrbitalYear_Click(); };
    SetYearStepCaptions();
}

void TimeAstro::Update() {
    if (!Locale.NoDST) fields.SetDSTcolour();
    ShowMoment();
    if (time_fields::options.ShowsDawnDusk) fields.ShowDay();
}

/// A moment in the present numbering; 0 was never set. One that went along to the other scale of time may lie just
/// outside the range.
Setting MomentRow(std::string_view key, Moment& moment) {
    constexpr double margin = 30;  // days; Delta T is less
    return {"Item", std::string(key), "0",
            [&moment](const std::string& text) {
                return TakeIf(NumberOf(text, MinFixedDay - margin, MaxFixedDay + margin),
                              [&](double x) { moment = x; });
            },
            [&moment] { return ExactText(moment); }};
}

Settings TimeAstro::StoredRows() {
    Settings rows{
        WholeRow("Item", "Step", stepping::options, &stepping::Options::StepIndex, 1,
                 static_cast<std::int32_t>(std::size(steps))),
        TruthRow("Item", "Year", stepping::options, &stepping::Options::StepsBySolarYear),
        MomentRow("RD", DisplayedMoment),
        MomentRow("SD", SavedMoment),
    };
    Append(rows, fields.StoredRows());
    return rows;
}

/// The words tell on which side of the saved date the displayed one lies.
void TimeAstro::ShowMoment() {
    const double difference = Round(SavedMoment - DisplayedMoment, 3);
    SavedToFrom.text = std::string("day") + (std::fabs(difference) != 1 ? "s " : " ") +
                       (difference > 0 ? "before" : "after") + " saved date.";
    SavedDiffBox.text = GeneralText(std::fabs(difference));
    FixedDayNum.text = DayNumberText();
    TimeOfDay.text = FormatTime(DisplayedMoment, 0);
    if (toldNumbering_ != NumberingSerial || toldScale_ != ScaleName()) SetFixedDayNumberToolTip();
}

void TimeAstro::JumpDate(double count, bool snap) {
    if (count == 0) return;
    if (Increment == MeanSynodicMonth) {
        DisplayedMoment = JumpCycles(DisplayedMoment, count);
    } else if (Increment != Floor(Increment)) {
        DisplayedMoment = AfterYears(Increment * count / MeanTropicalYear);
    } else {
        DisplayedMoment += Increment * count;
        if (snap && count == Floor(count)) DisplayedMoment = Floor(DisplayedMoment);
    }
    UpdateStatus();
}

/// A step over the end of the range is heard at once.
Moment TimeAstro::AfterYears(double years) const {
    if (!stepping::options.StepsBySolarYear) return StepByOrbitalYear(DisplayedMoment, years);
    ClampToRange(DisplayedMoment + MeanTropicalYear * years - 30);
    return SameLongitudeYearsLater(DisplayedMoment, years);
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

std::string TimeAstro::StepCaption() const {
    return RemoveAmpersands(frame_.StepMenu[Number(stepping::options.StepIndex)].caption);
}

void TimeAstro::SetIncrement(std::int32_t index, double size) {
    stepping::options.StepIndex = index;
    Increment = size;
    IncrementDisplay.text = "Step by " + StepCaption();
    frame_.JumpBy.caption = "Jump By " + StepCaption() + "...";
    SetStepCaptions(index);
}

void TimeAstro::StepBySolarYear_Click() { ChooseYears(true); }
void TimeAstro::StepByOrbitalYear_Click() { ChooseYears(false); }

void TimeAstro::ChooseYears(bool solar) {
    stepping::options.StepsBySolarYear = solar;
    SetYearStepCaptions();
    SetIncrement(stepping::options.StepIndex, Increment);
}

void TimeAstro::SetYearStepCaptions() {
    constexpr const char* units[] = {"&Years", "Decades", "&Centuries"};
    const std::string kind = stepping::options.StepsBySolarYear ? "Solar " : "Orbital ";
    for (std::size_t i = 0; i < std::size(units); ++i) frame_.StepMenu[4 + i].caption = kind + units[i];
}

/// Where a step is a day, the day buttons would repeat the step buttons and make room for them.
void TimeAstro::SetStepCaptions(std::int32_t index) {
    const Step& step = steps[index - 1];
    const bool byDays = frame_.StepMenu[Number(index)].caption.find("Days") != std::string::npos;
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
    toldNumbering_ = NumberingSerial;
    toldScale_ = ScaleName();
    const std::string scale(toldScale_);
    FixedDayNumLabel.text = scale + " Day Number";
    FixedDayNum.tooltip =
        scale + " Days relative to day 1 on " + FixedToGregorianString(1) + " (Gregorian) at Midnight";
    const GregorianDate dayOne = FixedToGregorianDate(1);
    DayOne.text = "1 = " + std::string(GregorianMonthNames[dayOne.month - 1].substr(0, 3)) + " " +
                  std::to_string(dayOne.day) + ", " + std::to_string(dayOne.year);
    DayOne.tooltip = FixedDayNum.tooltip;
    UT.text = scale + " Time";
    FixedDayNum.spoken = FixedDayNumLabel.text;
    TimeOfDay.spoken = UT.text;
    TimeOfDay.tooltip = UT.text + " (" + scale.front() + "T) at displayed day fraction, click for local times";
    UT.tooltip = "Click for local times";
}

/// A text that was only looked at keeps the moment, digits that it does not show included.
void TimeAstro::FixedDayNum_LostFocus() {
    const std::string shown = DayNumberText();
    const auto day = ParseNumber(FixedDayNum.text);
    if (!day) RefuseEntry(FixedDayNum.text, "a day number");
    const bool changed = day && *day != DisplayedMoment && Trimmed(FixedDayNum.text) != shown;
    FixedDayNum.text = shown;
    if (!changed) return;
    DisplayedMoment = *day;
    UpdateStatus();
}

void TimeAstro::CopySavedDifference() {
    const double days = std::fabs(SavedMoment - DisplayedMoment);
    frame_.SetClipboardText(SavedDiffBox.text + " " + SavedToFrom.text + " = " + GeneralText(Floor(days)) + " days " +
                            FormatTime(days, 0));
}

void TimeAstro::ClipBoardStatus_Click() { frame_.SetClipboardText(""); }

}  // namespace horvanta
