#include "astro/sun.h"
#include "astro/sun_events.h"
#include "core/numbering.h"
#include "locale/presets.h"
#include "ratios.h"
#include "samples.h"

#include <cmath>

namespace horvanta {
namespace {

const std::vector<Moment>& Moments() {
    static const std::vector<Moment> moments = RandomNumbers(MinFixedDay, MaxFixedDay, 10'000);
    return moments;
}

/// So many that a processor can't learn them: those of the series are not learned either.
void Sine(benchmark::State& state) {
    static const std::vector<double> angles = RandomNumbers(0, 6.283185307179586, 1'000'000);
    ForEach(state, angles, [](double angle) { return std::sin(angle); });
}

void Longitude(benchmark::State& state) {
    ForEach(state, Moments(), [](Moment x) { return SolarLongitude(x); });
}

void LongitudeAfter(benchmark::State& state) {
    ForEach(state, Moments(), [](Moment x) { return SolarLongitudeAfter(x, x - 360 * std::floor(x / 360)); });
}

/// Each day of a year at Jerusalem, over and over.
void SunriseOverAYear(benchmark::State& state) {
    static const std::vector<double> days = [] {
        std::vector<double> year(365);
        for (double& day : year) day = 738900 + static_cast<double>(&day - year.data());
        return year;
    }();
    ForEach(state, days, [](FixedDay day) { return Sunrise(day, PresetLocale("Jerusalem")); });
}

BENCHMARK(Sine)->Name("std::sin");
BENCHMARK(Longitude)->Name("SolarLongitude");
BENCHMARK(LongitudeAfter)->Name("SolarLongitudeAfter");
BENCHMARK(SunriseOverAYear)->Name("Sunrise");

const RatioClaim longitude({"SolarLongitude", "std::sin", 150});
const RatioClaim longitudeAfter({"SolarLongitudeAfter", "SolarLongitude", 16});
const RatioClaim sunrise({"Sunrise", "SolarLongitude", 4});

}  // namespace
}  // namespace horvanta
