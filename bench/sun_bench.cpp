#include "astro/sun.h"
#include "astro/sun_events.h"
#include "locale/presets.h"
#include "ratios.h"
#include "samples.h"

#include <cmath>

namespace horvanta {
namespace {

/// So many that a processor can't learn them: those of the series are not learned either.
void Sine(benchmark::State& state) {
    static const std::vector<double> angles = RandomNumbers(0, 6.283185307179586, 1'000'000);
    ForEach(state, angles, [](double angle) { return std::sin(angle); });
}

void Longitude(benchmark::State& state) {
    ForEach(state, RandomMoments(), [](Moment x) { return SolarLongitude(x); });
}

void LongitudeAfter(benchmark::State& state) {
    ForEach(state, RandomMoments(), [](Moment x) { return SolarLongitudeAfter(x, x - 360 * std::floor(x / 360)); });
}

/// Each day of a year at Jerusalem, over and over.
void SunriseOverAYear(benchmark::State& state) {
    static const LocaleRecord jerusalem = PresetLocale("Jerusalem");
    ForEach(state, DaysOfAYear(), [](FixedDay day) { return Sunrise(day, jerusalem); });
}

BENCHMARK(Sine)->Name("std::sin");
BENCHMARK(Longitude)->Name("SolarLongitude");
BENCHMARK(LongitudeAfter)->Name("SolarLongitudeAfter");
BENCHMARK(SunriseOverAYear)->Name("Sunrise");

const RatioClaim longitude({"SolarLongitude", "std::sin", SinesWith(45, 75)});
const RatioClaim longitudeAfter({"SolarLongitudeAfter", "SolarLongitude", 16});
const RatioClaim sunrise({"Sunrise", "std::sin", SinesWith(4 * 45, 4 * 75)});  // four solar longitudes at their dearest

}  // namespace
}  // namespace horvanta
