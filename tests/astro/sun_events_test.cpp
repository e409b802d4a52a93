#include "astro/sun_events.h"

#include "astro/local_time.h"
#include "astro/sun.h"
#include "calendars/gregorian.h"
#include "core/locale.h"
#include "core/numbering.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace horvanta {
namespace {

constexpr double minute = 1 / 1440.0;

LocaleRecord PlaceAt(double latitude, double longitude, double elevation = 0) {
    return MakeLocale("test", "", latitude, longitude, elevation, {}, true, true, false);
}

/// A time of day written as hours, minutes and seconds.
double TimeOfDay(std::int32_t hhmmss) { return HMSToHours(hhmmss / 10000, hhmmss / 100 % 100, hhmmss % 100) / 24; }

struct Day {
    const char* place;
    std::int32_t year, month, day;
    std::array<std::int32_t, 5> times;  ///< Dawn, sunrise, midday, sunset, dusk: zone standard time, hhmmss.
    double riseAzimuth, setAzimuth;
};

constexpr std::int32_t never = -1;

/// By Astronomy Engine 2.1.19 (npm astronomy-engine), with observers at sea level: SearchAltitude of the Sun at -18°
/// and -0°50'29", SearchHourAngle at 0, and the azimuths as arc cosine of sin(declination) / cos(latitude), with the
/// declination at the altitude -34'29". PyEphem 4.1.4 gives the same to a second.
constexpr Day days[] = {
    {"Greenwich", 2024, 6, 21, {never, 34247, 120155, 202102, never}, 50.31, 309.68},
    {"Jerusalem", 2049, 11, 3, {43425, 55710, 112237, 164741, 181024}, 107.94, 251.90},
    {"Times Square", 1984, 2, 29, {50015, 63105, 120826, 174625, 191725}, 100.31, 259.92},
    {"Melbourne", 2024, 6, 21, {60127, 73550, 122206, 170823, 184246}, 59.76, 300.24},
};

TEST(SunEvents, AgreeWithAnEphemeris) {
    horizon::options.UseElevation = false;
    for (const auto& [name, year, month, day, times, riseAzimuth, setAzimuth] : days) {
        const LocaleRecord& place = PresetLocale(name);
        const FixedDay date = GregorianToFixed(year, month, day);
        const Moment found[] = {Dawn(date, 18, place), Sunrise(date, place), SolarMidday(date, place),
                                Sunset(date, place), Dusk(date, 18, place)};
        SCOPED_TRACE(testing::Message() << name << ", " << FixedToGregorianString(date));
        for (std::size_t i = 0; i < times.size(); ++i) {
            const Moment expected = times[i] == never ? NeverMoment : date + TimeOfDay(times[i]);
            EXPECT_NEAR(found[i], expected, minute) << i;
        }
        EXPECT_NEAR(RiseSetAzimuth(date, true, true, place), riseAzimuth, 0.02);
        EXPECT_NEAR(RiseSetAzimuth(date, true, false, place), setAzimuth, 0.02);
        EXPECT_NEAR(RiseSetAzimuth(date, false, true, place), riseAzimuth, 0.02);
    }
}

/// The time is by the same program, with the dip of 800 m added to the depression.
TEST(SunEvents, LookDownFromAnElevation) {
    const LocaleRecord& place = PresetLocale("Jerusalem");
    const FixedDay date = GregorianToFixed(2024, 6, 21);
    EXPECT_NEAR((Sunrise(date, place) - date - TimeOfDay(42913)) / minute, 0, 1);
    EXPECT_NEAR(SunDepression(place), DegMinSec(0, 50, 29) + 0.908, 0.001);
    for (const double elevation : {0.0, -430.0}) {
        EXPECT_NEAR(SunDepression(PlaceAt(31.7, 35.5, elevation)), DegMinSec(0, 50, 29), 1e-12) << elevation;
    }
}

TEST(SunEvents, DivideTheDay) {
    Locale = PresetLocale("Jerusalem");
    for (FixedDay date = GregorianToFixed(2024, 1, 1); date < GregorianToFixed(2025, 1, 1); date += 17) {
        const Moment rise = Sunrise(date);
        const Moment set = Sunset(date);
        const std::pair<Moment, Moment> equals[] = {
            {rise + 12 * DayTemporalHour(date), set},
            {set + 12 * NightTemporalHour(date), Sunrise(date + 1)},
            {SolarMidnight(date) + 6 * PreDawnTemporalHour(date), rise},
            {rise + 6 * MorningTemporalHour(date), SolarMidday(date)},
            {SolarMidday(date) + 6 * AfternoonTemporalHour(date), set},
            {set + 6 * EveningTemporalHour(date), SolarMidnight(date + 1)},
            {SundialToStandard(date, 0), (Sunset(date - 1) + rise) / 2},
            {SundialToStandard(date, 6), rise},
            {SundialToStandard(date, 12), (rise + set) / 2},
            {SundialToStandard(date, 18), set},
            {SundialToStandard(date, 24), SundialToStandard(date + 1, 0)},
            {Sunrise(date + 0.7), rise},
        };
        for (const auto& [a, b] : equals) EXPECT_NEAR(a, b, 1e-8) << FixedToGregorianString(date);
    }
}

/// What can be asked of a date, and the bounds of an answer other than `NeverMoment`: days from the date, days, or
/// degrees. A Sun that passes its depression near midnight may move a search on by two days.
struct Question {
    const char* name;
    double (*ask)(FixedDay, const LocaleRecord&);
    double least, most;
    bool isMoment = false;
};

constexpr Question questions[] = {
    {"sunrise", [](FixedDay d, const LocaleRecord& place) { return Sunrise(d, place); }, -2, 1, true},
    {"sunset", [](FixedDay d, const LocaleRecord& place) { return Sunset(d, place); }, 0, 3, true},
    {"dawn", [](FixedDay d, const LocaleRecord& place) { return Dawn(d, 18, place); }, -2, 1, true},
    {"dusk", [](FixedDay d, const LocaleRecord& place) { return Dusk(d, 18, place); }, 0, 3, true},
    {"midday", [](FixedDay d, const LocaleRecord& place) { return SolarMidday(d, place); }, 0.4, 0.6, true},
    {"midnight", [](FixedDay d, const LocaleRecord& place) { return SolarMidnight(d, place); }, -0.1, 0.1, true},
    {"sundial 12", [](FixedDay d, const LocaleRecord& place) { return SundialToStandard(d, 12, place); }, -2, 3, true},
    {"sundial 21", [](FixedDay d, const LocaleRecord& place) { return SundialToStandard(d, 21, place); }, -2, 3, true},
    {"day hour", DayTemporalHour, 0, 0.5},
    {"morning hour", MorningTemporalHour, 0, 0.5},
    {"evening hour", EveningTemporalHour, -0.5, 0.5},
    {"rise azimuth", [](FixedDay d, const LocaleRecord& place) { return RiseSetAzimuth(d, true, true, place); }, 0,
     180},
    {"set azimuth", [](FixedDay d, const LocaleRecord& place) { return RiseSetAzimuth(d, true, false, place); }, 180,
     360},
};

TEST(SunEvents, HappenOrNeverHappenAtThePoles) {
    for (const double latitude : {65.0, 70.0, 82.0, 90.0, -68.0, -90.0}) {
        const LocaleRecord place = PlaceAt(latitude, 0);
        const FixedDay newYear = GregorianToFixed(2024, 1, 1);
        for (const auto& [name, ask, least, most, isMoment] : questions) {
            int happens = 0;
            for (FixedDay date = newYear; date < newYear + 366; ++date) {
                const double answer = ask(date, place);
                if (answer == NeverMoment) continue;
                ++happens;
                const double x = isMoment ? answer - date : answer;
                EXPECT_TRUE(x >= least && x <= most)
                    << name << " of " << FixedToGregorianString(date) << " at " << latitude << ": " << x;
            }
            EXPECT_GT(happens, std::fabs(latitude) == 65 ? 150 : -1) << name;
        }
        EXPECT_EQ(Sunrise(GregorianToFixed(2024, 6, 21), place) == NeverMoment, std::fabs(latitude) > 66) << latitude;
    }
}

/// Refraction lifts the limb over the horizon of a Sun whose centre stays below it: a sunrise without its azimuth. At
/// midsummer the centre, lifted by 0.57 degrees, does not set where its lowest altitude is higher.
TEST(SunEvents, HaveNoAzimuthWhereTheCentreStaysOnOneSide) {
    const LocaleRecord place = PlaceAt(67, 0);
    const FixedDay solstice = GregorianToFixed(2024, 12, 21);
    EXPECT_NEAR(Sunrise(solstice, place), solstice + 0.47, 0.01);
    EXPECT_EQ(RiseSetAzimuth(solstice, false, true, place), NeverMoment);
    const FixedDay june = GregorianToFixed(2024, 6, 20);
    EXPECT_NE(RiseSetAzimuth(june, true, true, PlaceAt(65.98, 0)), NeverMoment);
    EXPECT_EQ(RiseSetAzimuth(june, true, true, PlaceAt(66.0, 0)), NeverMoment);
}

/// Where the geocentric Sun stands without refraction, by Astronomy Engine 2.1.19 (npm astronomy-engine; Horizon of the
/// GeoVector, HourAngle): eastern hour angles are positive here.
TEST(Sun, StandsWhereAnEphemerisPutsIt) {
    constexpr double rows[][5] = {{0, 0, 738965.5, 88.167, 1.827},
                                  {51.5, -75, 739058.9583333334, 18.438, -89.497},
                                  {-33.9, 151.2, 739241.9166666666, 38.359, 58.427},
                                  {-80, 100, 711978.25, -5.082, -10.716}};
    for (const auto& [latitude, longitude, rataDie, altitude, hourAngle] : rows) {
        const LocaleRecord place = PlaceAt(latitude, longitude);
        const Moment universal = rataDie + GregorianEpoch - 1;
        const Moment apparent = LocalToApparent(UniversalToLocal(universal, place), place);
        EXPECT_NEAR(SolarAltitude(apparent, place), altitude, 0.01) << rataDie;
        EXPECT_NEAR(SolarHourAngle(apparent), hourAngle, 0.01) << rataDie;
    }
}

/// Near the days on which the Sun only grazes a depression, guesses can run to and fro without end.
TEST(SunEvents, AlwaysComeToAnEnd) {
    const LocaleRecord& alert = PresetLocale("CFS Alert");
    const FixedDay grazing = GregorianToFixed(1963, 10, 15);
    for (const Moment found : {Sunrise(grazing, alert), Sunset(grazing, alert)}) {
        EXPECT_TRUE(found == NeverMoment || std::fabs(found - grazing - 0.5) < 1) << found;
    }
    std::mt19937_64 random(19631015);
    std::uniform_real_distribution<double> latitudes(60, 90);
    std::uniform_real_distribution<double> dates(MinFixedDay, MaxFixedDay);
    std::uniform_real_distribution<double> depressions(-20, 20);
    for (int i = 0; i < 3000; ++i) {
        const LocaleRecord place = PlaceAt(latitudes(random) * (i % 2 == 0 ? 1 : -1), 0);
        const FixedDay date = Floor(dates(random));
        const double depression = depressions(random);
        for (const bool morning : {true, false}) {
            const Moment found = MomentOfDepression(date + 0.5, depression, morning, place);
            EXPECT_TRUE(found == NeverMoment || std::fabs(found - date - 0.5) < 2)
                << found - date << " for " << date << ", " << depression << " at " << place.Latitude;
        }
    }
}

/// What is asked of a place is answered for it whatever the current place is.
TEST(SunEvents, AreThoseOfThePlaceThatIsAskedFor) {
    const LocaleRecord& place = PresetLocale("Lima");
    const FixedDay date = GregorianToFixed(2024, 2, 20);
    const auto expectSame = [&](const auto& ask, double x, const char* name) {
        Locale = place;
        const double there = ask(x, Locale);
        Locale = PresetLocale("Reykjavik");
        EXPECT_EQ(ask(x, place), there) << name;
    };
    for (const Question& question : questions) expectSame(question.ask, date, question.name);
    for (const auto convert : {LocalToUniversal, UniversalToLocal, UniversalToStandard, StandardToUniversal,
                               LocalToStandard, LocalToApparent, ApparentToLocal, ApparentToUniversal, SolarAltitude}) {
        expectSame(convert, date + 0.3, "a scale of time");
    }
}

}  // namespace
}  // namespace horvanta
