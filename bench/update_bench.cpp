#include "app/horvanta.h"
#include "core/moment.h"
#include "locale/presets.h"
#include "ratios.h"
#include "recording_desktop.h"
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

/// The strip on days not seen before, all of its twilights its own.
void Strip(benchmark::State& state) {
    FixedDay day = MinFixedDay;
    for (auto _ : state) {
        day = day < MaxFixedDay - 1 ? day + 1 : MinFixedDay;
        benchmark::DoNotOptimize(DayOfLight(day, PresetLocale("Jerusalem")));
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(FullUpdate)->Name("UpdateStatus");
BENCHMARK(SolarUpdate)->Name("UpdateStatus without Moon");
BENCHMARK(TimeUpdate)->Name("UpdateStatus, Time window");
BENCHMARK(Strip)->Name("strip of the day");

// The Time window and the calendars of the Sun keep the bound that they had when a longitude took five times as many
// sines. Those of the Moon and the Hebrew window came later.
const RatioClaim claim({"UpdateStatus", "SolarLongitude", 225});
const RatioClaim solarClaim({"UpdateStatus without Moon", "SolarLongitude", 90});
const RatioClaim timeClaim({"UpdateStatus, Time window", "SolarLongitude", 90});
const RatioClaim stripClaim({"strip of the day", "SolarLongitude", 50});

}  // namespace
}  // namespace horvanta
