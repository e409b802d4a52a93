#pragma once

#include "calendars/calendar_contract.h"
#include "core/numerics.h"
#include "lunar/yerm_eras.h"

#include <cstdint>
#include <optional>
#include <string>

/// Dates of the Yerm calendar, an arithmetic lunar one. A day of it runs from noon to noon of Universal Time: as a
/// fixed day it is its start, which has a half. Where only whole days are shown it is the midnight inside it.
///
/// A date is an era (in the fixed form a cycle), a yerm from 1, or 0 where the era has one, a month from 1 to 15 or 17,
/// and a day. Months with odd numbers have 30 days. Lunations count months from J2000.
namespace horvanta {

struct YermDate {
    std::int16_t EraNumber = 0;
    std::int16_t Yerm = 0;
    std::int16_t Month = 0;
    std::int16_t Day = 0;
    FixedDay Fixed = 0;   ///< The start of the day.
    double Lunation = 0;  ///< The month, with the fraction of it that is over when the day begins.
    FixedDay EraStart = 0;
    FixedDay EraEnd = 0;
};

/// The months of a yerm, 17 or in every third 15, and the days of a month, 30 or 29.
constexpr std::int32_t MonthsInYerm(std::int32_t yerm) { return yerm % 3 == 0 ? 15 : 17; }
constexpr std::int32_t DaysInYermMonth(std::int32_t month) { return month % 2 == 0 ? 29 : 30; }

/// The date of a moment; nothing before the first era of a list.
std::optional<YermDate> FixedToYermDate(Moment x);

/// The date of a month and the fraction of it.
std::optional<YermDate> LunationToYermDate(double lunation);

/// The start of a day. Yerms, months and days past their number run over into what follows. `NeverMoment` for an era
/// that there is not.
FixedDay YermDateToFixed(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day);

/// The month of a date, with the fraction that is over.
double YermDateToLunation(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day);

/// The date as "21+3(5(24": era or cycle, yerm, month and day; a dash where there is none.
std::string FixedToYermString(Moment x);

/// True if the moment has a date in a yerm that its era has, and the date leads back to its day.
bool FixedHasValidYermDate(Moment x);

/// True if there is such a date: by its day, and by its lunation.
bool IsValidYermDate(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day);
bool IsValidYermLunation(std::int32_t era, std::int32_t yerm, std::int32_t month, std::int32_t day);

/// The first day of a month, from the era's yerms and by a closed formula; nothing before the first era.
FixedDay LunationEraToFixed(double lunation);
std::optional<FixedDay> VarnokLunationToFixed(double lunation);

/// The same of a Hebrew lunation, counted from the first molad. The second needs no eras: before the first of a list
/// it goes on with the fixed cycle, whose days it begins at midnight.
FixedDay HebrewLunationEraToFixed(double hebrewLunation);
FixedDay HCEMtoFixed(double hebrewLunation);

/// The moment of a month by the mean month of its era, which keeps to the mean new moon as well as the first yerm of
/// number 1 begins with it.
Moment LunationEraToMoment(double lunation);

/// The same place in the next yerm (direction 1) or in the one before (-1), as far as that has as many months; with a
/// list it is a midnight. `NeverMoment` where there is none.
Moment JumpYerm(Moment from, int direction);

/// As far into the next or the previous era.
Moment JumpYermEra(Moment from, int direction);

/// Grids number the yerms on from the first of all, as if they were years.
extern const CalendarContract YermCalendar;

}  // namespace horvanta
