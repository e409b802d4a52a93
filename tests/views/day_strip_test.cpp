#include "views/day_strip.h"

#include "astro/sun_events.h"
#include "clock/zone_time.h"
#include "desk_fixture.h"
#include "locale/presets.h"

#include <algorithm>
#include <tuple>

namespace horvanta {
namespace {

using DayStripTest = DeskTest;

using Light = DayStrip::Light;

std::string Lights(const DayStrip::Day& day) {
    std::string letters;
    for (const auto& span : day.spans) letters += "NAnCD"[static_cast<int>(span.light)];
    return letters;
}

/// Night, the three twilights and daylight, as far as the place has them on the day.
TEST(DayStrip, ShowsTheLightsOfAPlace) {
    const FixedDay june = GregorianToFixed(2024, 6, 21);
    const FixedDay december = GregorianToFixed(2024, 12, 21);
    const std::tuple<LocaleRecord, FixedDay, const char*> rows[] = {
        {PresetLocale("Jerusalem"), december, "NAnCDCnAN"},
        {PresetLocale("Greenwich"), june, "AnCDCnA"},  // never night
        {MakeLocale("60 N", "", 60, 0, 0), june, "CnCDC"},
        {PresetLocale("CFS Alert"), june, "D"},
        {PresetLocale("CFS Alert"), december, "NAN"},
        {MakeLocale("South Pole", "", -90, 0, 0), june, "N"},
        {MakeLocale("South Pole", "", -90, 0, 0), december, "D"},
        {MakeLocale("89 N", "", 89, 0, 0), GregorianToFixed(2026, 3, 21), "DCD"},  // it rises and doesn't set
    };
    for (const auto& [place, day, lights] : rows) {
        EXPECT_EQ(Lights(DayOfLight(day, place)), lights) << place.Name << " " << FixedToGregorianString(day);
    }
}

/// The strip changes where the bar's times are, on the clock of the place.
TEST(DayStrip, MeetsTheTimesOfTheBar) {
    const LocaleRecord& place = PresetLocale("Times Square");
    const FixedDay day = GregorianToFixed(2024, 7, 4);  // under daylight saving time
    const auto spans = DayOfLight(day, place).spans;
    const auto daylight = std::ranges::find(spans, Light::Daylight, &DayStrip::Span::light);
    EXPECT_NEAR(daylight->from, StandardToDaylight(Sunrise(day, place), place) - day, 1e-9);
    EXPECT_NEAR((daylight + 1)->from, StandardToDaylight(Sunset(day, place), place) - day, 1e-9);
    EXPECT_NEAR(DayOfLight(day, place).noon, StandardToDaylight(SolarMidday(day, place), place) - day, 1e-9);
}

TEST_F(DayStripTest, TellsWhereTheSunIs) {
    desk.Obey("menu SetCFSalert");
    const TimeFields& fields = desk.program.timeAstro.fields;
    const auto shown = [&fields](int panel) { return fields.DawnDusk.panels[static_cast<std::size_t>(panel)]; };
    Show(2024, 12, 21);
    EXPECT_EQ(shown(8).tooltip, "Sun down all day");
    EXPECT_EQ(fields.ClockLabel.text, "Clock time, UT-05:00");
    Show(2024, 6, 21);
    EXPECT_EQ(shown(0).tooltip, "Sun up all day");
    for (const int i : {0, 1, 3, 4, 5, 7, 8}) EXPECT_EQ(shown(i).text, "never") << i;
    for (const int i : {2, 6}) EXPECT_NE(shown(i).text, "never") << i;
    EXPECT_TRUE(fields.DayLight.text.starts_with("Light of the day: daylight all day. At 08:00, Sun "))
        << fields.DayLight.text;
    EXPECT_EQ(fields.ClockLabel.text, "Clock time, UT-04:00");
    EXPECT_FALSE(fields.UseElevation.enabled);
}

}  // namespace
}  // namespace horvanta
