#pragma once

#include "core/numerics.h"

#include <cstdint>
#include <string>

/// The numbering of days, which the user can move, and the weekdays under any numbering.
///
/// Everything that names a day by number is an offset from `GregorianEpoch`: no absolute day stands anywhere else.
namespace horvanta {

/// Fixed day of January 1 of Gregorian year 1. Only `SetFixedDayEpoch` writes it.
inline double GregorianEpoch = 1;

// The epochs below follow `GregorianEpoch`; `SetFixedDayEpoch` recomputes them all.
inline double WeekdayOffset = 0;       ///< Keeps weekdays right under every numbering, in [0, 7).
inline double JulianEpoch = -1;        ///< January 1 of Julian year 1.
inline double MinFixedDay = -2533803;  ///< The first day that can be displayed.
inline double MaxFixedDay = 4382545;   ///< The last day that can be displayed.
inline double HebrewEpoch = -1373427;  ///< First day of the Hebrew count.
inline double J2000 = 730120.5;        ///< January 1, 2000 at noon.
inline double Epoch2001 = 730486;      ///< January 1, 2001.
inline double UnixEpoch = 719163;      ///< January 1, 1970.
inline double JDEpoch = -1721424.5;    ///< Julian Day zero.
inline double MJDEpoch = 678576;       ///< Modified Julian Day zero.
inline double TJDEpoch = 718576;       ///< Truncated Julian Day zero.

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
