#include "app/horvanta.h"
#include "core/moment.h"
#include "locale/presets.h"
#include "ratios.h"
#include "recording_desktop.h"
#include "samples.h"
#include "views/day_strip.h"

#include <benchmark/benchmark.h>

#include <string_view>

namespace horvanta {
namespace {

/// Updates, each on a day not seen before, with those of the windows that are open at first which a test admits.
void Updates(benchmark::State& state, bool (*isOpen)(std::string_view form)) {
    RecordingDesktop desktop;
    CurrentDesktop = &desktop;
    Horvanta program;
    program.Start();
    for (Form* form : program.Forms()) form->visible = form->visible && isOpen(form->name);
    DisplayedMoment = MinFixedDay + 0.125;
    for (auto _ : state) {
        DisplayedMoment = DisplayedMoment < MaxFixedDay - 1 ? DisplayedMoment + 1 : MinFixedDay + 0.125;
        UpdateStatus();
    }
    state.SetItemsProcessed(state.iterations());
}

void FullUpdate(benchmark::State& state) {
    Updates(state, [](std::string_view) { return true; });
}
void SolarUpdate(benchmark::State& state) {
    Updates(state, [](std::string_view form) { return form != "Lunar" && form != "Hebrew" && form != "Events"; });
}
void TimeUpdate(benchmark::State& state) {
    Updates(state, [](std::string_view form) { return form == "TimeAstro"; });
}

/// The strip of each day of a year at Jerusalem, over and over, all of its twilights its own.
void Strip(benchmark::State& state) {
    ForEach(state, DaysOfAYear(), [](FixedDay day) { return DayOfLight(day, PresetLocale("Jerusalem")); });
}

BENCHMARK(FullUpdate)->Name("UpdateStatus");
BENCHMARK(SolarUpdate)->Name("UpdateStatus without Moon");
BENCHMARK(TimeUpdate)->Name("UpdateStatus, Time window");
BENCHMARK(Strip)->Name("strip of the day");

const RatioClaim claim({"UpdateStatus", "SolarLongitude", 90});
const RatioClaim solarClaim({"UpdateStatus without Moon", "SolarLongitude", 90});
const RatioClaim timeClaim({"UpdateStatus, Time window", "SolarLongitude", 90});
const RatioClaim stripClaim({"strip of the day", "SolarLongitude", 50});

}  // namespace
}  // namespace horvanta
