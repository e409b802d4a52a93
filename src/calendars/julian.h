#pragma once

#include "core/numbering.h"

#include <cstdint>
#include <string>

/// The Julian calendar and the Revised Julian calendar of 1923. They have no year 0: year -1 (1 BC) precedes year 1.
/// The conversions follow Reingold and Dershowitz, Calendrical Calculations; they take any year of 32 bits and any
/// month from 1 to 12, and validate nothing.
///
/// Where a year or a date may be a revised one, `allowRevised` says so, and the option `Revise` decides. With
/// `noYearZero` a negative year counts from 1 BC = -1 backwards, without from 1 BC = 0.
namespace horvanta {

namespace julian {

/// The years BC, negative, that a start of a count may be set to.
struct YearChoice {
    std::int32_t earliest;
    std::int32_t latest;
    std::int32_t usual;
};
inline constexpr YearChoice RomeFoundedChoice{-758, -728, -753};
inline constexpr YearChoice OlympiadStartChoice{-884, -720, -776};

struct Options {
    /// The Revised Julian leap rule: of the century years, only those whose century leaves 2 or 6 by division by 9 are
    /// leap.
    bool Revise = false;

    bool UseAUC = false;                           ///< Years are written from the founding of Rome.
    std::int32_t YRF = RomeFoundedChoice.usual;    ///< The Julian year in which Rome was founded.
    std::int32_t OSY = OlympiadStartChoice.usual;  ///< The Julian year in which the ancient Olympiads began.
    bool operator==(const Options&) const = default;
};
inline Options options;

}  // namespace julian

struct JulianDate {
    FixedDay fixed = 0;
    std::int32_t year = 0;
    std::int16_t month = 0;  ///< 1 to 12.
    std::int16_t day = 0;    ///< 1 to 31.
};

bool isJulianLeapYear(std::int32_t year, bool allowRevised, bool noYearZero = true);

/// The fixed day of a date.
FixedDay JulianToFixed(std::int32_t year, std::int32_t month, std::int32_t day, bool allowRevised,
                       bool noYearZero = true);

/// The fixed day of December 31 of a Revised Julian year, on the scale that has a year 0, whatever the option `Revise`
/// is.
FixedDay RevisedJulianYearEnd(std::int64_t year);

/// The date of a moment.
JulianDate FixedToJulianDate(Moment x, bool allowRevised);

/// Days of a month, 28 to 31.
std::int16_t JulianMonthLength(std::int32_t year, std::int32_t month, bool allowRevised);

/// How many days the Julian date of a moment, which may be a revised one, is behind the Gregorian date; negative where
/// it is ahead.
std::int16_t JulianGregDiff(Moment x, bool allowRevised = false);

/// The dominical letters of a year, which may be a revised one.
std::string JulianDominicalLetters(std::int32_t year);

}  // namespace horvanta
