#include "hebrew/molad.h"

#include "astro/lunar_phases.h"
#include "core/numbering.h"
#include "hebrew/hebrew_arithmetic.h"

#include <gtest/gtest.h>

#include <tuple>

namespace horvanta {
namespace {

constexpr double minute = 1.0 / 1440;

using Family = Moment (*)(double n);

/// Formulas of different makers for one molad, over all the time for which they were fitted.
TEST(Molad, FamiliesAgree) {
    const std::tuple<const char*, Family, Family, double> pairs[] = {
        {"at Jerusalem", JerusalemLCmolad, [](double n) { return RAPmolad(n, false); }, 0.5},
        {"parabolas", AltProgressiveMolad, VertexProgressiveMolad, 0.5},
        {"adjusted", AltProgressiveMolad, NewProgressiveMolad, 0.5},
        {"Nile-Euphrates", ProgressiveMolad, MidNileEuphratesLCmolad, 0},
        {"terrestrial", TTmeanNewMoon, [](double n) { return MeanNewMoonTT(n - HebrewLunationOfJ2000); }, 0.001},
    };
    for (const auto& [name, one, other, minutes] : pairs) {
        for (double n = 30000; n <= 90000; n += 7) {
            ASSERT_NEAR(one(n), other(n), minutes * minute + 1e-9) << name << ' ' << n;
        }
    }
}

TEST(Molad, AdjustmentsHaveTheirLeastValueInTheFourthCentury) {
    constexpr double leastParts = 468;  // 26 minutes
    EXPECT_NEAR(MoladAdjustment(50834, true) * 25920, leastParts, 1e-9);
    EXPECT_NEAR(NewMoladAdjustment(50863, true) * 25920, leastParts, 1e-9);
    for (double n = 30000; n <= 90000; n += 1000) {
        ASSERT_NEAR(NewMoladAdjustment(n, true), NewMoladAdjustment(n, false), 0.5 / 25920 + 1e-12) << n;
        ASSERT_NEAR(AverageMoladAdjust(n, true), MoladAdjustment(n, false), 40 * minute) << n;
    }
}

/// Each length of the month is the interval between the moladot that it belongs to.
TEST(Molad, MonthIsTheIntervalOfItsFamily) {
    const auto interval = [](Family molad, double n) { return (molad(n + 50) - molad(n - 50)) / 100; };
    constexpr double second = 1.0 / 86400;
    for (double n = 30000; n <= 90000; n += 500) {
        ASSERT_NEAR(MSMtoLunation(LunationToMSM(n)), n, 1e-4) << n;
        ASSERT_NEAR(VertexProgressiveMomentToLunation(VertexProgressiveMolad(n)), n, 1e-3) << n;
        ASSERT_NEAR(LunationToMSM(n), interval(VertexProgressiveMolad, n), 0.002 * second) << n;
        for (const bool fromMolad : {false, true}) {
            ASSERT_NEAR(LunationToMSM_Atomic(n, fromMolad, false), interval(TTmeanNewMoon, n), 0.01 * second) << n;
            ASSERT_NEAR(LunationToMSM_Solar(n, fromMolad, false), interval(UTmeanNewMoon, n), 0.01 * second) << n;
        }
    }
}

TEST(Molad, RectifiedYearKeepsToTheEquinox) { EXPECT_NEAR(RectifiedMeanYear(71233), 365.2423, 0.0003); }

/// The tides slow the Moon down: by 21.5 ms a month over the last century, 1237 times.
TEST(Molad, MonthsGrowByTheCentury) { EXPECT_NEAR(MomentToLunarAcceleration(J2000), -26.6, 0.05); }

/// With days numbered from elsewhere every molad keeps its date, and its search finds it.
TEST(Molad, KeepsItsDateUnderAnyNumbering) {
    const auto moments = [] {
        return std::vector<double>{ProgressiveMolad(71000),
                                   UTmolad(71000),
                                   molad(5786, 7),
                                   AdjustedMolad(5760, 7, true),
                                   AdjustedMoladBefore(GregorianEpoch + 729999.2),
                                   JumpMolad(GregorianEpoch + 729999.2, 1),
                                   JumpProgressiveMolad(GregorianEpoch + 729999.2, -1)};
    };
    const std::vector<double> before = moments();
    const double lunation = ProgressiveMomentToLunation(GregorianEpoch + 700000);
    SetFixedDayEpoch(400000, 1, "another");
    const double moved = GregorianEpoch - 1;
    const std::vector<double> after = moments();
    EXPECT_NEAR(ProgressiveMomentToLunation(GregorianEpoch + 700000), lunation, 1e-7);
    SetFixedDayEpoch(GregorianEpoch, 1, "rata die");
    for (std::size_t i = 0; i < before.size(); ++i) EXPECT_NEAR(after[i] - moved, before[i], 1e-7) << i;
}

/// The molad of Tishrei 5774 was announced for Thursday, September 5, 2013, 11:22 and 1 part by the time of Jerusalem.
TEST(Molad, TraditionalOneIsThatOfTheAnnouncement) {
    const Moment universal = TraditionalMoladToUniversal(TraditionalMolad(ElapsedMonths19(5774, 7)));
    EXPECT_NEAR(universal + 41.75 / 360, molad(5774, 7), 1e-8);
}

/// From anywhere in a month a jump goes to the nearest molad of its side; from the molad itself, or a minute off, to
/// the next one.
TEST(Molad, JumpsMoveToTheNeighbour) {
    struct {
        Moment (*jump)(Moment, int);
        Family molad;
    } const ways[] = {
        {JumpMolad, [](double n) { return TraditionalMoladToUniversal(TraditionalMolad(n)); }},
        {JumpProgressiveMolad, [](double n) { return ProgressiveMoladToUniversal(ProgressiveMolad(n)); }}};
    for (const auto& [jump, molad] : ways) {
        for (double n = 40000; n <= 80000; n += 37) {
            for (const double off : {0.0, 0.0003, -0.0003}) {
                for (const int way : {-1, 1}) ASSERT_NEAR(jump(molad(n) + off, way), molad(n + way), 1e-7) << n;
            }
            for (const double part : {0.01, 8.0, 14.9, 29.5}) {
                ASSERT_NEAR(jump(molad(n) + part, -1), molad(n), 1e-7) << n << '+' << part;
                ASSERT_NEAR(jump(molad(n) + part, 1), molad(n + 1), 1e-7) << n << '+' << part;
            }
        }
    }
}

}  // namespace
}  // namespace horvanta
