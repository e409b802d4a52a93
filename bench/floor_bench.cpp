#include "core/numerics.h"
#include "ratios.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace horvanta {
namespace {

const std::vector<double>& DayMoments() {
    static const std::vector<double> moments = [] {
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> day(-2.5e6, 4.4e6);
        std::vector<double> list(4096);
        for (double& x : list) x = day(random);
        return list;
    }();
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
    const std::vector<double>& moments = DayMoments();
    for (auto _ : state) {
        for (const double x : moments) benchmark::DoNotOptimize(Function(x));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(moments.size()));
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
