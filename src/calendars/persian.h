#pragma once

#include "calendars/calendar_contract.h"
#include "core/numbering.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The astronomical solar calendar of Iran, in use since 1925 and here in every year. Its year begins on the day at
/// whose apparent noon, on the meridian of 52.5° E, the Sun has passed the northward equinox since the noon before.
/// Years run from -1 to 1 without a year 0. Months are from 1 to 12, and nothing validates them.
namespace horvanta {

inline constexpr std::string_view PersianMonthNames[] = {"Farvardin", "Ordibehesht", "Khordâd", "Tir",
                                                         "Mordâd",    "Shahrivar",   "Mehr",    "Âbân",
                                                         "Âzar",      "Dey",         "Bahman",  "Esfand"};

/// Index 0 = Saturday.
inline constexpr std::string_view PersianWeekdayNames[] = {"Shanbeh",      "Yek-shanbeh",  "Do-shanbeh", "Se-shanbeh",
                                                           "Char-shanbeh", "Panj-shanbeh", "Jom'eh"};
inline constexpr std::string_view ShortPersianWeekdayNames[] = {"Shan", "Yek", "Do", "Se", "Char", "Panj", "Jom"};

struct PersianDate {
    FixedDay fixed = 0;
    FixedDay newYear = 0;      ///< The year's first day.
    FixedDay nextNewYear = 0;  ///< That of the year after.
    bool isLeap = false;
    std::int16_t yearDay = 0;     ///< 1 on the year's first day.
    std::int16_t weekOfYear = 0;  ///< In weeks from the year's first day, from 1.
    std::int32_t year = 0;
    std::int16_t month = 0;  ///< 1 = Farvardin to 12 = Esfand.
    std::int16_t day = 0;
    std::int16_t daysBeforeMonth = 0;  ///< Of the year.
    std::int16_t monthLength = 0;      ///< 29 to 31.
    std::int32_t weekday = 0;          ///< 0 = Shanbeh (Saturday).
};

namespace persian {

/// The fixed day of 1 Farvardin. A year 0 has that of year 1. `NeverMoment` for years so far off that the series of
/// the Sun no longer lead to one.
FixedDay Norouz(std::int32_t year);

/// True if the year has 366 days.
bool isLeapYear(std::int32_t year);

}  // namespace persian

/// The year of a moment.
std::int32_t FixedToPersianYear(Moment x);

/// The weekday of a moment's day, 0 = Shanbeh (Saturday) to 6 = Jom'eh.
std::int32_t PersianWeekdayNum(Moment x);

/// The fixed day of a date.
FixedDay PersianToFixed(std::int32_t year, std::int32_t month, std::int32_t day);

/// The date of a moment.
PersianDate FixedToPersianDate(Moment x);

/// The date as "1 Farvardin 1403 PE"; a year before 1 as "30 Esfand -1 BPE".
std::string PersianDateString(const PersianDate& date);

/// The moment of the northward equinox in Iran's standard time if it falls on `day` there; otherwise `NeverMoment`.
Moment PersianEquinoxOn(FixedDay day);

/// What the day of a date is in the calendar: feasts, first days of months, the equinox.
std::vector<std::string> EventsOf(const PersianDate& date);

/// Its weeks begin on Saturday.
extern const CalendarContract PersianCalendar;

}  // namespace horvanta
