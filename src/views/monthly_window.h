#pragma once

#include "calendars/calendar_contract.h"
#include "core/controls.h"
#include "core/shell.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace horvanta {

/// A calendar as the month grid takes it: its answers, whose colours the grid wears, and the item that shows its
/// window.
struct GridCalendar {
    const CalendarContract* contract = nullptr;
    const Control* colorSource = nullptr;
    MenuItem* window = nullptr;
    std::function<bool()> isOpen;
};

/// Which layout the button of the month grid offers: "&Across" while the weekdays stand as rows, "&Down" while they
/// stand as columns.
inline std::string MonthLayoutCaption = "&Across";

/// Which calendar the user chose for the month grid, by its place in the list of all, from 0.
inline std::int32_t MonthCalendar = 0;

/// The displayed date as a month of a chosen calendar. It knows no calendar, only what their contracts answer.
class MonthlyWindow {
  public:
    /// The calendars in the order of the list; a place whose calendar is not there yet is left out of what is shown.
    static constexpr std::size_t CalendarCount = 9;

    explicit MonthlyWindow(HorvantaMDI& frame);

    /// Takes a calendar into its place of the list.
    void Offer(std::size_t place, const GridCalendar& calendar);

    /// Lists the calendars and chooses the one of `MonthCalendar`, or the first there is.
    void InitCalendars();

    /// Shows the month of the displayed moment.
    void Update();

    // Commands of the controls.
    void Calendars_Click();
    void MonthNames_Click();
    void PrevMonth_Click();
    void NextMonth_Click();
    void Layout_Click();
    void SelectCell(std::size_t cell);

    // clang-format off
    Form form{"Monthly", "Month"};
    TextField ThisYear{form, "ThisYear", Tip("Change using  +/-  or up/down arrow  keys, Shift x10, Ctrl x100, both x1000"), Widest("-10000")};
    UpDown ChangeByYear{form, "ChangeByYear", Tip("Click to change Year (+Shift=by Decades, +Ctrl=by Centuries, +Ctrl+Shift=by Millennia)")};
    ChoiceList MonthNames{form, "MonthNames", Tip("Choose the desired month")};
    ChoiceList Calendars{form, "Calendars", Tip("Choose the desired calendar")};
    Button PrevMonth{form, "PrevMonth", Caption("<"), Tip("Click to go back to the previous month")};
    Button NextMonth{form, "NextMonth", Caption(">"), Tip("Click to advance to the next month")};
    Button Layout{form, "Layout", Tip("Click to change month layout"), Widest("&Across")};
    CellGrid Days{form, "Days", Tip("Days of the month"), Widest("W53-7")};
    // clang-format on

  private:
    bool isAcross() const { return MonthLayoutCaption == "&Across"; }
    const GridCalendar& Current() const { return calendars_[current_]; }
    void HangHandlers();
    void ShowHeadings();
    void ShowNames();
    bool HasYear0() const;
    void ShowCells(const GridDate& date);
    void WearColors();
    void MoveTo(std::int32_t year, std::int32_t month, std::int32_t day, bool keepTime);
    void ShowMonth(std::int32_t year, std::int32_t month, bool keepTime);
    void ChangeYear(std::int32_t year);
    std::int32_t YearBeside(std::int32_t year, std::int32_t direction) const;
    std::int32_t MonthsIn(std::int32_t year) const;
    bool ObeyCellKey(int code, int shift);
    bool ObeyYearKey(int code, int shift);
    void TakeYear();
    void TakeFocus() { Days.TakeFocus(); }

    HorvantaMDI& frame_;
    std::array<GridCalendar, CalendarCount> calendars_;
    std::array<std::size_t, CalendarCount> listed_{};  ///< The places of the calendars that are in the list.
    std::size_t current_ = 0;                          ///< The place of the calendar that is shown.
    GridDate shown_;
};

}  // namespace horvanta
