#pragma once

#include "calendars/day_text.h"
#include "core/numbering.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Easter, which is the Sunday after a full moon of spring, by the ways that churches reckon that moon or have proposed
/// to, and the days that are counted from it. After Reingold and Dershowitz, Calendrical Calculations, chapter 9.
namespace horvanta {

namespace easter {

struct Options {
    /// The full moon of the sky on the meridian of Jerusalem takes the place of the reckoned one for all churches
    /// (proposed at the World Council of Churches' consultation at Aleppo, 1997).
    bool UniformEaster = false;

    bool operator==(const Options&) const = default;
};
inline Options options;

}  // namespace easter

/// The day of the full moon by the tables of the Gregorian reform. Gregorian year, with a year 0.
FixedDay GregorianPaschalMoon(std::int32_t year);

/// The day, by the apparent time of Jerusalem, of the first full moon after the northward equinox. Gregorian year.
FixedDay AstronomicalPaschalMoon(std::int32_t year);

/// The day of Western Easter in a Gregorian year; with `forceUniform` by the moon of the sky whatever the option says.
FixedDay EasterSunday(std::int32_t year, bool forceUniform);

/// The day of Orthodox Easter in an unrevised Julian year, which knows no year 0: -1 precedes 1.
FixedDay OrthodoxEaster(std::int32_t year);

/// The same by a formula that counts the months of the 19-year cycle. Julian year, with a year 0.
FixedDay AltOrthodoxEaster(std::int32_t year);

/// The name of the day so many days from Easter as that of the moment is; empty for one without a name. It begins with
/// "Uniform " with `isUniform` and wherever that option holds, otherwise with "Orthodox " with `isOrthodox`.
std::string MovableChristianHoliday(Moment moment, FixedDay easter, bool isOrthodox, bool isUniform);

/// What a day is by its distance from a Western Easter, the name behind a prefix. No text if it has no name.
DayText WesternMovableDay(FixedDay day, FixedDay easter, std::string_view prefix);

// Searches from a moment, with a direction of 1 onwards and -1 back. A moment on the day itself goes on to the next.

Moment JumpEaster(Moment from, int direction);
Moment JumpUniformEaster(Moment from, int direction);
Moment JumpOrthoEaster(Moment from, int direction);

namespace quartane {

/// The day of the full moon of a Quartane year: that of a mean Moon that keeps step with the years of the leap rule, or
/// the Gregorian or the astronomical one if the rule follows those years.
FixedDay QuaPaschalMoon(std::int32_t year);

/// The day of Easter in a Quartane year.
FixedDay QuaEaster(std::int32_t year);

/// Easter on the same day of every Quartane year: the Sunday from April 4 to 10.
FixedDay FixedEaster(std::int32_t year);

Moment JumpFixedEaster(Moment from, int direction);

}  // namespace quartane

}  // namespace horvanta
