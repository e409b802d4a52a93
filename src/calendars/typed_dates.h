#pragma once

#include "calendars/calendar_contract.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Dates of any calendar as a user types them, which nothing but these has checked.
namespace horvanta {

/// A date that was read.
struct TypedDate {
    Moment moment = NeverMoment;  ///< Universal; a whole day unless the text has told its time. Never for no date.
    bool hasTime = false;
    std::string told;  ///< How the text was read, "Julian calendar, 15 March 44 BC"; or why it is no date.
};

/// The day of a date. The month is a place in the list of the year's months, from 1.
TypedDate DayOf(const CalendarContract& calendar, std::int32_t year, std::int32_t month, std::int32_t day);

/// A line of text: "2024-02-29", "2024-W09-4", "JD 2460000.5", "MJD 60000", "15 March 44 BC" or "March 15, 44 BC". The
/// name of a month, in any case and without its accents, or at least three letters that it begins with, tells the
/// calendar: the first of those that know it. Years BC are Julian, and so are years AD where the Julian calendar stands
/// ahead of the Gregorian one.
TypedDate ReadDate(std::string_view text, std::span<const CalendarContract* const> calendars);

/// A year as the calendar writes it, and the way back, which takes its number too.
std::string YearText(const CalendarContract& calendar, std::int32_t year);
std::optional<std::int32_t> ReadYear(const CalendarContract& calendar, std::string_view text);

/// Why there is no such year, or none in reach; nothing where there is one.
std::string WhyNoYear(const CalendarContract& calendar, std::int32_t year);

/// A day of a month as the calendar shows it, and the way back, which takes its number too.
std::string DayOfMonthText(const CalendarContract& calendar, const GridDate& date);
std::optional<std::int32_t> ReadDay(const CalendarContract& calendar, const GridDate& month, std::string_view text);

}  // namespace horvanta
