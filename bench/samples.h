#pragma once

#include "core/numerics.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

/// Arguments for the functions that are measured.
namespace horvanta {

inline std::vector<double> RandomNumbers(double from, double to, std::size_t count) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> number(from, to);
    std::vector<double> list(count);
    for (double& x : list) x = number(random);
    return list;
}

/// Each day of a year, over and over.
inline const std::vector<FixedDay>& DaysOfAYear() {
    static const std::vector<FixedDay> days = [] {
        std::vector<FixedDay> year(365);
        for (FixedDay& day : year) day = 738900 + static_cast<double>(&day - year.data());
        return year;
    }();
    return days;
}

template <class Function>
void ForEach(benchmark::State& state, const std::vector<double>& numbers, const Function& function) {
    for (auto _ : state) {
        for (const double x : numbers) benchmark::DoNotOptimize(function(x));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers.size()));
}

/// What a series may cost on this machine: one number where four doubles are computed at once, one where it is two.
inline double SinesWith([[maybe_unused]] double wideVectors, double narrowVectors) {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2")) return wideVectors;
#endif
    return narrowVectors;
}

}  // namespace horvanta
