#include "calendars/day_rules.h"

#include <algorithm>

namespace horvanta::day_rules {
namespace {

/// Whether a day of a month, counted from 1 or from the month's end, is one of those.
bool Includes(const Days& days, int day, int weekday) {
    return days.first <= day && day <= days.last && ((days.weekdays >> weekday) & 1U) != 0;
}

bool Includes(const Years& years, std::int32_t year) {
    if (year < years.first || year > years.last) return false;
    return years.every == 1 || (std::int64_t{year} - years.first) % years.every == 0;
}

bool IncludesDay(const Rule& rule, const Date& date) {
    const int toMonthEnd = date.day - date.monthLength;
    if (rule.month == date.month) {
        return Includes(rule.days, rule.days.fromMonthEnd ? toMonthEnd : date.day, date.weekday);
    }
    return rule.month == date.month + 1 && !rule.days.fromMonthEnd && Includes(rule.days, toMonthEnd, date.weekday);
}

}  // namespace

bool Holds(const Rule& rule, const Date& date) { return IncludesDay(rule, date) && Includes(rule.years, date.year); }

void Apply(std::span<const Rule> rules, const Date& date, std::vector<DayText>& day) {
    const auto from = std::ranges::lower_bound(rules, date.month, {}, &Rule::month);
    const auto end = std::ranges::upper_bound(rules, date.month + 1, {}, &Rule::month);
    for (const Rule& rule : std::span(from, end)) {
        if (!Holds(rule, date)) continue;
        day.push_back({std::string(rule.text), rule.kind});
        if (rule.tail != nullptr) day.back().text += rule.tail(date);
    }
}

}  // namespace horvanta::day_rules
