#include "core/memo.h"

#include "app/all_options.h"
#include "astro/crescents.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "calendars/civil_days.h"
#include "calendars/easter.h"
#include "calendars/persian.h"
#include "calendars/quartane_leap_rules.h"
#include "core/text.h"
#include "locale/presets.h"
#include "views/day_strip.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

std::string Joined(const std::vector<DayText>& day) {
    std::string text = std::to_string(day.size());
    for (const DayText& each : day) text += " " + each.text;
    return text;
}

/// What is remembered, as a text of a moment.
struct Remembered {
    const char* name;
    std::string (*at)(Moment x);
};

const Remembered functions[] = {
    {"Sun", [](Moment x) { return ExactText(SolarLongitude(x)); }},
    {"Moon", [](Moment x) { return ExactText(lunar::Declination(x)) + ExactText(lunar::Distance(x)); }},
    {"dawn", [](Moment x) { return ExactText(Dawn(x, 6)); }},
    {"dusk", [](Moment x) { return ExactText(Dusk(x, SunDepression())); }},
    {"moonrise", [](Moment x) { return ExactText(Moonrise(x)); }},
    {"crescent", [](Moment x) { return ExactText(VisibleCrescentAfter(x)); }},
    {"strip", [](Moment x) { return StripSentence(DayOfLight(Floor(x)), x); }},
    {"Easter", [](Moment x) { return Joined(CivilDaysOf(x)); }},
    {"Quartane days", [](Moment x) { return Joined(quartane::CivilDaysOf(x)); }},
    {"Quartane rules", [](Moment x) { return quartane::LeapChoices().back() + ExactText(x); }},
    {"Persian year", [](Moment x) { return ExactText(PersianCalendar.DateOf(x).year); }},
};

/// What they depend on, changed.
struct Change {
    const char* name;
    void (*make)();
};

const Change changes[] = {
    {"place", [] { Locale = PresetLocale("Melbourne"); }},
    {"zone", [] { Locale.Zone += 1; }},
    {"latitude", [] { Locale.LatRad = -Locale.LatRad; }},
    {"longitude", [] { Locale.Longitude += 15; }},
    {"elevation", [] { horizon::options.UseElevation = !horizon::options.UseElevation; }},
    {"Delta T", [] { SetDeltaTDisabled(true); }},
    {"numbering", [] { SetFixedDayEpoch(GregorianEpoch + 3333, 1, "another"); }},
    {"Easter", [] { easter::options.UniformEaster = true; }},
    {"Quartane start", [] { quartane::options.StartWeekday = 3; }},
    {"Quartane list", [] { quartane::options.QuaSoupMix = true; }},
};

/// What is remembered from before a change must not answer behind it: it is compared with what is found when all has
/// been forgotten over other days.
TEST(Memo, KnowsWhatItsValuesDependOn) {
    constexpr FixedDay days[] = {-800000, 738976, 739000};  // Easter Sunday 2024 among them
    constexpr int moreThanAnyKeeps = 70;
    for (const auto& [function, at] : functions) {
        for (const auto& [change, make] : changes) {
            for (const FixedDay day : days) {
                ResetAllOptions();
                Locale = PresetLocale("Jerusalem");
                at(day);
                make();
                const std::string found = at(day);
                for (int other = 1; other <= moreThanAnyKeeps; ++other) at(day + 400 * other);
                EXPECT_EQ(found, at(day)) << function << " after a change of " << change << ", day " << day;
            }
        }
    }
}

}  // namespace
}  // namespace horvanta
