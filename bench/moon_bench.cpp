#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "locale/presets.h"
#include "ratios.h"
#include "samples.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace horvanta {
namespace {

const std::vector<double>& Lunations() {
    static const std::vector<double> lunations = RandomNumbers(-60'000, 140'000, 10'000);
    return lunations;
}

const LocaleRecord& Jerusalem() {
    static const LocaleRecord place = PresetLocale("Jerusalem");
    return place;
}

void Longitude(benchmark::State& state) { ForEach(state, RandomMoments(), lunar::Longitude); }
void Latitude(benchmark::State& state) { ForEach(state, RandomMoments(), lunar::Latitude); }
void Distance(benchmark::State& state) { ForEach(state, RandomMoments(), lunar::Distance); }

void NewMoon(benchmark::State& state) {
    ForEach(state, Lunations(), [](double n) { return NthNewMoon(static_cast<std::int64_t>(n)); });
}

void PhaseOf(benchmark::State& state) {
    ForEach(state, RandomMoments(), [](Moment x) { return lunar::Phase(x); });
}

void NextPhase(benchmark::State& state) {
    ForEach(state, RandomMoments(), [](Moment x) { return PhaseAfter(x, x - 360 * std::floor(x / 360)); });
}

void NextNewMoon(benchmark::State& state) { ForEach(state, RandomMoments(), NewMoonAfter); }

/// What the search for the next new moon may cost: a phase and six new moons.
void PhaseAndSixNewMoons(benchmark::State& state) {
    ForEach(state, RandomMoments(), [](Moment x) {
        const std::int64_t n = ApproxNthMoon(x);
        double sum = 0;
        for (std::int64_t i = 3; i < 9; ++i) sum += NthNewMoon(n + i);
        return sum;
    });
}

void ObservedAltitude(benchmark::State& state) {
    ForEach(state, RandomMoments(), [](Moment x) { return lunar::ObservedAltitude(x, Jerusalem()); });
}

void MoonriseOverAYear(benchmark::State& state) {
    ForEach(state, DaysOfAYear(), [](FixedDay day) { return Moonrise(day, Jerusalem()); });
}

BENCHMARK(Longitude)->Name("lunar::Longitude");
BENCHMARK(Latitude)->Name("lunar::Latitude");
BENCHMARK(Distance)->Name("lunar::Distance");
BENCHMARK(NewMoon)->Name("NthNewMoon");
BENCHMARK(PhaseOf)->Name("lunar::Phase");
BENCHMARK(NextPhase)->Name("PhaseAfter");
BENCHMARK(NextNewMoon)->Name("NewMoonAfter");
BENCHMARK(PhaseAndSixNewMoons)->Name("phase and six new moons");
BENCHMARK(ObservedAltitude)->Name("lunar::ObservedAltitude");
BENCHMARK(MoonriseOverAYear)->Name("Moonrise");

const RatioClaim longitude({"lunar::Longitude", "std::sin", SinesWith(55, 90)});
const RatioClaim latitude({"lunar::Latitude", "std::sin", SinesWith(30, 50)});
const RatioClaim distance({"lunar::Distance", "std::sin", SinesWith(30, 50)});
const RatioClaim newMoon({"NthNewMoon", "std::sin", SinesWith(20, 30)});
const RatioClaim nextNewMoon({"NewMoonAfter", "phase and six new moons", 1});
const RatioClaim nextPhase({"PhaseAfter", "lunar::Phase", 9});
const RatioClaim moonrise({"Moonrise", "lunar::ObservedAltitude", 16});

}  // namespace
}  // namespace horvanta
