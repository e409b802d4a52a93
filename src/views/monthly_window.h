#pragma once

#include "core/controls.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <array>
#include <cstdint>

namespace horvanta {

namespace monthly {
struct Options {
    bool WeekdaysAsRows = false;     ///< Else they stand as columns.
    std::int32_t MonthCalendar = 0;  ///< The calendar that the user chose, by its place in the list of all, from 0.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace monthly

/// The displayed date as a month of a chosen calendar. It knows no calendar, only what their contracts answer.
class MonthlyWindow {
  public:
    /// The calendars in the order of the list; a place whose calendar is not there yet is left out of what is shown.
    static constexpr std::size_t CalendarCount = GridCalendarCount;

    explicit MonthlyWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Takes a calendar into its place of the list.
    void Offer(const GridCalendar& calendar) { calendars_[calendar.place] = calendar; }

    /// Lists the calendars and chooses the one that the user chose, or the first there is.
    void InitCalendars();

    /// The calendar and the layout.
    static Settings StoredRows();

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
    TextField ThisYear{form, "ThisYear", Tip("Change using  +/-  or up/down arrow  keys, Shift x10, Ctrl x100, both x1000"), Widest("-10000"), Named("Year")};
    UpDown ChangeByYear{form, "ChangeByYear", Tip("Click to change Year (+Shift=by Decades, +Ctrl=by Centuries, +Ctrl+Shift=by Millennia)"), Named("Year")};
    ChoiceList MonthNames{form, "MonthNames", Tip("Choose the desired month")};
    ChoiceList Calendars{form, "Calendars", Tip("Choose the desired calendar")};
    Button PrevMonth{form, "PrevMonth", Caption("<"), Named("Previous month"), Tip("Click to go back to the previous month")};
    Button NextMonth{form, "NextMonth", Caption(">"), Named("Next month"), Tip("Click to advance to the next month")};
    Button Layout{form, "Layout", Tip("Click to change month layout"), Widest("&Across")};
    CellGrid Days{form, "Days", Tip("Days of the month"), Widest("W53-7")};
    // clang-format on

  private:
    const GridCalendar& Current() const { return calendars_[current_]; }
    void HangHandlers();
    void KeepFocusInList();
    void ShowHeadings();
    void ShowNames();
    void ShowCells(const GridDate& date);
    void ShowToday(const GridDate& date);
    std::string SpokenDay() const;
    void WearColors();
    void MoveTo(std::int32_t year, std::int32_t month, std::int32_t day, bool keepTime);
    void ShowMonth(std::int32_t year, std::int32_t month, bool keepTime);
    void ChangeYear(std::int32_t year);
    std::int32_t MonthsIn(std::int32_t year) const;
    void ShowLayout();
    bool ObeyCellKey(int code, int shift);
    bool ObeyYearKey(int code, int shift);
    bool RestoreYear();
    void TakeYear();
    void TakeFocus() { Days.TakeFocus(); }

    HorvantaMDI& frame_;
    std::array<GridCalendar, CalendarCount> calendars_;
    std::array<std::size_t, CalendarCount> listed_{};  ///< The places of the calendars that are in the list.
    std::size_t current_ = 0;                          ///< The place of the calendar that is shown.
    GridDate shown_;
};

}  // namespace horvanta
