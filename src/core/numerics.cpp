#include "core/numerics.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

namespace horvanta {
namespace {

/// The decades of |x| below 1e15, each with half a unit of the 15th digit there.
struct Decade {
    double end;
    double halfUnit;
};

constexpr std::array<Decade, 16> decades{{
    {1e0, 5e-16},
    {1e1, 5e-15},
    {1e2, 5e-14},
    {1e3, 5e-13},
    {1e4, 5e-12},
    {1e5, 5e-11},
    {1e6, 5e-10},
    {1e7, 5e-9},
    {1e8, 5e-8},
    {1e9, 5e-7},
    {1e10, 5e-6},
    {1e11, 5e-5},
    {1e12, 5e-4},
    {1e13, 5e-3},
    {1e14, 5e-2},
    {1e15, 5e-1},
}};

}  // namespace

namespace detail {

/// Beyond 1e15 the 15 digits end above the units, and only the text tells the integer. A text past the largest
/// double does not read back and leaves x as it is.
double FloorThroughText(double x) {
    std::array<char, 32> text;
    const auto written = std::to_chars(text.begin(), text.end(), x, std::chars_format::general, 15);
    double read = x;
    std::from_chars(text.begin(), written.ptr, read);
    return std::floor(read);
}

/// For x close below an integer: the 15 digits read as that integer when the gap is at most half a unit of the last.
/// A gap of exactly half a unit occurs in the last decade alone, where it goes to the even integer.
double FloorNearInteger(double x, double below) {
    const double above = below + 1;
    const double gap = above - x;
    const double size = std::fabs(x);
    const Decade* decade = decades.data();
    while (size >= decade->end) ++decade;
    if (gap < decade->halfUnit) return above;
    if (gap > decade->halfUnit) return below;
    return std::fmod(above, 2) == 0 ? above : below;
}

}  // namespace detail

double Round(double x, int places) {
    constexpr double allWhole = 4503599627370496;  // 2^52: doubles from here on have no fraction
    if (std::fabs(x) >= allWhole) return x;
    const double scale = std::pow(10.0, places);
    return std::nearbyint(x * scale) / scale;
}

std::int32_t GCD(std::int32_t a, std::int32_t b) {
    while (b != 0) a = std::exchange(b, WholeNumber(Modulo(a, b)));
    return a;
}

std::int32_t ExtGCD(std::int32_t a, std::int32_t b, std::int32_t& x, std::int32_t& y) {
    if (b == 0) {
        x = 1;
        y = 0;
        return a;
    }
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    const std::int32_t divisor = ExtGCD(b, WholeNumber(Modulo(a, b)), x1, y1);
    x = y1;
    y = WholeNumber(x1 - Quotient(a, b) * y1);
    return divisor;
}

std::int32_t ModInverse(std::int32_t a, std::int32_t m) {
    std::int32_t x = 0;
    std::int32_t y = 0;
    return ExtGCD(a, m, x, y) == 1 ? WholeNumber(Modulo(x, m)) : 0;
}

double MaxOf(std::span<const double> list) {
    double greatest = -1e308;
    for (const double x : list) greatest = x > greatest ? x : greatest;
    return greatest;
}

double MinOf(std::span<const double> list) {
    double least = 1e308;
    for (const double x : list) least = x < least ? x : least;
    return least;
}

double ArcSinRad(double x) { return std::atan(x / std::sqrt(1 - x * x)); }
double ArcCosRad(double x) { return std::atan(-x / std::sqrt(1 - x * x)) + 1.5707963267949; }
double ArcSinDeg(double x) { return RadToDeg(ArcSinRad(x)); }
double ArcCosDeg(double x) { return RadToDeg(ArcCosRad(x)); }

double ArcTanRad(double a, double b) {
    if (a > 0) return std::atan(b / a);
    if (a < 0) return std::atan(b / a) + (b < 0 ? -HalfCircle : HalfCircle);
    return b != 0 ? Sign(b) * 1.570796326794895 : a / b;
}

double ArcTan2Rad(double y, double x) { return Modulo(std::atan(y / x) + (x < 0 ? HalfCircle : 0), 2 * HalfCircle); }

double ArcTan2Deg(double y, double x) { return RadToDeg(ArcTan2Rad(y, x)); }

double DegMinSec(double d, double m, double s) {
    if (d < 0) {
        m = -std::fabs(m);
        s = -std::fabs(s);
    }
    return d + m / 60 + s / 3600;
}

double RoundToDigits(double x, int n) {
    std::array<char, 32> text;
    const auto written = std::to_chars(text.begin(), text.end(), x, std::chars_format::scientific, 14);
    double mantissa = x;
    const auto exponent = std::from_chars(text.begin(), written.ptr, mantissa, std::chars_format::fixed);
    if (exponent.ptr == written.ptr) return x;

    std::array<char, 64> rounded;
    char* end = std::to_chars(rounded.begin(), rounded.end(), Round(mantissa, std::clamp(n, 1, 15) - 1),
                              std::chars_format::general, 15)
                    .ptr;
    end = std::copy(exponent.ptr, static_cast<const char*>(written.ptr), end);
    double result = x;
    std::from_chars(rounded.begin(), end, result);
    return result;
}

}  // namespace horvanta
