#include "core/numerics.h"
#include "ratios.h"
#include "samples.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace horvanta {
namespace {

const std::vector<double>& DayMoments() {
    static const std::vector<double> moments = RandomNumbers(-2.5e6, 4.4e6, 4096);
    return moments;
}

double PlainFloor(double x) { return std::floor(x); }

/// The plain form of `Floor`, by the C library.
double FloorBySnprintf(double x) {
    char text[40];
    std::snprintf(text, sizeof text, "%.15g", x);
    return std::floor(std::strtod(text, nullptr));
}

template <double (*Function)(double)>
void OverDayMoments(benchmark::State& state) {
    ForEach(state, DayMoments(), Function);
}

BENCHMARK(OverDayMoments<Floor>)->Name("Floor");
BENCHMARK(OverDayMoments<PlainFloor>)->Name("std::floor");
BENCHMARK(OverDayMoments<FloorBySnprintf>)->Name("snprintf and strtod");

const RatioClaim claims[] = {
    RatioClaim({"Floor", "snprintf and strtod", 1.0 / 150}),
    RatioClaim({"Floor", "std::floor", 2}),
};

}  // namespace
}  // namespace horvanta
