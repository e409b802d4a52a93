#pragma once

#include "calendars/calendar_contract.h"
#include "core/numbering.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The proleptic Gregorian calendar, through which the day numbers are defined, and the ISO week calendar. Both have
/// a year 0 (1 BC) and negative years. The conversions follow Reingold and Dershowitz, Calendrical Calculations;
/// they take any year of 32 bits and any month from 1 to 12, and validate nothing.
namespace horvanta {

/// Index 0 = Sunday; the eighth entry serves weeks that begin on Monday.
inline constexpr std::string_view WeekdayNames[] = {"Sunday",   "Monday", "Tuesday",  "Wednesday",
                                                    "Thursday", "Friday", "Saturday", "Sunday"};
inline constexpr std::string_view ShortWeekdayNames[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};

inline constexpr std::string_view GregorianMonthNames[] = {"January",   "February", "March",    "April",
                                                           "May",       "June",     "July",     "August",
                                                           "September", "October",  "November", "December"};

struct GregorianDate {
    FixedDay fixed = 0;
    std::int16_t yearDay = 0;  ///< 1 on January 1.
    std::int32_t year = 0;
    std::int32_t month = 0;    ///< 1 to 12.
    std::int16_t day = 0;      ///< 1 to 31.
    std::int32_t weekday = 0;  ///< 0 = Sunday.
    std::string_view weekdayName;
};

struct ISODate {
    FixedDay fixed = 0;
    std::int32_t year = 0;
    std::int16_t week = 0;        ///< 1 to 53.
    std::int16_t weekday = 0;     ///< 1 = Monday to 7 = Sunday.
    std::int16_t ordinalDay = 0;  ///< Of the ISO year, 1 to 371.
    bool isLeap = false;          ///< The ISO year has 53 weeks.
};

bool isGregorianLeapYear(std::int32_t year);

/// The fixed day of a date.
FixedDay GregorianToFixed(std::int32_t year, std::int32_t month, std::int32_t day);

/// The fixed day of December 31.
FixedDay GregorianYearEnd(std::int32_t year);

/// The year of a moment; the nearest year of 32 bits for a moment beyond them.
std::int32_t FixedToGregorianYear(Moment x);

/// The date of a moment.
GregorianDate FixedToGregorianDate(Moment x);

/// Days of a month, 28 to 31.
std::int16_t GregorianMonthLength(std::int32_t year, std::int32_t month);
constexpr std::int32_t GregorianYearLength(bool isLeap) { return isLeap ? 366 : 365; }

/// The date as "Monday, January 15, 2024"; a year before 1 as its plain number.
std::string GregorianDateString(const GregorianDate& date);
std::string FixedToGregorianString(Moment x);

/// The dominical letters of a year: the letter of its Sundays, where A is January 1, and in a leap year behind it the
/// letter of its Sundays from March on. 2000 has "BA".
std::string GregorianDominicalLetters(std::int32_t year);

/// The fixed day of a weekday, 1 = Monday to 7 = Sunday, of a week of the ISO year.
FixedDay ISOToFixed(std::int32_t year, std::int32_t week, std::int32_t weekday);

/// True if the ISO year has 53 weeks.
bool isISOLeapYear(std::int32_t year);
constexpr std::int32_t ISOYearLength(bool isLeap) { return isLeap ? 371 : 364; }

/// The ISO date of a moment.
ISODate FixedToISODate(Moment x);

/// The date as "2024-W03-1".
std::string ISODateString(const ISODate& date);

/// What the day of a date is in its calendar.
std::vector<std::string> EventsOf(const ISODate& date);

/// The ISO year stands as 13 blocks of four weeks, the last of which takes the leap week.
extern const CalendarContract GregorianCalendar;
extern const CalendarContract ISOCalendar;

}  // namespace horvanta
