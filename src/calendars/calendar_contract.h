#pragma once

#include "calendars/day_text.h"
#include "core/numerics.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/// What every calendar answers to whoever lays out its months or takes its dates, without either knowing the other.
namespace horvanta {

/// A day in a month of a calendar. A calendar that can't give one leaves the month at 0.
struct GridDate {
    std::int32_t year = 0;
    std::int16_t month = 0;
    std::int16_t day = 0;
    std::int16_t monthLength = 0;
    std::int16_t firstWeekday = 0;  ///< The column, 0 to 6, of the month's first day.
};

/// The names of a week's days by column, in full and short.
struct NamesOfDays {
    std::array<std::string, 7> full;
    std::array<std::string, 7> brief;
    std::array<std::string, 7> script{};  ///< In the calendar's own letters, where that is another.
};

/// A list of names as texts.
inline std::vector<std::string> Texts(const auto& names) { return {std::begin(names), std::end(names)}; }

/// The week of lists of names that begins with one of them.
inline NamesOfDays WeekFrom(std::size_t first, const auto& full, const auto& brief) {
    NamesOfDays names;
    for (std::size_t i = 0; i < names.full.size(); ++i) {
        const std::size_t day = (first + i) % names.full.size();
        names.full[i] = full[day];
        names.brief[i] = brief[day];
    }
    return names;
}

/// A calendar as a row of operations.
struct CalendarContract {
    std::string_view name;

    /// The fixed day of a date.
    FixedDay (*ToFixed)(std::int32_t year, std::int32_t month, std::int32_t day);

    /// The date of a moment's day.
    GridDate (*DateOf)(Moment x);

    /// The names of a year's months, in their order.
    std::vector<std::string> (*MonthNames)(std::int32_t year);

    NamesOfDays (*DayNames)();

    /// What the cell of a day of the month shows, where that is not its number.
    std::string (*CellText)(const GridDate& shown, std::int32_t day) = nullptr;

    /// Whether it has a year 0; null for one that always has.
    bool (*HasYear0)() = nullptr;

    /// What it is called at present; null for one that always goes by its name.
    std::string (*PresentName)() = nullptr;

    /// A year as it is written, where that is not its number: "44 BC".
    std::string (*YearText)(std::int32_t year) = nullptr;

    /// The month behind which a leap month moves those that follow; 0 where no month moves.
    std::int16_t leapMonthAfter = 0;

    /// What a moment's day is in it; null for one that marks no days.
    std::vector<DayText> (*DaysOf)(Moment x) = nullptr;
};

/// For calendars that never have a year 0.
constexpr bool HasNoYear0() { return false; }

/// What a calendar is called at present.
inline std::string NameOf(const CalendarContract& calendar) {
    return calendar.PresentName ? calendar.PresentName() : std::string(calendar.name);
}

inline bool HasYear0(const CalendarContract& calendar) { return !calendar.HasYear0 || calendar.HasYear0(); }

/// The year so many years after one, or before it, over a year 0 that there is not.
inline std::int32_t YearAfter(const CalendarContract& calendar, std::int32_t year, std::int32_t count) {
    if (HasYear0(calendar)) return year + count;
    const std::int32_t counted = (year < 0 ? year + 1 : year) + count;
    return counted <= 0 ? counted - 1 : counted;
}

}  // namespace horvanta
