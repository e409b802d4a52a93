#pragma once

#include "core/controls.h"
#include "core/numerics.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// What every calendar answers to whoever lays out its months, without either knowing the other.
namespace horvanta {

/// The displayed date as a day in a month of a calendar. A calendar that can't give one leaves the month at 0.
struct GridDate {
    std::int32_t year = 0;
    std::int16_t month = 0;
    std::int16_t day = 0;
    std::int16_t monthLength = 0;
    std::int16_t firstWeekday = 0;  ///< The column, 0 to 6, of the month's first day.
};

/// Weekday names by column.
using DayNames = std::array<std::string, 7>;

constexpr bool HasNoYear0() { return false; }

/// A calendar as a row of operations.
struct CalendarContract {
    std::string_view name;

    /// The fixed day of a date.
    FixedDay (*ToFixed)(std::int32_t year, std::int32_t month, std::int32_t day);

    /// The date of the displayed moment.
    GridDate (*GetDate)();

    /// Adds the names of the year's months to the list and selects the displayed one.
    void (*SetMonthNames)(ChoiceList& list, std::int32_t year);

    void (*SetDayNames)(DayNames& longNames, DayNames& shortNames);

    /// What the cell of a day of the month shows, where that is not its number.
    std::string (*CellText)(const GridDate& shown, std::int32_t day) = nullptr;

    /// Whether it has a year 0; null for one that always has.
    bool (*HasYear0)() = nullptr;

    /// What it is called at present; null for one that always goes by its name.
    std::string (*PresentName)() = nullptr;

    /// The month behind which a leap month moves those that follow; 0 where no month moves.
    std::int16_t leapMonthAfter = 0;
};

}  // namespace horvanta
