#include "astro/series.h"

#include "astro/moon_tables.h"
#include "astro/sun.h"
#include "astro/sun_tables.h"
#include "core/numerics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

namespace horvanta {
namespace {

/// A table once as the evaluator takes it and once as plain rows.
struct Series {
    const char* name;
    series::Columns columns;
    std::vector<series::Term> rows;
    double unit;  ///< In degrees.
};

template <class Row, std::size_t Count, class TermOf>
Series Both(const char* name, const Row (&table)[Count], double unit, const TermOf& termOf) {
    static const auto columns = series::MakeTable(table, termOf);
    Series both{name, columns, {}, unit};
    for (const Row& row : table) both.rows.push_back(termOf(row));
    return both;
}

const std::vector<Series>& AllSeries() {
    using lunar::LongitudeTerm;
    static const std::vector<Series> all = {
        Both("Sun", solarTerms, 0.00000573,
             [](const SolarTerm& t) {
                 return series::Term{{t.addend, t.multiplier}, {t.coefficient}};
             }),
        Both("nutation", nutationTerms, 1 / 36000000.0,
             [](const NutationTerm& t) {
                 return series::Term{{t.m, t.d, t.mPrime, t.f, t.omega}, {t.coefficient, t.perCentury}};
             }),
        Both("longitude", lunar::longitudeTerms, 0.000001,
             [](const LongitudeTerm& t) {
                 return series::Term{{t.d, t.m, t.mPrime, t.f}, {t.longitude}};
             }),
    };
    return all;
}

double PlainSum(const std::vector<series::Term>& rows, const series::Arguments& x, const series::Factors& factors,
                double (*function)(double)) {
    double sum = 0;
    for (const auto& [angle, coefficient] : rows) {
        double degrees = 0;
        for (std::size_t i = 0; i < x.size(); ++i) degrees += angle[i] * x[i];
        double size = 0;
        for (std::size_t i = 0; i < factors.size(); ++i) size += coefficient[i] * factors[i];
        sum += size * function(degrees);
    }
    return sum;
}

/// Over the centuries that can be displayed, with arguments that grow as the Moon's do.
TEST(Series, AddUpAsByTheStandardSine) {
    for (const auto& [name, columns, rows, unit] : AllSeries()) {
        const bool ofTheSun = std::string_view(name) == "Sun";
        for (double c = -90; c < 100.1; c += 0.1173) {
            const series::Arguments moon{297.85 + 445267.11 * c, 357.53 + 35999.05 * c, 134.96 + 477198.87 * c,
                                         93.27 + 483202.02 * c, 125.04 - 1934.14 * c};
            const series::Arguments at = ofTheSun ? series::Arguments{1, c} : moon;
            const series::Factors factors{1, c / 100};
            EXPECT_NEAR(series::SumOfSines(columns, at, factors) * unit, PlainSum(rows, at, factors, SinDeg) * unit,
                        1e-9)
                << name << " at " << c;
            EXPECT_NEAR(series::SumOfCosines(columns, at, factors) * unit, PlainSum(rows, at, factors, CosDeg) * unit,
                        1e-9)
                << name << " at " << c;
        }
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
