#include "astro/series.h"

#include "astro/sun.h"
#include "astro/sun_tables.h"
#include "core/numerics.h"

#include <gtest/gtest.h>

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
        EXPECT_NEAR(series::SumOfCosines(table, moon, {1, c / 100}, 4), cosines + 4, 0.03) << c;
    }
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
