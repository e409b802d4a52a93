#pragma once

#include "calendars/calendar_contract.h"
#include "core/numbering.h"
#include "hebrew/hebrew_options.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The fixed arithmetic of the traditional Hebrew calendar: the molad (mean new moon), the new year and its
/// postponements, month lengths and dates (Reingold and Dershowitz, Calendrical Calculations).
///
/// A Hebrew date runs from sunset to sunset; here a fixed day has the date of its daytime, at whatever hour. Months
/// count from Nisan = 1, while the year changes at Tishrei = 7; a common year ends its winter with Adar = 12, a leap
/// year with Adar Rishon = 12 and Adar Sheini = 13. Years may be zero or negative. Nothing is validated: any year of
/// 32 bits, any month and any day have a result.
///
/// A lunation is a whole number of months, counted from the molad of Tishrei of year 1 = 0.
namespace horvanta {

/// Days from one molad to the next: 29 days 12 hours 793 parts, of 1080 to the hour.
inline constexpr double MoladInterval = 29.53059413580247;

/// The first molad, 5 hours 204 parts after the 6 pm that begins its day, where days begin at midnight.
inline Moment MoladEpoch() { return HebrewEpoch - 6.0 / 24 + 5.0 / 24 + 204.0 / 25920; }

/// The same on a scale of days that begin at 6 pm: a whole number is 6 pm.
inline Moment MoladEpochEve() { return HebrewEpoch + 5.0 / 24 + 204.0 / 25920; }

struct HebrewDateRecord {
    FixedDay Fixed = 0;
    std::int32_t Year = 0;
    std::int32_t Month = 0;        ///< 1 to 13 from Nisan.
    std::int16_t Day = 0;          ///< 1 to 30.
    std::int16_t YearDay = 0;      ///< 1 on 1 Tishrei.
    std::int32_t WeekDay = 0;      ///< 1 = Yom Rishon (Sunday) to 7 = Shabbat.
    std::string_view WeekDayName;  ///< Its `WeekdayLabel`.
};

// Years.

/// Days from `HebrewEpoch` to the day of the molad of Tishrei, or to the day after it if the molad comes at or after
/// noon or on a weekday that can't begin a year, or both.
std::int64_t ElapsedDays(std::int32_t year);

/// The fixed day of 1 Tishrei.
FixedDay HebrewNewYear(std::int32_t year);

/// 353 to 355, or 383 to 385 in a leap year.
std::int32_t DaysInHebrewYear(std::int32_t year);

/// Cheshvan has 30 days.
bool LongCheshvan(std::int32_t year);

/// Kislev has 29 days.
bool ShortKislev(std::int32_t year);

/// Leap years in the cycle of 19 years: 3, 6, 8, 11, 14, 17 and 19.
bool isHebrewLeapYear19(std::int32_t year);

/// Leap years of the traditional cycle, or of the rectified one of 353 years.
bool isHebrewLeapYear(bool rectified, std::int32_t year);

/// 12 or 13.
std::int32_t MonthsInHebrewYear(std::int32_t year);

/// Days of a month, 29 or 30; 30 for a month that doesn't exist, but 29 for month 13 of a common year.
std::int16_t LastDayOfHebrewMonth(std::int32_t year, std::int32_t month);

// Dates.

/// The fixed day of a date. A day or month beyond its end runs over into what follows; a month below 1 is taken for 1.
FixedDay HebrewToFixed(std::int32_t year, std::int32_t month, std::int32_t day);

/// The date of a moment's day; the nearest date of a year of 32 bits for a moment beyond them.
HebrewDateRecord FixedToHebrewDate(Moment moment);
std::int32_t FixedToHebrewYear(Moment moment);

/// "Nisan" to "Adar Sheini" for months 1 to 13, where 12 is "Adar" or "Adar Rishon" as the year has it; "All" for 0,
/// as pickers want it; empty for any other.
std::string_view HebrewMonthName(std::int32_t year, std::int32_t month);

/// "Yom Rishon" for 0 = Sunday to "Yom Shabbat" for 6.
std::string_view WeekdayName(std::int32_t weekday);

/// The weekday of a moment's day.
std::string_view WeekdayLabel(Moment x);

/// The date as "Yom Sheini, 1 Tishrei, 5773", with the tags of italics around weekday and month if asked.
std::string HebrewDateString(const HebrewDateRecord& date, bool withWeekday, bool italics, bool withYear);
std::string FixedToHebrewString(Moment moment);

/// The date as "1 Tishrei, 5773" or, as `FixedToHebrewShortDate` has it, "1 Tishrei".
std::string HebrewShortDateString(const HebrewDateRecord& date, bool withYear);
std::string FixedToHebrewShortDate(Moment moment);

// Reckonings.

/// A way to count days into months, as a row of the operations above: the traditional one, or one of the modes.
struct HebrewReckoning {
    FixedDay (*ToFixed)(std::int32_t year, std::int32_t month, std::int32_t day);
    HebrewDateRecord (*DateOf)(Moment moment);
    std::int32_t (*MonthsInYear)(std::int32_t year);
    std::int16_t (*LastDayOfMonth)(std::int32_t year, std::int32_t month);
    std::string_view (*MonthName)(std::int32_t year, std::int32_t month);
    bool astronomical = false;
};
extern const HebrewReckoning TraditionalReckoning;

// Molad.

/// Lunations before a month by the traditional cycle.
double ElapsedMonths19(std::int32_t year, std::int32_t month);

/// Lunations before a month by the traditional cycle, or by the rectified one of 353 years.
double ElapsedMonths(bool rectified, std::int32_t year, std::int32_t month);

/// The molad of a month, where days begin at midnight.
Moment molad(std::int32_t year, std::int32_t month);

/// The last molad at or before a moment, both where days begin at midnight; lunations beyond 32 bits are the nearest.
/// At an early molad itself rounding may give the one before.
Moment MoladBefore(Moment moment);

/// The molad of a lunation, where days begin at 6 pm.
Moment TraditionalMolad(double n);

/// The lunations up to a moment with their fraction, where days begin at 6 pm.
double TraditionalMomentToLunation(Moment moment);

/// The molad of a lunation plus `addend` days, where days begin at 6 pm. The progressive one is less its
/// `MoladAdjustment` in whole parts.
Moment MyMoladMoment(bool progressive, double n, double addend);

/// The day of a molad, or the day after it for one at or after noon.
FixedDay MoladDay(bool progressive, double n);

// What kind of year.

/// The character of a year, as "5P3*": the weekday of its first day, 1 = Yom Rishon to 7 = Shabbat; P, N or D for
/// perfect, normal or deficient; the weekday of its first day of Passover; and "*" if it is a leap year.
std::string HebrewYearCharacter(std::int32_t year);

/// The character in words, "Normal Non-Leap Year (Cheshvan 29 days, Kislev 30 days)", with the place of the year in
/// the 19 of its cycle if asked. `separator` stands before the parenthesis, the italics around months.
std::string HebrewYearType(std::int32_t year, bool withCycle, std::string_view separator, std::string_view openItalic,
                           std::string_view closeItalic);

/// Why the year begins where it does after its molad: as a sentence, or as the numbers of the rules that postponed
/// it, ":" and the reason. `separator` stands where a line may be broken; italics are tags around Hebrew words.
///
/// | rule | postponed because                                                                     |
/// |------|---------------------------------------------------------------------------------------|
/// | 1    | the molad comes at or after noon (Molad Zakein)                                       |
/// | 2    | the day is a Sunday, Wednesday or Friday (Lo ADU Rosh)                                |
/// | 3    | the year would have 356 days (GaTaRaD)                                                |
/// | 4    | the leap year before it would have 382 days (BeTUTaKPaT)                              |
std::string PostponeReason(std::int32_t year, std::string_view separator, bool italics, bool asSentence);

/// Grids count a year's months from Tishrei as 1 to 12 or 13.
namespace hebrew {
extern const CalendarContract Calendar;
}  // namespace hebrew

}  // namespace horvanta
