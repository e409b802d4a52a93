#pragma once

#include "calendars/calendar_contract.h"
#include "calendars/julian.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// How Romans and Greeks counted the days and years of the Julian calendar: towards the Kalends, Nones and Ides, from
/// the founding of Rome, in Olympiads; their numerals; and how a Julian date is written.
namespace horvanta {

/// The last one names the leap month of the calendar before Caesar's.
inline constexpr std::string_view RomanMonthNames[] = {"Ianuarius", "Februarius", "Martius",   "Aprilis",   "Maius",
                                                       "Junius",    "Julius",     "Augustus",  "September", "October",
                                                       "November",  "December",   "Mercedinus"};

/// Index 0 = Sunday.
inline constexpr std::string_view RomanWeekdayNames[] = {"Solis dies", "Lunæ dies",    "Martis dies", "Mercurii dies",
                                                         "Iovis dies", "Veneris dies", "Saturni dies"};

/// The days of a month by which the others are told.
enum RomanEvent { Kalends = 1, Nones = 2, Ides = 3 };

struct RomanDate {
    FixedDay fixed = 0;
    std::int32_t year = 0;   ///< Of the event: the days before January 1 have the coming year.
    std::int32_t month = 0;  ///< Of the event, 1 to 12.
    std::int16_t event = 0;  ///< A `RomanEvent`.
    std::int16_t count = 0;  ///< Days to the event, both ends counted: 1 on the event itself.
    bool leap = false;       ///< The second sixth day before the Kalends of March.
};

/// The day of the month on which the Ides and the Nones fall.
constexpr std::int16_t RomanIdes(std::int32_t month) {
    return month == 3 || month == 5 || month == 7 || month == 10 ? 15 : 13;
}
constexpr std::int16_t RomanNones(std::int32_t month) { return static_cast<std::int16_t>(RomanIdes(month) - 8); }

/// The fixed day of a Roman date. The Roman calendar is never a revised one.
FixedDay RomanToFixed(std::int32_t year, std::int32_t month, std::int32_t event, std::int32_t count, bool leap);

/// The Roman date of a moment.
RomanDate FixedToRomanDate(Moment x);

/// The date as " Lunæ dies, ante diem IV nonas Ianuarius MMXXIV AD", with the blank ahead.
std::string RomanDateString(const RomanDate& date);

/// The day of the event as "kalendas Ianuarius 2024 AD".
std::string RomanEventString(const RomanDate& date);

/// A number in Roman numerals, from 4000 up in digits, with one of the suffixes by its sign.
std::string DecimalToRoman(std::int32_t value, std::string_view plusSuffix, std::string_view minusSuffix);

/// The number that Roman numerals or digits are; negative with " BC" behind it. Lower-case letters stand for
/// thousands, but "d" for five million. Other letters count nothing.
std::int32_t RomanToDecimal(std::string_view text);

// Years of the Christian era and from the founding of Rome. Neither has a year 0.
std::int32_t JulianToAUC(std::int32_t year);
std::int32_t AUCToJulian(std::int32_t year);

/// A Julian year by the count of the option `UseAUC`, as "2024 AD", "MMXXIV AD", "44 BC", "2777 AUC" or "1 PUC".
std::string JulianYearString(std::int32_t year, bool asRoman);

/// The Julian or Revised Julian date of a moment as "Mon, Jan 1, 2024 AD", and as "1 Jan".
std::string FixedToJulianShortDate(Moment x);
std::string FixedToJulianMonthDay(Moment x);

struct Olympiad {
    std::int32_t cycle = 0;
    std::int32_t year = 0;  ///< 1 to 4, from July 1 on.
};

/// The first year of the Olympiads of a Julian year: 1896 for the modern ones.
std::int32_t OlympiadStart(std::int32_t year);

/// The Olympiad of a month of a Julian year; its cycle is below 1 before the start.
Olympiad JulianToOlympiad(std::int32_t year, std::int32_t month);

/// The Julian year on whose July 1 a year of an Olympiad that counts from the option `OSY` begins.
std::int32_t OlympiadToJulian(std::int32_t cycle, std::int32_t year);

/// True while the games were held: until 394, and again since 1896.
bool hasOlympiads(std::int32_t year);

/// The Olympiad of August of a Julian year as "c700 y3"; empty where there are none, and for 394.
std::string YearToOlympiadString(double year);

/// The Kalends, Nones and Ides on their day.
std::vector<std::string> EventsOf(const RomanDate& date);

/// "Julian", or "Revised Julian" under that rule.
std::string JulianCalendarName();

// The Julian months, and the same with Latin names, never by the revised rule. Years are those of the Christian era or
// since Rome, as they are written. With years since Rome the length of February follows the divisibility of that
// number.
extern const CalendarContract JulianCalendar;
extern const CalendarContract RomanCalendar;

}  // namespace horvanta
