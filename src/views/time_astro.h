#pragma once

#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/time_fields.h"
#include "views/window_row.h"

#include <cstdint>

namespace horvanta {

/// The window that owns the displayed moment: its day number and time, the steps and the clipboard line.
class TimeAstro {
  public:
    explicit TimeAstro(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Shows the displayed moment, its distance from the saved one, and the Sun's day.
    void Update();

    /// The steps, the moments and what the fields show.
    Settings StoredRows();

    /// Moves the moment by so many steps of `Increment` days and updates. With `snap`, whole steps end at midnight.
    void JumpDate(double steps, bool snap);

    /// `JumpDate` by steps of `size` days, to midnight.
    void DayUpDown(double steps, double size);

    void NextUp_Click();
    void NextDown_Click();
    void JumpToFuture_Click();
    void JumpToPast_Click();

    /// Obeys a key of the time window, by its code and the bits of `KeyShift`; false if it has no meaning here.
    bool Form_KeyDown(int code, int shift);

    /// Chooses an item of the step menu, from 1; a number that has none acts as the first.
    void StepMenu_Click(std::int32_t index);

    /// What the chosen step is called, "Days".
    std::string StepCaption() const;

    /// Makes `size` days the step, with the words of that item of the step menu.
    void SetIncrement(std::int32_t index, double size);

    /// Moves the focus to the day number, whose window then gets the keys.
    void TakeFocus();

    // Which years the steps by years go by.
    void StepBySolarYear_Click();
    void StepByOrbitalYear_Click();

    /// Words the steps of years by the choice of year.
    void SetYearStepCaptions();

    /// Tells which day the day numbers count from, and in which scale of time.
    void SetFixedDayNumberToolTip();

    void ClipBoardStatus_Click();

    // clang-format off
    Form form{"TimeAstro", "Time"};
    TextField FixedDayNum{form, "FixedDayNum", Widest("-2533803.123457")};
    Label FixedDayNumLabel{form, "FixedDayNumLabel", Widest("Local Mean Day Number")};
    Label DayOne{form, "DayOne", Widest("1 = Nov 25, -4713"), Named("Day 1")};
    Label UT{form, "UT", Widest("Local Mean Time")};
    Label TimeOfDay{form, "TimeOfDay", Widest("00:00:00")};
    Label SavedDiffBox{form, "SavedDiffBox", Tip("Days between the displayed and the saved date"), Widest("6916348.123")};
    Label SavedToFrom{form, "SavedToFrom", Widest("days before saved date.")};
    Button JumpToPast{form, "JumpToPast", Caption("<<<")};
    Button NextDown{form, "NextDown", Caption("<<")};
    Button DayDown{form, "DayDown", Caption("<"), Tip("Back a day (Shift+Space)")};
    Button DayUp{form, "DayUp", Caption(">"), Tip("Forward a day (Space)")};
    Button NextUp{form, "NextUp", Caption(">>")};
    Button JumpToFuture{form, "JumpToFuture", Caption(">>>")};
    Label IncrementDisplay{form, "IncrementDisplay", Tip("Increment"), Widest("Step by Orbital Centuries")};
    Button JumpAgainButton{form, "JumpAgainButton", Caption("Again")};
    Label ClipboardLabel{form, "ClipboardLabel", Caption("Clipboard:")};
    Label ClipBoardStatus{form, "ClipBoardStatus", Tip("Click to clear the clipboard")};
    // clang-format on
    TimeFields fields;
    WindowColors colors{"A", {Color::FromNumber(65535), Color::FromNumber(0)}, TimeOfDay, {{FixedDayNum}}};

  private:
    void HangHandlers();
    void HangCopies();
    void HangMenus();
    void ShowMoment();
    void FixedDayNum_LostFocus();
    void CopySavedDifference();
    void ChooseYears(bool solar);
    Moment AfterYears(double years) const;
    void SetStepCaptions(std::int32_t index);

    HorvantaMDI& frame_;
    std::int64_t toldNumbering_ = -1;  ///< The numbering and the scale that the day number's tooltip tells.
    std::string_view toldScale_;
};

}  // namespace horvanta
