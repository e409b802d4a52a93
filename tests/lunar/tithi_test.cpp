#include "lunar/tithi.h"

#include "astro/lunar_phases.h"
#include "astro/moon.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

TEST(Tithi, IsToldByTheHalf) {
    const std::pair<double, const char*> rows[] = {
        {11.9, "Vedic Sukla Paksha Tithi 1 = Prathama"},     {179, "Vedic Sukla Paksha Tithi 15 = Purnima (full)"},
        {-180, "Vedic Krishna Paksha Tithi 1 = Prathama"},   {348, "Vedic Krishna Paksha Tithi 15 = Amavasya (new)"},
        {-13, "Vedic Krishna Paksha Tithi 14 = Chaturdasi"}, {360, "Vedic Sukla Paksha Tithi 1 = Prathama"},
    };
    for (const auto& [phase, text] : rows) EXPECT_EQ(VedicTithi(phase), text) << phase;
}

TEST(Tithi, CyclesKeepThePhase) {
    for (double from = -2300000; from < 4200000; from += 173456.3) {
        for (const double cycles : {1.0, -12.0, 235.0, 0.5, -0.25, 3.75}) {
            const Moment reached = JumpCycles(from, cycles);
            ASSERT_NEAR(reached - from, cycles * MeanSynodicMonth, 1.2) << from << ' ' << cycles;
            ASSERT_NEAR(Modulo(lunar::Phase(reached) - lunar::Phase(from) - cycles * 360 + 1, 360), 1, 0.001) << from;
        }
    }
}

}  // namespace
}  // namespace horvanta
