#include "app/horvanta.h"
#include "core/moment.h"
#include "ratios.h"
#include "recording_desktop.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace horvanta {
namespace {

/// Updates, each on a day not seen before, with the windows that are open at first but for some.
void Updates(benchmark::State& state, const std::vector<const char*>& closed) {
    RecordingDesktop desktop;
    CurrentDesktop = &desktop;
    Horvanta program;
    program.Start();
    for (Form* form : program.Forms()) form->visible = form->visible && std::ranges::count(closed, form->name) == 0;
    DisplayedMoment = MinFixedDay + 0.125;
    for (auto _ : state) {
        DisplayedMoment = DisplayedMoment < MaxFixedDay - 1 ? DisplayedMoment + 1 : MinFixedDay + 0.125;
        UpdateStatus();
    }
    state.SetItemsProcessed(state.iterations());
}

void FullUpdate(benchmark::State& state) { Updates(state, {}); }
void SolarUpdate(benchmark::State& state) { Updates(state, {"Lunar", "Hebrew", "Events"}); }

BENCHMARK(FullUpdate)->Name("UpdateStatus");
BENCHMARK(SolarUpdate)->Name("UpdateStatus without Moon");

const RatioClaim claim({"UpdateStatus", "SolarLongitude", 90});
const RatioClaim solarClaim({"UpdateStatus without Moon", "SolarLongitude", 225});

}  // namespace
}  // namespace horvanta
