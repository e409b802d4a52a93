#include "hebrew/zmanim.h"

#include "astro/sun_events.h"
#include "calendars/gregorian.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>

namespace horvanta {
namespace {

constexpr double second = 1.0 / 86400;

std::vector<Zman> ZmanimOn(FixedDay day, const LocaleRecord& place) {
    return ZmanimOf(HebrewDayOf(day, place), HebrewDayOf(day + 1, place), place);
}

Zman Find(const std::vector<Zman>& zmanim, std::string_view key) { return *std::ranges::find(zmanim, key, &Zman::key); }

double TimeOfDay(std::int32_t hhmmss) { return HMSToHours(hhmmss / 10000, hhmmss / 100 % 100, hhmmss % 100) / 24; }

/// By `@hebcal/core` 5 (npm), class Zmanim without elevation, in standard time: timeAtAngle, sofZmanShma,
/// sofZmanTfilla, minchaGedola and plagHaMincha.
TEST(Zmanim, AgreeWithAnotherProgram) {
    constexpr std::string_view keys[] = {"Dawn", "Recognition", "Shma",   "Tefila", "EarlyMinhah",
                                         "Plag", "DuskVG",      "DuskRL", "Tzait",  "DuskRT"};
    constexpr struct {
        const char* place;
        std::int32_t year, month, day;
        std::array<std::int32_t, 10> times;  ///< hhmmss
    } days[] = {
        {"Jerusalem", 2023, 4, 4, {41115, 43940, 83323, 93623, 121352, 164136, 181835, 182434, 183658, 193216}},
        {"Melbourne", 2023, 6, 3, {60426, 63532, 95253, 104120, 124228, 160822, 173036, 173732, 175143, 185135}},
    };
    horizon::options.UseElevation = false;
    for (const auto& [name, year, month, day, times] : days) {
        const FixedDay fixed = GregorianToFixed(year, month, day);
        const auto zmanim = ZmanimOn(fixed, PresetLocale(name));
        const bool holy = PresetLocale(name).South;  // the second is a Sabbath, which ends at 8.5°
        for (std::size_t i = 0; i < std::size(keys); ++i) {
            const std::size_t told = keys[i] == "Tzait" && !holy ? 6 : i;
            EXPECT_NEAR(Find(zmanim, keys[i]).moment, fixed + TimeOfDay(times[told]), 45 * second) << name << keys[i];
        }
    }
}

/// What the candles wait for, and what ends at nightfall.
TEST(Zmanim, LightCandles) {
    const std::tuple<const char*, std::int32_t, std::int32_t, std::int32_t, const char*, const char*, const char*>
        days[] = {
            {"Times Square", 5784, 1, 4, "<", "18 minutes before sunset", "Three Stars"},  // Friday
            {"Times Square", 5784, 1, 15, ">", "after Yom Tov ends", "Passover 1 Ends"},
            {"Jerusalem", 5784, 1, 15, "", "", "Passover Ends"},
            {"Times Square", 5784, 7, 1, ">", "after Shabbat ends", "Shabbat, Rosh Hashanah 1 (Hebrew New Year) Ends"},
            {"Times Square", 5785, 7, 2, "<", "18 minutes before sunset", "Rosh Hashanah 2 (Hebrew New Year) Ends"},
            {"Times Square", 5784, 9, 24, "~", "when stars appear", "Three Stars"},
            {"Times Square", 5784, 9, 26, ">", "after Shabbat ends", "Shabbat Ends"},
            {"Times Square", 5784, 9, 25, "<", "18 minutes before sunset", "Three Stars"},  // Chanukah on a Friday
        };
    for (const auto& [name, year, month, day, mark, rule, ends] : days) {
        const LocaleRecord& place = PresetLocale(name);
        const auto zmanim = ZmanimOn(HebrewToFixed(year, month, day), place);
        const Zman candles = Find(zmanim, "Candles");
        EXPECT_EQ(candles.mark, mark) << name << year << " " << month << " " << day;
        EXPECT_EQ(candles.isDue ? candles.rule : "", rule);
        EXPECT_EQ(Find(zmanim, "Tzait").legend, ends);
    }
    hebrew::options.CandlesBeforeSunset = 40;
    const LocaleRecord& jerusalem = PresetLocale("Jerusalem");
    const FixedDay friday = HebrewToFixed(5784, 1, 4);
    EXPECT_NEAR(Find(ZmanimOn(friday, jerusalem), "Candles").moment, Sunset(friday, jerusalem) - 40.0 / 1440, 1e-9);
    const LocaleRecord& abroad = PresetLocale("Times Square");
    const FixedDay festival = HebrewToFixed(5784, 1, 15);
    EXPECT_NEAR(Find(ZmanimOn(festival, abroad), "Candles").moment, Dusk(festival, 8.5, abroad) + 1.0 / 1440, 1e-9);
}

TEST(Zmanim, RunAClockOfTemporalHours) {
    for (const char* name : {"Jerusalem", "Melbourne", "Reykjavik"}) {
        const LocaleRecord& place = PresetLocale(name);
        for (int i = 0; i < 12; ++i) {
            const FixedDay day = 738900 + i * 30.0;
            EXPECT_EQ(ZmanToStandard(day, 6, place), Sunrise(day, place));
            EXPECT_EQ(ZmanToStandard(day, 18, place), Sunset(day, place));
            EXPECT_NEAR(ZmanToStandard(day, 9, place), (Sunrise(day, place) + SolarMidday(day, place)) / 2, 1e-9);
            EXPECT_NEAR(ZmanToStandard(day, 17, place), Sunset(day, place) - AfternoonTemporalHour(day, place), 1e-9);
            EXPECT_NEAR(ZmanToStandard(day, 3, place), (SolarMidnight(day, place) + Sunrise(day, place)) / 2, 1e-9);
            EXPECT_NEAR(ZmanToStandard(day, 21, place), (Sunset(day, place) + SolarMidnight(day + 1, place)) / 2, 1e-9);
        }
    }
}

/// Where the Sun stays up or down a moment is of its day or never, and no mark stands at what never comes.
TEST(Zmanim, KeepToTheDayInTheFarNorth) {
    const LocaleRecord places[] = {PresetLocale("Reykjavik"), MakeLocale("Tromsø", "", 69.65, 18.96, 0, 1),
                                   MakeLocale("Pole", "", 90, 0, 0, 0)};
    int never = 0;
    for (const LocaleRecord& place : places) {
        for (FixedDay day = HebrewNewYear(5784); day < HebrewNewYear(5785); ++day) {
            for (const Zman& zman : ZmanimOn(day, place)) {
                never += isNever(zman.moment);
                if (isNever(zman.moment)) {
                    EXPECT_EQ(zman.moment, NeverMoment);
                    EXPECT_EQ(zman.mark, "");
                } else {
                    EXPECT_NEAR(zman.moment, day + 0.5, 1) << place.Name << zman.key;
                }
            }
            for (double hour = 0; hour <= 24; hour += 1.5) {
                const Moment moment = ZmanToStandard(day, hour, place);
                EXPECT_TRUE(moment == NeverMoment || std::abs(moment - day - 0.5) < 1) << place.Name << hour;
            }
        }
    }
    EXPECT_GT(never, 1000);
}

/// The hours of the week run through the planets, so that each day is named after that of its first daylight hour.
TEST(Zmanim, GiveThePlanetsOfHours) {
    const FixedDay sunday = KDayOnOrAfter(0, 739000);
    constexpr std::string_view ofMornings[] = {"Chamah (Sun)",     "Levanah (Moon)",   "Ma'adim (Mars)",
                                               "Kochav (Mercury)", "Tzedek (Jupiter)", "Nogah (Venus)",
                                               "Shabbtai (Saturn)"};
    for (int i = 0; i < 7; ++i) EXPECT_EQ(MomentToMazzalName(sunday + i + 6.5 / 24), ofMornings[i]) << i;
}

}  // namespace
}  // namespace horvanta
