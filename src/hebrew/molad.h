#pragma once

#include "core/numerics.h"

#include <cstdint>

/// The molad held against the Moon. The traditional molad keeps one interval for ever, while the mean lunation,
/// counted in days that grow longer, shortens. Here stand moladot that follow the mean new moon, the differences
/// between those and the traditional ones, and the length of the mean month that they rest on. The polynomials were
/// fitted to the mean conjunctions of Meeus, Astronomical Algorithms, chapter 49.
///
/// A lunation n counts from the molad of Tishrei of year 1 = 0, and may have a fraction; n less `HebrewLunationOfJ2000`
/// counts from the first new moon of the year 2000. Moladot are moments on days that begin at 6 pm.
namespace horvanta {

inline constexpr double HebrewLunationOfJ2000 = 71233;

// Moladot on the mean new moon itself.

/// At the midpoint between Nile and Euphrates, 39.25° E.
Moment ProgressiveMolad(double n);
Moment MidNileEuphratesLCmolad(double n);

/// At Jerusalem, 35.25° E.
Moment JerusalemLCmolad(double n);

// Moladot as parabolas.

/// The traditional molad less its `NewMoladAdjustment` in whole parts.
Moment NewProgressiveMolad(double n);

Moment AltProgressiveMolad(double n);

/// Counted from the lunation at which the traditional interval was that of the Moon.
Moment VertexProgressiveMolad(double n);

// Mean conjunctions, Terrestrial and Universal Time: at a constant rate, and with their corrections.
Moment TTmolad(double n);
Moment UTmolad(double n);
Moment TTmeanNewMoon(double n);
Moment UTmeanNewMoon(double n);

// Days between a molad and its like.

/// Days by which the progressive molad is earlier than the traditional one: a parabola with its least value, 26
/// minutes, at lunation 50834 or 50863. In whole parts of 1080 to the hour if rounded.
double MoladAdjustment(double n, bool rounded);
double NewMoladAdjustment(double n, bool rounded);

/// The same by the mean month half way to lunation 50934, with the difference at that lunation if asked.
double AverageMoladAdjust(double n, bool withLeast);

double UTmoladAdjustment(double n);
double TTmoladAdjustment(double n);

/// Of the traditional molad to the mean conjunction in Terrestrial Time.
double AtomicMoladAdjustment(double n);

/// The mean conjunction by the clocks of Jerusalem, in whole parts if rounded; and its day, or the day after it for one
/// at or after noon.
Moment RAPmolad(double n, bool rounded);
FixedDay RAPmoladDay(double n);

// The mean synodic month.

/// Days of the month at a lunation, on a straight line, and the lunation at which it has a length.
double LunationToMSM(double n);
double MSMtoLunation(double days);

/// Seconds by which the traditional interval exceeds the month.
double MoladIntervalDiff(double n);

/// Days of a year that has 4366 months in 353.
double RectifiedMeanYear(double n);

/// Days of the month, or with `secondsOnly` its seconds beyond 29 days 12 hours 44 minutes, in days of the turning
/// Earth or of atomic time, by a polynomial about the first lunation of 2000 (`fromMolad`) or about the first molad.
double LunationToMSM_Solar(double n, bool fromMolad, bool secondsOnly);
double LunationToMSM_Atomic(double n, bool fromMolad, bool secondsOnly);

/// How the month grows by the same, in millionths of a second a lunation.
double LunationToMSMrate_Solar(double n, bool fromMolad);
double LunationToMSMrate_Atomic(double n, bool fromMolad);

/// The mean month of atomic time at the beginning of the century that ends at a universal moment less that at its end,
/// in seconds, times the months of a century: how far the Moon has fallen behind.
double MomentToLunarAcceleration(Moment universal);

// Lunations of moments.

double ProgressiveMomentToLunation(Moment x);
double VertexProgressiveMomentToLunation(Moment x);

// Moladot on days that begin at midnight, by the length that the month really has.

/// The molad of a month of the rectified calendar, less its `AverageMoladAdjust`.
Moment AdjustedMolad(std::int32_t year, std::int32_t month, bool withLeast);

/// The last molad at or before a moment, and the moment one mean month after it.
Moment AdjustedMoladBefore(Moment x);
Moment AdjustedMoladAfter(Moment x);

// Universal Time of a molad: on days from midnight at 41° E, and on days from 6 pm at 41.75° E and 35.25° E.
Moment MoladToUniversal(Moment x);
Moment TraditionalMoladToUniversal(Moment x);
Moment ProgressiveMoladToUniversal(Moment x);

/// The universal moment of the traditional, or of the progressive molad next to a moment, after it (direction 1) or
/// before it (-1). A molad about a minute off counts as the moment itself.
Moment JumpMolad(Moment universal, int direction);
Moment JumpProgressiveMolad(Moment universal, int direction);

}  // namespace horvanta
