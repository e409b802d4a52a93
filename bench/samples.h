#pragma once

#include "calendars/gregorian.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

/// What the benchmarks run over, and how.
namespace horvanta {

/// Random numbers between two ends, the same in every run.
inline std::vector<double> RandomNumbers(double from, double to, std::size_t count) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> number(from, to);
    std::vector<double> list(count);
    for (double& x : list) x = number(random);
    return list;
}

/// A million days of the Gregorian years -2000 to 4000, and the same in the C++ library's terms.
inline const std::vector<FixedDay>& RandomDays() {
    static const std::vector<FixedDay> days = [] {
        std::vector<FixedDay> list =
            RandomNumbers(GregorianToFixed(-2000, 1, 1), GregorianToFixed(4001, 1, 1), 1'000'000);
        for (FixedDay& day : list) day = Floor(day);
        return list;
    }();
    return days;
}

inline const std::vector<std::chrono::sys_days>& LibraryDays() {
    static const std::vector<std::chrono::sys_days> days = [] {
        std::vector<std::chrono::sys_days> list;
        for (const FixedDay day : RandomDays()) {
            list.emplace_back(std::chrono::days{static_cast<int>(day - UnixEpoch)});
        }
        return list;
    }();
    return days;
}

/// Moments of all displayable days.
inline const std::vector<Moment>& RandomMoments() {
    static const std::vector<Moment> moments = RandomNumbers(MinFixedDay, MaxFixedDay, 10'000);
    return moments;
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

/// What a series may cost on this machine: one number where four doubles are computed at once, one where it is two.
inline double SinesWith([[maybe_unused]] double wideVectors, double narrowVectors) {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2")) return wideVectors;
#endif
    return narrowVectors;
}

/// Times a function over a list.
template <class Item, class Function>
void ForEach(benchmark::State& state, const std::vector<Item>& items, const Function& function) {
    for (auto _ : state) {
        for (const Item& item : items) benchmark::DoNotOptimize(function(item));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items.size()));
}

}  // namespace horvanta
