#include "lunar/tithi.h"

#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "calendars/gregorian.h"

#include <gtest/gtest.h>

#include <cmath>

namespace horvanta {
namespace {

double DegreesApart(double a, double b) { return std::fabs(ModuloRange(a - b, -180, 180)); }

TEST(Tithi, IsToldByTheHalf) {
    const std::pair<double, const char*> rows[] = {
        {0, "Vedic Sukla Paksha Tithi 1 = Prathama"},        {11.9, "Vedic Sukla Paksha Tithi 1 = Prathama"},
        {101.3, "Vedic Sukla Paksha Tithi 9 = Navami"},      {179, "Vedic Sukla Paksha Tithi 15 = Purnima (full)"},
        {180, "Vedic Krishna Paksha Tithi 1 = Prathama"},    {-180, "Vedic Krishna Paksha Tithi 1 = Prathama"},
        {-13, "Vedic Krishna Paksha Tithi 14 = Chaturdasi"}, {348, "Vedic Krishna Paksha Tithi 15 = Amavasya (new)"},
        {360, "Vedic Sukla Paksha Tithi 1 = Prathama"},
    };
    for (const auto& [phase, text] : rows) EXPECT_EQ(VedicTithi(phase), text) << phase;
}

/// Thirty jumps make a lunation, each a tithi and each in its direction.
TEST(Tithi, ThirtyMakeALunation) {
    for (double from = -2400000; from < 4300000; from += 311234.7) {
        for (const int direction : {-1, 1}) {
            Moment at = JumpTithi(from, direction);
            const Moment first = at;
            for (int tithi = 1; tithi <= 30; ++tithi) {
                const Moment next = JumpTithi(at, direction);
                ASSERT_NEAR((next - at) * direction, 0.98, 0.15) << from;
                ASSERT_NEAR(Modulo(lunar::Phase(next) + 1, 12), 1, 0.01) << from;
                at = next;
            }
            ASSERT_NEAR((at - first) * direction, MeanSynodicMonth, 0.4) << from;
            ASSERT_LT(DegreesApart(lunar::Phase(at), lunar::Phase(first)), 0.001) << from;
        }
    }
}

TEST(Tithi, CyclesKeepThePhase) {
    for (double from = -2300000; from < 4200000; from += 173456.3) {
        for (const double cycles : {1.0, -1.0, 12.0, -12.0, 235.0, 0.5, -0.25, 3.75}) {
            const Moment reached = JumpCycles(from, cycles);
            ASSERT_NEAR(reached - from, cycles * MeanSynodicMonth, 1.2) << from << ' ' << cycles;
            ASSERT_LT(DegreesApart(lunar::Phase(reached), lunar::Phase(from) + cycles * 360), 0.001) << from;
        }
    }
}

}  // namespace
}  // namespace horvanta
