#include "astro/series.h"

#include "astro/sun.h"
#include "astro/sun_tables.h"
#include "core/numerics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace horvanta {
namespace {

/// Over the centuries that can be displayed, with arguments that grow as the Moon's do.
TEST(Series, AddUpAsByTheStandardSine) {
    const auto termOf = [](const NutationTerm& t) {
        return series::Term{{t.m, t.d, t.mPrime, t.f, t.omega}, {t.coefficient, t.perCentury}};
    };
    static const auto table = series::MakeTable(nutationTerms, termOf);
    for (double c = -90; c < 100.1; c += 0.1173) {
        const series::Arguments moon{297.85 + 445267.11 * c, 357.53 + 35999.05 * c, 134.96 + 477198.87 * c,
                                     93.27 + 483202.02 * c, 125.04 - 1934.14 * c};
        double sines = 0;
        double cosines = 0;
        for (const NutationTerm& row : nutationTerms) {
            const auto [angle, coefficient] = termOf(row);
            double degrees = 0;
            for (std::size_t i = 0; i < moon.size(); ++i) degrees += angle[i] * moon[i];
            const double size = coefficient[0] + coefficient[1] * c / 100;
            sines += size * SinDeg(degrees);
            cosines += size * CosDeg(degrees);
        }
        EXPECT_NEAR(series::SumOfSines(table, moon, {1, c / 100}), sines, 0.03) << c;
        EXPECT_NEAR(series::SumOfCosines(table, moon, {1, c / 100}), cosines, 0.03) << c;
    }
}

/// A sine and a cosine of one angle alone, close to the last bit.
TEST(Series, KnowASineToItsLastBits) {
    constexpr series::Term one[] = {{{1}, {1}}};
    static constexpr auto alone = series::MakeTable(one, [](const series::Term& term) { return term; });
    constexpr long double degree = 3.14159265358979323846264L / 180;
    for (double x = -1000; x < 1000; x += 0.37) {
        for (const double degrees : {x, x * 1e5, std::round(x) * 15}) {
            const long double radians = std::fmod(static_cast<long double>(degrees), 360.0L) * degree;
            EXPECT_NEAR(series::SumOfSines(alone, {degrees}, {1}), static_cast<double>(std::sin(radians)), 3e-16);
            EXPECT_NEAR(series::SumOfCosines(alone, {degrees}, {1}), static_cast<double>(std::cos(radians)), 3e-16);
        }
    }
    EXPECT_EQ(series::SumOfSines(alone, {180}, {1}), 0);
    EXPECT_EQ(series::SumOfSines(alone, {90}, {1}, 4), 5);
}

/// No machine, compiler or width of vectors changes a bit: nothing is contracted or added in another order.
TEST(Series, HaveTheSameBitsEverywhere) {
    constexpr std::pair<double, double> rows[] = {
        {-83.7, -0x1.1a6b202ac6f6p-9},
        {-1.25, -0x1.bdf0a9c6abe9bp-10},
        {0.1111, 0x1.4d6543aba0b9cp-8},
        {61.5, 0x1.a475352d0d73bp-10},
    };
    for (const auto& [centuries, degrees] : rows) EXPECT_EQ(Nutation(centuries, true), degrees) << centuries;
}

}  // namespace
}  // namespace horvanta
