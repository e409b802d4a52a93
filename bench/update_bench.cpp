#include "app/horvanta.h"
#include "core/moment.h"
#include "ratios.h"
#include "recording_desktop.h"

#include <benchmark/benchmark.h>

namespace horvanta {
namespace {

/// A full update with every window open, each time on a day not seen before.
void FullUpdate(benchmark::State& state) {
    RecordingDesktop desktop;
    CurrentDesktop = &desktop;
    Horvanta program;
    program.Start();
    DisplayedMoment = MinFixedDay + 0.125;
    for (auto _ : state) {
        DisplayedMoment = DisplayedMoment < MaxFixedDay - 1 ? DisplayedMoment + 1 : MinFixedDay + 0.125;
        UpdateStatus();
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(FullUpdate)->Name("UpdateStatus");

const RatioClaim claim({"UpdateStatus", "SolarLongitude", 90});

}  // namespace
}  // namespace horvanta
