#include "astro/bisection.h"

#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "core/numbering.h"

#include <gtest/gtest.h>

#include <random>

namespace horvanta {
namespace {

/// A search for an angle and what it is: so many days about the mean arrival are halved down to `width`.
struct Search {
    const char* name;
    Moment (*find)(Moment from, double degrees);
    double (*angle)(Moment x);
    double circle, reach, width;  ///< Days.
    int direction = 1;
};

constexpr Search searches[] = {
    {"Sun", SolarLongitudeAfter, [](Moment x) { return SolarLongitude(x); }, 365.242189, 5, 0.00001},
    {"Moon", lunar::LongitudeAfter, lunar::Longitude, 29.530588853, 5, 0.000001},
    {"phase after", PhaseAfter, [](Moment x) { return lunar::Phase(x); }, 29.530588853, 2, 0.00001},
    {"phase before", PhaseBefore, [](Moment x) { return lunar::Phase(x); }, 29.530588853, 2, 0.00001, -1},
};

/// The search without short cuts.
Moment PlainSearch(const Search& search, Moment from, double degrees) {
    const double ahead = Modulo((degrees - search.angle(from)) * search.direction, 360);
    const Moment mean = from + search.direction * (search.circle / 360) * ahead;
    Moment a = search.direction > 0 ? std::max(from, mean - search.reach) : mean - search.reach;
    Moment b = search.direction > 0 ? mean + search.reach : std::min(from, mean + search.reach);
    for (;;) {
        const Moment x = (a + b) / 2;
        if (b - a < search.width) return x;
        (Modulo(search.angle(x) - degrees, 360) < 180 ? b : a) = x;
    }
}

/// Each bit counts: calendars compare such moments with their boundaries.
TEST(Bisection, ComesToTheMomentOfThePlainSearch) {
    std::mt19937_64 random(19770218);
    std::uniform_real_distribution<double> days(MinFixedDay, MaxFixedDay);
    std::uniform_real_distribution<double> circle(0, 360);
    std::uniform_real_distribution<double> small(-0.05, 0.05);  // the mean Sun arrives within minutes of the Sun
    for (const Search& search : searches) {
        for (int i = 0; i < 2500; ++i) {
            SetDeltaTDisabled(i % 5 == 0);
            const Moment from = i % 3 == 0 ? Floor(days(random)) : days(random);
            const double present = search.angle(from);
            const double asked[] = {circle(random), 90.0 * (i % 4), present, present + small(random)};
            ASSERT_EQ(search.find(from, asked[i % 4]), PlainSearch(search, from, asked[i % 4])) << search.name << from;
        }
    }
}

}  // namespace
}  // namespace horvanta
