#include "core/locale.h"

#include "core/text.h"
#include "desk.h"
#include "locale/distances.h"
#include "locale/locale_text.h"
#include "locale/presets.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace horvanta {
namespace {

TEST(Locale, IsMadeOfWhatIsGiven) {
    const LocaleRecord nowhere = MakeLocale("", "", 95, 190, 0);
    EXPECT_EQ(nowhere.Name, "Unknown");
    EXPECT_EQ(MakeLocale("", "Haifa", 0, 0, 0).Name, "Haifa");
    EXPECT_EQ(nowhere.Latitude, 90);
    EXPECT_EQ(nowhere.Longitude, -170);
    EXPECT_EQ(MakeLocale("x", "", 0, 37.5, 0).Zone, 2);
    EXPECT_EQ(MakeLocale("x", "", 0, 30, 0, 5, false, true, true).Zone, 2);
    EXPECT_FALSE(MakeLocale("Haifa", "Haifa, ISRAEL", 0, 0, 0).Diaspora);
    EXPECT_NEAR(MakeLocale("x", "", 45, 0, 0).KmPerDegLat, 111.132, 0.001);
}

/// Great circles from a table of spherical trigonometry; the ellipsoid from Meeus, Astronomical Algorithms, chapter 11.
TEST(Locale, KnowsDistancesAndDirections) {
    const LocaleRecord paris = MakeLocale("Paris", "", DegMinSec(48, 50, 11), DegMinSec(2, 20, 14), 0);
    const LocaleRecord washington = MakeLocale("Washington", "", DegMinSec(38, 55, 17), -DegMinSec(77, 3, 56), 0);
    EXPECT_NEAR(OblateDistance(paris, washington), 6181.63, 0.01);
    EXPECT_NEAR(SphericalDistance(paris, washington), 6162, 1);
    EXPECT_EQ(OblateDistance(paris, paris), 0);
    EXPECT_NEAR(DirectionTo(paris, washington), 291.79, 0.01);
    EXPECT_EQ(DirectionTo(MakeLocale("x", "", 0, 10, 0), MakeLocale("x", "", 0, 50, 0)), 90);
    EXPECT_EQ(DirectionTo(MakeLocale("x", "", 0, 10, 0), MakeLocale("x", "", 0, -50, 0)), 270);
}

TEST(Locale, IsToldInWords) {
    constexpr std::pair<double, const char*> rows[] = {
        {0, "True N"},           {45, "True NE"},     {360, "True N"},         {-90, "True W"},
        {100, "10° S of E"},     {80, "10° N of E"},  {337.5, "22.5° W of N"}, {22.5, "22.5° E of N"},
        {200.5, "20.5° W of S"}, {230, "5° W of SW"}, {220, "5° S of SW"},
    };
    for (const auto& [degrees, text] : rows) EXPECT_EQ(CompassPoint(degrees), text) << degrees;

    EXPECT_EQ(LocaleSummary(PresetLocale("Lima")),
              "Lima, Peru:  12°00'00.0\"S, 77°00'00.0\"W, sea level, zone UT-05:00");
    EXPECT_EQ(LocaleSummary(PresetLocale("Paris")),
              "Paris Observatory, France:  48°50'11.0\"N, 2°20'11.7\"E, elevation 27m, time UT+00:09:21");

    const std::string report = LocaleChangeReport(PresetLocale("Jerusalem"), PresetLocale("Lima"));
    for (const char* line : {"\nTime Zone change = -7.0 hours – 07:28:56\n", "\nLocal Mean Time = UT – 05:08:00"}) {
        EXPECT_NE(report.find(line), std::string::npos) << line << "\n" << report;
    }
}

TEST(Locale, IsFoundOnMaps) {
    const LocaleRecord place = MakeLocale("Old Town", "Old Town & Port", -1.5, 2.25, 0);
    web_map::options.MapIndex = 3;
    EXPECT_TRUE(MapLink(MakeLocale("A&B#é", "", 1, 2, 0), false).ends_with("an.1_2_A%26B%23%C3%A9_"));
    web_map::options.MapIndex = 1;
    const std::string anchor = MapLink(place, true);
    EXPECT_TRUE(anchor.starts_with(
        "<a title=\"Click to see &quot;MapQuest&quot; map of &quot;Old Town &amp; Port&quot;\" href=\"http://"));
    EXPECT_TRUE(
        anchor.ends_with("?center=-1.5,2.25&amp;zoom=9&amp;q=Old%20Town\" target=_blank>Old Town &amp; Port</a>"));
}

TEST(LocaleMenu, MovesWithAReport) {
    Desk desk;
    desk.Obey("menu SetParis");
    EXPECT_EQ(desk.Obey("asked").substr(0, 16), "box \"New Locale\"");
    EXPECT_EQ(Locale, PresetLocale("Paris"));
    desk.Obey("menu SetParis");
    EXPECT_EQ(desk.Obey("asked"), "none");
    EXPECT_EQ(std::ranges::count_if(desk.program.frame.Presets, &MenuItem::isTicked), 1);
    desk.Obey("menu MapLocale");
    EXPECT_EQ(desk.Obey("asked").substr(0, 13), "open \"http://");
    web_map::options.MapIndex = 7;  // has no form of link; as settings may have it
    desk.Obey("menu MapLocale");
    EXPECT_EQ(desk.Obey("asked"),
              "box \"Map Server\" \"No form of link to GeaBios is known. Choose another map server.\"");
}

}  // namespace
}  // namespace horvanta
