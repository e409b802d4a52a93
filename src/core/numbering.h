#pragma once

#include "core/numerics.h"

#include <cstdint>
#include <string>

/// The numbering of days, which the user can move, and the weekdays under any numbering.
///
/// Whatever names a day by number is an `Epoch`: no absolute day stands anywhere else.
namespace horvanta {

/// Fixed day of January 1 of Gregorian year 1. Only `SetFixedDayEpoch` writes it.
inline double GregorianEpoch = 1;

/// Keeps weekdays right under every numbering, in [0, 7). Follows `GregorianEpoch`.
inline double WeekdayOffset = 0;

/// A moment that keeps its distance from `GregorianEpoch`, and so its date, under every numbering. It reads as its
/// number in the present one.
struct Epoch {
    double fromGregorianEpoch;
    operator double() const { return GregorianEpoch + fromGregorianEpoch; }
};

inline constexpr Epoch JulianEpoch{-2};                  ///< January 1 of Julian year 1.
inline constexpr Epoch MinFixedDay{-2533804};            ///< The first day that can be displayed.
inline constexpr Epoch MaxFixedDay{-2533804 + 6916348};  ///< The last day that can be displayed.
inline constexpr Epoch HebrewEpoch{-1373428};            ///< First day of the Hebrew count.
inline constexpr Epoch PersianEpoch{226895};             ///< March 22, 622; March 19 by the Julian calendar.
inline constexpr Epoch J2000{730119.5};                  ///< January 1, 2000 at noon.
inline constexpr Epoch Epoch2001{730485};                ///< January 1, 2001.
inline constexpr Epoch UnixEpoch{719162};                ///< January 1, 1970.
inline constexpr Epoch JDEpoch{-1721425.5};              ///< Julian Day zero.
inline constexpr Epoch MJDEpoch{678575};                 ///< Modified Julian Day zero.
inline constexpr Epoch TJDEpoch{718575};                 ///< Truncated Julian Day zero.

/// What the user calls the numbering, and the day number that its epoch jump goes to.
inline std::string FixedEpochName = "rata die";
inline double FixedEpochValue = 1;

/// Counts the changes of the numbering, for memos that hold a day.
inline std::int64_t NumberingSerial = 0;

/// Moves the numbering so that the day that `day` (a moment in the present numbering) falls on becomes day 1, and
/// stores the name and the value of the choice.
void SetFixedDayEpoch(Moment day, double value, const std::string& name);

/// The weekday of a moment's day, 0 = Sunday to 6 = Saturday.
inline std::int32_t DayOfWeek(Moment x) { return WholeNumber(Modulo(Floor(x) - WeekdayOffset, 7)); }

// The k-day family (Reingold and Dershowitz, Calendrical Calculations): the moment on the weekday k (0 = Sunday)
// nearest to x in the sense of the name, with the fraction that x has.
inline Moment KDayOnOrBefore(int k, Moment x) { return x - DayOfWeek(x - k); }
inline Moment KDayBefore(int k, Moment x) { return KDayOnOrBefore(k, x - 1); }
inline Moment KDayOnOrAfter(int k, Moment x) { return KDayOnOrBefore(k, x + 6); }
inline Moment KDayAfter(int k, Moment x) { return KDayOnOrBefore(k, x + 7); }
inline Moment KDayNearest(int k, Moment x) { return KDayOnOrBefore(k, x + 3); }

/// The n-th k-day on or after x for n > 0, on or before x for n < 0.
inline Moment NthKDay(int n, int k, Moment x) { return n * 7.0 + (n >= 1 ? KDayBefore(k, x) : KDayAfter(k, x)); }
inline Moment FirstKDay(int k, Moment x) { return NthKDay(1, k, x); }
inline Moment LastKDay(int k, Moment x) { return NthKDay(-1, k, x); }

/// How many k-days lie from a to b, both included, in either order.
std::int32_t CountKDaysInRange(int k, Moment a, Moment b);

}  // namespace horvanta
