#pragma once

#include "core/numerics.h"
#include "hebrew/hebrew_arithmetic.h"

#include <cstdint>
#include <string>

/// Other rules for the Hebrew calendar: by the crescent, the true or the mean conjunction, or a molad with a leap cycle
/// of 353 years. `hebrew::options.HebrewMode` chooses one of 24; 0 is the traditional calendar. Modes 1 to 22 are
/// reckoned at Jerusalem, mode 23 at the midpoint between Nile and Euphrates.
///
/// Such a rule fixes the first of Nisan of each spring and, from each month's first day, the next one's.
namespace horvanta {

/// The rule of a mode in words; of the chosen one for a negative number.
std::string AstroRule(std::int32_t mode);

/// The first of Nisan of a year, half a year before the Tishrei of year + 1.
FixedDay NisanFirstDay(std::int32_t year);

/// The first day of the month that follows month `month` of a year, which begins at `first`. With `shift` the new year
/// is kept off a Sunday, Wednesday and Friday.
FixedDay HopToNextMonth(FixedDay first, std::int32_t year, std::int32_t month, bool shift);

/// A first day of Tishrei, moved off Sunday, Wednesday and Friday: a day later if the days since `first` are the least
/// of Elul (29), or of the three months from Tammuz to an Elul of 29 days (88), else a day earlier.
FixedDay ShiftRoshHashanah(FixedDay first, FixedDay candidate);
FixedDay ShiftRoshHashanahElul29(FixedDay first, FixedDay candidate);

// The calendar of the chosen mode.

/// The year's Nisan is more than 365 days after that of the year before.
bool isAstroHebrewLeapYear(std::int32_t year);

FixedDay AstroHebrewToFixed(std::int32_t year, std::int32_t month, std::int32_t day);

/// The date of a moment's day. It has no `YearDay`.
HebrewDateRecord FixedToActiveHebrewDate(Moment moment);

/// All of it as a reckoning; the traditional one in mode 0.
const HebrewReckoning& ActiveReckoning();

// The rectified calendar: 130 leap years in 353, whose mean year keeps to the spring equinox.

/// Leap years of the rectified cycle; in mode 0 those of the traditional one.
bool isHebrewLeapYear353(std::int32_t year);

/// Lunations before a month by the rectified cycle.
double ElapsedMonths353(std::int32_t year, std::int32_t month);

/// The first day of Tishrei with the traditional postponements, by the progressive molad in mode 21, else by the
/// traditional one.
FixedDay HebrewNewYear353(std::int32_t year);

std::int32_t DaysInRectHebrewYear(std::int32_t year);

/// A date of the chosen mode, with months from Tishrei on counted from `HebrewNewYear353`.
FixedDay RectHebrewToFixed(std::int32_t year, std::int32_t month, std::int32_t day);

/// As `HebrewYearCharacter`, of the rectified year and the mode's Nisan. "?" stands for a length that such years don't
/// have.
std::string HebrewYearCharacter353(std::int32_t year);

// Other ways to the traditional first day of Tishrei: from the time of the molad, with the years that would be too long
// or too short told by lengths or (alt) by weekdays; and the same from `MoladDay`, of the traditional calendar or of
// the rectified one with the progressive molad.
FixedDay HebrewNewYear19(std::int32_t year);
FixedDay HebrewNewYear19alt(std::int32_t year);
FixedDay MyHebrewNewYear(bool progressive, std::int32_t year);
FixedDay MyHebrewNewYearAlt(bool progressive, std::int32_t year);
std::int32_t DaysInMyHebrewYear(bool progressive, std::int32_t year);

}  // namespace horvanta
