#pragma once

#include "core/numbering.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

/// The lunisolar calendars of East Asia, which go by the true Sun and Moon at midnight of a national meridian. A month
/// begins on the day of a new moon; the month of the winter solstice is the 11th; where 13 months begin from one such
/// to the next, the first of them in which the Sun enters no new twelfth of its circle is a leap month and bears the
/// number of the month before. After Reingold and Dershowitz, Calendrical Calculations, chapter 19.
///
/// Days are those of the variant chosen. Years run through cycles of 60, and are also counted from an era.
namespace horvanta::oriental {

enum Variant : std::int32_t { Chinese, Japanese, Korean, Vietnamese };

/// The years BC, negative, that the Chinese and the Vietnamese count may begin with.
inline constexpr std::array<std::int32_t, 3> EpochYears{-2637, -2697, -2698};

struct Options {
    std::int32_t OrientVariant = Chinese;
    std::int32_t OrientEpochYear = EpochYears[1];
    bool UseEnglish = true;  ///< Names are English, else those of the variant's language.

    bool operator==(const Options&) const = default;
};
inline Options options;

struct OrientDate {
    FixedDay fixed = 0;
    double elapsed = 0;      ///< Days from `OrientEpoch`.
    std::int32_t cycle = 0;  ///< Of 60 years.
    std::int32_t year = 0;   ///< In the cycle, 1 to 60.
    std::int32_t shownYear = 0;
    FixedDay newYear = 0;      ///< The year's first day.
    FixedDay nextNewYear = 0;  ///< That of the year after.
    std::int32_t gregorianYear = 0;
    bool isLongYear = false;  ///< 13 months.
    bool isLeapSui = false;   ///< 13 months begin from the winter solstice before to the one behind.
    std::int16_t month = 0;   ///< 1 to 12; a leap month has the number of the month before.
    bool isLeapMonth = false;
    std::int16_t day = 0;          ///< 1 to 30.
    std::int32_t weekday = 0;      ///< 0 = Sunday.
    std::int16_t sexagesimal = 0;  ///< The day's place in the round of 60.
    std::int16_t place = 0;        ///< The month's place in its year, 1 to 13.
    std::int16_t monthLength = 0;  ///< 29 or 30.
};

/// The day from which the cycles of 60 years run, and that from which the years shown do.
FixedDay OrientEpoch();
FixedDay OrientYearEpoch();

// Standard time, by which the days are reckoned.

/// Hours east of Universal Time on the day of a moment.
double OrientZone(Moment x);
Moment OrientUniversal(Moment standardTime);
Moment OrientStandard(Moment universal);

/// The universal moment at which a day begins.
Moment OrientMidnight(Moment day);

// Solar terms are multiples of 15 degrees of the Sun's longitude; every second one is major. They are numbered from 1,
// the minor ones from 315°, the major ones from 330°.

inline constexpr double DegreesOfTerm = 30;  ///< From a minor term to the next, or from a major one.
inline constexpr double FirstMinorTerm = 315;
inline constexpr double FirstMajorTerm = 330;

/// The Sun's longitude at the midnight that begins a day.
double MidnightLongitude(FixedDay day);

/// The number of the last term up to a longitude, of those that begin with one.
std::int32_t TermAt(double longitude, double first);

/// The term last reached at the midnight that begins a day.
std::int32_t MajorSolarTerm(FixedDay day);
std::int32_t MinorSolarTerm(FixedDay day);

/// The moment of standard time, not before a day begins, at which the Sun reaches its next term, or a longitude in
/// degrees.
Moment MajorSolarTermOnOrAfter(FixedDay day);
Moment MinorSolarTermOnOrAfter(FixedDay day);
Moment OrientLongitudeOnOrAfter(FixedDay day, double degrees);

/// The day on which the Sun reached 270° for the last time by the end of `day`.
FixedDay WinterSolsticeOnOrBefore(FixedDay day);

// Dates.

/// The last new year up to a day.
FixedDay NewYearOnOrBefore(FixedDay day);

/// The new year of a year, or with an addend of 1 that of the year after.
FixedDay NewYear(std::int32_t cycle, std::int32_t year, std::int32_t addend = 0);

/// The fixed day of a date. A leap month that the year has not is the month after the one of its number.
FixedDay OrientToFixed(std::int32_t cycle, std::int32_t year, std::int32_t month, bool isLeapMonth, std::int32_t day);

/// The date of a moment.
OrientDate FixedToOrientDate(Moment x);

/// The same, converted once for each day, variant and numbering.
const OrientDate& OrientDateOn(Moment x);

/// A month of a year.
struct Month {
    FixedDay first;
    std::int16_t number;  ///< 1 to 12.
    bool isLeap;
};

/// The months of a year, by the year that is shown, and behind them the first of the next.
std::vector<Month> MonthsOfShownYear(std::int32_t year);

/// The next new year from a moment, with a direction of 1 onwards and -1 back.
Moment JumpNewYear(Moment from, int direction);

/// The year counted from 2333 BC, as Korea did, of a year of the cycles from 2697 BC.
std::int32_t KoreanYear(std::int32_t cycle, std::int32_t year);

/// What is foretold of marriages of a year, by whether the term of spring's beginning falls into it at both its ends.
std::string_view MarriageAugury(std::int32_t cycle, std::int32_t year);

}  // namespace horvanta::oriental
