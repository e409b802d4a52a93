#pragma once

#include "core/numerics.h"

#include <array>
#include <cstdint>
#include <string_view>

/// When the Moon is new and in its other phases, and how lunations are numbered. Moments are universal unless their
/// name says otherwise; a phase is the longitude of the Moon less that of the Sun, in degrees.
///
/// A true lunation has a whole number n, 24724 at the first new moon of 2000. The mean ones are smooth functions of a
/// lunation L, with a fraction, that is 0 at the mean new moon of that time.
namespace horvanta {

// True new moons and phases.

inline constexpr std::int64_t FirstNewMoonOf2000 = 24724;
inline constexpr double MeanSynodicMonth = 29.530588853;  ///< Days, at J2000.

/// The true new moon number n (Meeus, Astronomical Algorithms, chapter 49).
Moment NthNewMoon(std::int64_t n);

/// The new moon number 0, from which moments are counted.
Moment LunationZero();

/// The number of a new moon near a moment, at most two off.
std::int64_t ApproxNthMoon(Moment universal);

/// The next new moon, the last one and the nearer of the two; one at the very moment is neither next nor last.
Moment NewMoonAfter(Moment universal);
Moment NewMoonBefore(Moment universal);
Moment NewMoonNearest(Moment universal);

/// The first moment after `universal` and the last before it at which the Moon has a phase; `universal` itself, within
/// 0.00001 days, if it has it.
Moment PhaseAfter(Moment universal, double degrees);
Moment PhaseBefore(Moment universal, double degrees);

// Mean new moons. L may have a fraction.

/// The straight line, the polynomial that the line lacks (days) and their sum.
Moment NewMoonEstimateTT(double L);
double NewMoonAdjustTT(double L);
Moment MeanNewMoonTT(double L);

/// The same of Universal Time, where the polynomial is subtracted from the line. The mean new moon itself comes from
/// Terrestrial Time by Delta T.
Moment NewMoonEstimateUT(double L);
double NewMoonAdjustUT(double L);
Moment MeanNewMoonUT(double L);

/// The mean synodic month at a lunation, in atomic days and in days of the Earth's rotation.
double MSM_Atomic(double L);
double MSM_Solar(double L);

/// The lunation at a moment.
double TTmomentToLunation(Moment terrestrial);
double UTmomentToLunation(Moment universal);
double MomentToLunation(Moment universal);

/// The mean synodic month at a moment, in days.
double MomentToMeanSynodicMonth(Moment x);

/// About the lunation, as a whole number, at which the mean synodic month has a length: in days, or in seconds above 29
/// days 12 hours 44 minutes.
double MSM_AtomicToLunation(double lengthOrSeconds);
double MSM_SolarToLunation(double lengthOrSeconds);

/// The next mean new moon (direction 1) or the last one (-1). One within half a thousandth of a day is neither.
Moment JumpMeanNewMoon(Moment universal, int direction);

// Numbering of lunations.

/// The numbers of the Royal Astronomical Society of Canada, which are those of Brown's theory.
constexpr double J2KtoRASC_Lunation(double L) { return L + 953; }
constexpr double RASCtoJ2K_Lunation(double lunation) { return lunation - 953; }

/// A way to number lunations: what it adds to L, and the number that it begins with.
struct LunationConvention {
    std::string_view Name;
    std::int32_t Offset;
    std::int32_t FirstLunation;
};

inline constexpr std::array<LunationConvention, 6> LunationConventions{{
    {"J2000", 0, 0},
    {"Brown", 953, 1},
    {"Islamic", 17038, 1},
    {"RD Nth", 24724, 0},
    {"Goldstine", 37105, 0},
    {"Hebrew", 71234, 1},
}};

/// The new moon of a lunation by its number in a convention; with a fraction, the moment at which that part of the
/// circle of phases has gone by.
Moment NumberedLunation(double number, const LunationConvention& convention);

}  // namespace horvanta
