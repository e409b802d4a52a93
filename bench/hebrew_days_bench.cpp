#include "app/horvanta.h"
#include "astro/lunar_phases.h"
#include "astro/sun_events.h"
#include "core/moment.h"
#include "hebrew/hebrew_modes.h"
#include "hebrew/molad.h"
#include "hebrew/torah.h"
#include "locale/presets.h"
#include "ratios.h"
#include "recording_desktop.h"
#include "samples.h"

#include <cmath>
#include <string_view>
#include <vector>

namespace horvanta {
namespace {

/// Days of the years 3800 to 6000.
const std::vector<FixedDay>& RandomHebrewDays() {
    static const std::vector<FixedDay> days = [] {
        std::vector<FixedDay> list = RandomNumbers(HebrewNewYear(3800), HebrewNewYear(6001), 100'000);
        for (FixedDay& day : list) day = Floor(day);
        return list;
    }();
    return days;
}

void DayAndPortion(benchmark::State& state, std::string_view name) {
    const LocaleRecord& place = PresetLocale(name);
    ForEach(state, RandomHebrewDays(), [&](FixedDay day) {
        const HebrewDay hebrewDay = HebrewDayOf(day, place);
        return hebrewDay.texts.size() + TorahPortion(hebrewDay, false, place).size();
    });
}

void Window(benchmark::State& state) {
    RecordingDesktop desktop;
    CurrentDesktop = &desktop;
    Horvanta program;
    program.Start();
    for (auto _ : state) {
        DisplayedMoment = DisplayedMoment < MaxFixedDay - 1 ? DisplayedMoment + 1 : MinFixedDay + 0.125;
        program.hebrew.Update();
    }
    state.SetItemsProcessed(state.iterations());
}

/// All months of a year that was not asked before.
void YearOfModes(benchmark::State& state, const std::vector<std::int32_t>& modes) {
    std::int32_t year = 5000;
    for (auto _ : state) {
        for (const std::int32_t mode : modes) {
            hebrew::options.HebrewMode = mode;
            benchmark::DoNotOptimize(AstroHebrewToFixed(year, 1, 1));
        }
        year = year < 6000 ? year + 1 : 5000;
    }
    hebrew::options = {};
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(modes.size()));
}

void OneProgressiveMolad(benchmark::State& state) {
    ForEach(state, RandomHebrewDays(), [](double n) { return ProgressiveMolad(std::fmod(n, 80'000)); });
}

void MoonsAndSunsets(benchmark::State& state) {
    const LocaleRecord& place = PresetLocale("Jerusalem");
    Moment x = HebrewNewYear(5000);
    for (auto _ : state) {
        for (int i = 0; i < 30; ++i) benchmark::DoNotOptimize(NewMoonAfter(x += 12.2));
        for (int i = 0; i < 40; ++i) benchmark::DoNotOptimize(Sunset(x += 9.1, place));
        if (x > HebrewNewYear(6000)) x = HebrewNewYear(5000);
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(DayAndPortion, israel, "Jerusalem")->Name("Hebrew day in Israel");
BENCHMARK_CAPTURE(DayAndPortion, diaspora, "Times Square")->Name("Hebrew day in the diaspora");
BENCHMARK(Window)->Name("Hebrew window");
BENCHMARK_CAPTURE(YearOfModes, cycle, {10, 12, 17, 18, 19, 20, 21, 22})->Name("year of a fixed cycle");
BENCHMARK_CAPTURE(YearOfModes, sky, {1, 2, 3, 4, 5, 6, 7, 15, 16, 23})->Name("year of an astronomical mode");
BENCHMARK(OneProgressiveMolad)->Name("ProgressiveMolad");
BENCHMARK(MoonsAndSunsets)->Name("30 new moons and 40 sunsets");

const RatioClaim israel({"Hebrew day in Israel", "ICU Hebrew from fixed", 6});
const RatioClaim diaspora({"Hebrew day in the diaspora", "ICU Hebrew from fixed", 6});
const RatioClaim window({"Hebrew window", "SolarLongitude", 150});
const RatioClaim cycle({"year of a fixed cycle", "ProgressiveMolad", 40});
const RatioClaim sky({"year of an astronomical mode", "30 new moons and 40 sunsets", 1});

}  // namespace
}  // namespace horvanta
