#pragma once

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>

/// The arithmetic on which every calendar stands. All of it is in double precision and knows no clock, place or
/// window. Division by zero gives what the platform's doubles give; callers guard.
namespace horvanta {

/// A fixed day number with the fraction of the day behind the point. It does not say its time scale: each operation
/// that takes one does.
using Moment = double;

/// The whole part of a moment, in the numbering the user chose.
using FixedDay = double;

/// Stands for an event that does not take place, such as a sunrise in the polar night.
inline constexpr Moment NeverMoment = 9e99;

/// True for `NeverMoment` and for what sums and interpolation make of it.
constexpr bool isNever(Moment x) { return x >= NeverMoment; }

namespace detail {
double FloorThroughText(double x);
double FloorNearInteger(double x, double below);
}  // namespace detail

/// The greatest integer not above x, where x is first read as a decimal number of 15 significant digits: a value that
/// falls short of an integer only in its 16th digit, the usual residue of day arithmetic, counts as that integer.
///
/// A double can only be lifted to the next integer when it lies within half a unit of its 15th digit below it, and
/// that is at most 5e-15 of its size. Anything further off needs no look at its digits.
inline double Floor(double x) {
    if (!(std::fabs(x) < 1e15)) return detail::FloorThroughText(x);
    const double below = std::floor(x);
    if (below + 1 - x > 5.0000001e-15 * std::fabs(x)) return below;
    return detail::FloorNearInteger(x, below);
}

/// The least integer not below x, in the sense of `Floor`.
inline double Ceiling(double x) {
    const double below = Floor(x);
    return below >= x ? below : below + 1;
}

/// x less the multiple of y below it. y may be negative. It divides first and multiplies back, so that rounding may
/// leave a tiny negative value, or y itself.
inline double Modulo(double x, double y) { return x - Floor(x / y) * y; }

/// `Modulo` with a result in (0, y].
inline double AdjustedModulo(double x, double y) { return Modulo(x, -y) + y; }

/// x moved by multiples of b - a into [a, b); x itself if a = b.
inline double ModuloRange(double x, double a, double b) { return a == b ? x : Modulo(x - a, b - a) + a; }

inline double Quotient(double x, double y) { return Floor(x / y); }

/// Floored quotient and remainder of whole numbers, b > 0: what `Quotient` and `Modulo` are, without doubles.
constexpr std::int64_t FloorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0); }
constexpr std::int64_t FloorModulo(std::int64_t a, std::int64_t b) { return a - FloorDivide(a, b) * b; }

/// x to the nearest whole number, ties to the even one.
inline double Round(double x) { return std::nearbyint(x); }

/// x to `places` decimal places, ties to the even digit.
double Round(double x, int places);

/// The whole number x as an integer. One that does not fit becomes the nearest that does; NaN becomes the largest.
template <class Integer = std::int32_t>
constexpr Integer WholeNumber(double x) {
    constexpr Integer least = std::numeric_limits<Integer>::min();
    constexpr Integer greatest = std::numeric_limits<Integer>::max();
    if (!(x < static_cast<double>(greatest))) return greatest;
    return x > static_cast<double>(least) ? static_cast<Integer>(x) : least;
}

constexpr std::int16_t Sign(double x) { return x > 0 ? 1 : x < 0 ? -1 : 0; }

/// Euclid's divisor of a and b by `Modulo`; a if b = 0.
std::int32_t GCD(std::int32_t a, std::int32_t b);

/// Extended Euclid: returns the divisor and sets x and y so that a * x + b * y is that divisor.
std::int32_t ExtGCD(std::int32_t a, std::int32_t b, std::int32_t& x, std::int32_t& y);

/// The number in [0, m) whose product with a leaves 1 modulo m; 0 if there is none.
std::int32_t ModInverse(std::int32_t a, std::int32_t m);

/// The greatest and the least of a list, which lie within ±1e308; an empty list gives that bound.
double MaxOf(std::span<const double> list);
double MinOf(std::span<const double> list);
inline double MaxOf(std::initializer_list<double> list) { return MaxOf(std::span(list.begin(), list.size())); }
inline double MinOf(std::initializer_list<double> list) { return MinOf(std::span(list.begin(), list.size())); }

constexpr double HoursToDays(double hours) { return hours / 24; }
constexpr double SecToDeg(double arcSeconds) { return arcSeconds / 3600; }

/// Marks a literal as degrees in the tables of a series.
constexpr double Deg(double degrees) { return degrees; }

// The angle constants have 15 significant digits and no more: the results of every series depend on them.
inline constexpr double RadiansPerDegree = 0.0174532925199433;
inline constexpr double DegreesPerRadian = 57.2957795130823;
inline constexpr double HalfCircle = 3.14159265358979;

/// An angle in [0, 360).
inline double Degrees(double degrees) { return Modulo(degrees, 360); }

/// Radians of an angle in degrees, which is first brought into [0, 360): a negative angle gives a positive result.
inline double Radians(double degrees) { return Degrees(degrees) * RadiansPerDegree; }

/// Degrees of an angle in radians, not reduced.
constexpr double RadToDeg(double radians) { return radians * DegreesPerRadian; }

inline double SinDeg(double degrees) { return std::sin(Radians(degrees)); }
inline double CosDeg(double degrees) { return std::cos(Radians(degrees)); }
inline double TanDeg(double degrees) { return std::tan(Radians(degrees)); }

/// Arc sine and arc cosine through the arc tangent; |x| = 1 divides by zero.
double ArcSinRad(double x);
double ArcCosRad(double x);
double ArcSinDeg(double x);
double ArcCosDeg(double x);

/// The arc tangent of a.
inline double ArcTanRad(double a) { return std::atan(a); }

/// The angle of the point (a, b), in (-pi, pi]; both zero divide by zero. `ArcTan2Rad` takes the quadrant apart in
/// another way and rounds otherwise; the two are not one function.
double ArcTanRad(double a, double b);

/// The angle of the point (x, y), in [0, 2 pi).
double ArcTan2Rad(double y, double x);

/// The angle of the point (x, y) in degrees, in [0, 360).
double ArcTan2Deg(double y, double x);

/// Degrees of an angle in degrees, minutes and seconds. A negative d makes m and s negative too; an angle between
/// 0 and -1 degrees carries its sign on m and s, since 0 can't.
double DegMinSec(double d, double m, double s);

constexpr double HMSToHours(double h, double m, double s) { return h + m / 60 + s / 3600; }
constexpr double HMSToDegrees(double h, double m, double s) { return h * 15 + m / 4 + s / 240; }

constexpr double FeetToMeters(double feet) { return feet * 0.3048; }
constexpr double MetersToFeet(double meters) { return meters / 0.3048; }

/// The whole hour of the time zone in whose middle a longitude (degrees, east positive) lies.
inline double ZoneFromLongitude(double degrees) { return Round(degrees * 24 / 360); }

/// The fraction of the day of a moment, kept to 9 decimal places (86 microseconds). The whole part is the floor, so
/// that moments before day 0 have a time of day too.
inline double DayFraction(Moment x) {
    const double rounded = Round(x, 9);
    return rounded - Floor(rounded);
}

/// x with the mantissa of its 15 digits rounded to n significant digits, at least 1. For display only.
double RoundToDigits(double x, int n);

}  // namespace horvanta
