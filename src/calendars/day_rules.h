#pragma once

#include "calendars/day_text.h"
#include "core/numerics.h"

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

/// Rules that tell on which days of a year something falls, one a row, and their reading. They know a date by its
/// numbers alone, so that any calendar with twelve months or more can have its own.
namespace horvanta::day_rules {

/// What a rule asks of a day.
struct Date {
    std::int32_t year = 0;
    int month = 0;
    int day = 0;
    int monthLength = 0;
    int weekday = 0;  ///< 0 = Sunday.
};

/// Weekdays as a set of bits, the least of which is Sunday.
enum Weekdays : unsigned {
    Sunday = 1U << 0,
    Monday = 1U << 1,
    Tuesday = 1U << 2,
    Wednesday = 1U << 3,
    Thursday = 1U << 4,
    Friday = 1U << 5,
    Saturday = 1U << 6,
    MondayToFriday = Monday | Tuesday | Wednesday | Thursday | Friday,
    AnyWeekday = MondayToFriday | Saturday | Sunday,
};

/// The days of a month from one to another that fall on one of some weekdays. Days before 1 are those at the end of the
/// month before: 0 is its last.
struct Days {
    int first;
    int last;
    Weekdays weekdays = AnyWeekday;
    bool fromMonthEnd = false;  ///< 0 is the month's own last day, -1 the one before.
};
constexpr Days Day(int day, Weekdays weekdays = AnyWeekday) { return {day, day, weekdays}; }
constexpr Days On(Weekdays weekdays, int first, int last) { return {first, last, weekdays}; }
constexpr Days LastOfMonth(Weekdays weekdays) { return {-6, 0, weekdays, true}; }

/// Years from one to another, or every so many of them beginning with the first.
struct Years {
    std::int32_t first = std::numeric_limits<std::int32_t>::min();
    std::int32_t last = std::numeric_limits<std::int32_t>::max();
    std::int32_t every = 1;
};
inline constexpr Years AllYears{};
constexpr Years From(std::int32_t first) { return {first}; }
constexpr Years FromTo(std::int32_t first, std::int32_t last) { return {first, last}; }
constexpr Years Every(std::int32_t years, std::int32_t first,
                      std::int32_t last = std::numeric_limits<std::int32_t>::max()) {
    return {first, last, years};
}

/// One row.
struct Rule {
    int month;
    Days days;
    Years years;
    std::string_view text;
    DayKind kind = DayKind::None;
    std::string (*tail)(const Date& date) = nullptr;  ///< What stands behind the text, if it depends on the date.
};

bool Holds(const Rule& rule, const Date& date);

/// What the rules, which stand by months, say of a date in their order.
void Apply(std::span<const Rule> rules, const Date& date, std::vector<DayText>& day);

}  // namespace horvanta::day_rules
