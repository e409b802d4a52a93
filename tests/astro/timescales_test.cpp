#include "astro/timescales.h"

#include "astro/local_time.h"
#include "astro/sidereal.h"
#include "astro/year_dates.h"
#include "calendars/gregorian.h"
#include "core/locale.h"
#include "core/numbering.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

constexpr double second = 1 / 86400.0;

/// The end of each polynomial, and a year a third into it. The seconds are those of
/// `DeltaT_EspenakMeeus` of Astronomy Engine 2.1.19 (npm astronomy-engine), which takes days from J2000:
/// (year - 2000) * 365.24217 + 14.
TEST(DeltaT, AgreesWithTheirAuthorsPolynomials) {
    constexpr std::pair<double, double> rows[] = {
        {-6000, 195667.680}, {-500.001, 17203.695}, {-167, 12398.113},   {499.999, 5710.142}, {866, 2443.722},
        {1599.999, 120.252}, {1633, 75.991},        {1699.999, 8.992},   {1733, 11.446},      {1799.999, 13.757},
        {1820, 11.864},      {1859.999, 7.569},     {1873, -1.729},      {1899.999, -2.703},  {1906, 5.102},
        {1919.999, 21.187},  {1927, 24.104},        {1940.999, 24.772},  {1947, 27.800},      {1960.999, 33.550},
        {1969, 39.210},      {1985.999, 54.867},    {1992, 58.328},      {2004.999, 64.720},  {2020, 71.599},
        {2049.999, 93.000},  {2083, 163.633},       {2149.999, 328.477}, {9000, 164947.680},
    };
    for (const auto& [year, seconds] : rows) {
        const Moment x = J2000 + (year - 2000) * 365.2421875;  // the moment at which its decimal year is this
        EXPECT_NEAR(DeltaT(x, 1), seconds, 0.001) << year;
    }
}

TEST(TimeScales, ConvertBackOverTheWholeRange) {
    struct Way {
        const char* name;
        Moment (*there)(Moment);
        Moment (*back)(Moment);
        double tolerance;  ///< Seconds.
    };
    constexpr Way ways[] = {
        {"terrestrial", UniversalToTerrestrial, TerrestrialToUniversal, 1},
        {"standard", [](Moment x) { return UniversalToStandard(x); }, [](Moment x) { return StandardToUniversal(x); },
         0.001},
        {"local", [](Moment x) { return UniversalToLocal(x); }, [](Moment x) { return LocalToUniversal(x); }, 0.001},
        {"apparent", [](Moment x) { return LocalToApparent(x); }, [](Moment x) { return ApparentToLocal(x); }, 1},
        {"Modified Julian Day", MomentToMJD, MJDToMoment, 0.001},
        {"orbital date", MomentToOrbitalDate, OrbitalDateToMoment, 1},
        {"rotation-adjusted date", MomentToRAYDate, RAYDateToMoment, 40},
    };
    for (const char* place : {"Tehran", "Times Square", "Paris"}) {
        Locale = PresetLocale(place);
        for (const double epoch : {1.0, 730486.0}) {
            SetFixedDayEpoch(GregorianEpoch + epoch - 1, 1, "test");
            for (Moment x = MinFixedDay; x < MaxFixedDay; x += 9973.377) {
                for (const auto& [name, there, back, tolerance] : ways) {
                    EXPECT_NEAR(back(there(x)), x, tolerance * second) << name << " of " << x << " at " << place;
                }
                EXPECT_NEAR(ApparentToUniversal(LocalToApparent(x)), LocalToUniversal(x), second) << x;
                EXPECT_NEAR(RAYDateToMoment(MomentToRAYDate(x) + 1) - x, RAYYearLength(x), 40 * second) << x;
            }
        }
        SetFixedDayEpoch(GregorianEpoch, 1, "rata die");
    }
}

TEST(TimeScales, MeetAtTheirEpochs) {
    Locale = PresetLocale("Tehran");
    const Moment noon = GregorianToFixed(2000, 1, 1) + 0.5;
    EXPECT_EQ(MomentToJD(noon), 2451545);
    EXPECT_NEAR((LocalToStandard(noon) - noon) * 1440, 210 - 51.337917 * 4, 1e-3);
    EXPECT_NEAR(JulianCenturies(noon) * 36525 * 86400, 63.86, 0.01);
    SetDeltaTDisabled(true);
    EXPECT_EQ(MomentToOrbitalDate(GregorianEpoch), 1);
    for (Moment (*const convert)(Moment, const LocaleRecord&) :
         {UniversalToStandard, StandardToUniversal, UniversalToLocal}) {
        EXPECT_EQ(convert(NeverMoment, Locale), NeverMoment);
    }
}

/// Meeus, Astronomical Algorithms, examples 12.a and 12.b.
TEST(SiderealTime, AgreesWithPublishedExamples) {
    const Moment midnight = GregorianToFixed(1987, 4, 10);
    EXPECT_NEAR(MeanSiderealDegrees(midnight), HMSToDegrees(13, 10, 46.3668), 1e-6);
    EXPECT_NEAR(ApparentSiderealDegrees(midnight), HMSToDegrees(13, 10, 46.1351), 1e-6);
    EXPECT_NEAR(MeanSiderealDegrees(midnight + HMSToHours(19, 21, 0) / 24), HMSToDegrees(8, 34, 57.0896), 1e-6);
    for (Moment x = MinFixedDay; x < MaxFixedDay; x += 99991.377) {
        EXPECT_NEAR(SiderealDegrees(x), MeanSiderealDegrees(x), 1e-5) << x;
    }
}

}  // namespace
}  // namespace horvanta
