#include "astro/series.h"

#include <bit>
#include <cstdint>

namespace horvanta::series {
namespace {

constexpr double radiansPerDegree = 0.017453292519943295;

/// The factors of x^2 within the sine of x over x, from the highest power down (Taylor's series). At a quarter circle,
/// the first that is left out is less than a hundredth of the last bit.
constexpr auto sinePowers = [] {
    std::array<double, 10> powers;
    double factorial = 1;
    for (std::size_t i = 0; i < powers.size(); ++i) {
        const double n = 2.0 * static_cast<double>(i) + 2;
        factorial *= -n * (n + 1);
        powers[powers.size() - 1 - i] = 1 / factorial;
    }
    return powers;
}();

/// The sine of an angle ahead by `lead` degrees, without branches and calls: the angle is brought within a quarter
/// circle of a multiple of the half circle, where the sine alternates its sign.
inline double SineAhead(double degrees, double lead) {
    constexpr double wholeNumbersOnly = 6755399441055744;  // 1.5 * 2^52: a sum with it has no fraction
    const double rounded = (degrees + lead) * (1.0 / 180) + wholeNumbersOnly;
    const double x = (degrees - (rounded - wholeNumbersOnly) * 180 + lead) * radiansPerDegree;
    const double square = x * x;
    double sum = sinePowers[0];
    for (std::size_t i = 1; i < sinePowers.size(); ++i) sum = sum * square + sinePowers[i];
    const double sine = x + x * square * sum;
    const std::uint64_t oddHalfCircles = std::bit_cast<std::uint64_t>(rounded) << 63;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(sine) ^ oddHalfCircles);
}

/// Both versions do the same operations on each term, none of them contracted, and add the terms one by one: wider
/// vectors change no bit.
#if defined(__x86_64__) && defined(__gnu_linux__)
[[gnu::target_clones("avx2", "default")]]
#endif
double
Sum(const Columns& series, const Arguments& arguments, const Factors& factors, double lead, double sum) {
    const std::size_t rows = series.rows;
    const double* const column = series.numbers.data();
    const auto [x0, x1, x2, x3, x4] = arguments;
    const auto [f0, f1, f2] = factors;
    std::array<double, MostTerms> terms;
    for (std::size_t i = 0; i < rows; ++i) {
        const double* const m = column + i;
        const double angle = m[0] * x0 + m[rows] * x1 + m[2 * rows] * x2 + m[3 * rows] * x3 + m[4 * rows] * x4;
        const double coefficient = m[5 * rows] * f0 + m[6 * rows] * f1 + m[7 * rows] * f2;
        terms[i] = coefficient * SineAhead(angle, lead);
    }
    for (std::size_t i = 0; i < series.count; ++i) sum += terms[i];
    return sum;
}

}  // namespace

double SumOfSines(const Columns& series, const Arguments& arguments, const Factors& factors, double start) {
    return Sum(series, arguments, factors, 0, start);
}

double SumOfCosines(const Columns& series, const Arguments& arguments, const Factors& factors, double start) {
    return Sum(series, arguments, factors, 90, start);
}

}  // namespace horvanta::series
