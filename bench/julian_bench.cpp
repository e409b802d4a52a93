#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "ratios.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <random>
#include <vector>

namespace horvanta {
namespace {

/// A million days of the years -2000 to 4000.
const std::vector<FixedDay>& Days() {
    static const std::vector<FixedDay> days = [] {
        std::mt19937_64 random(3);
        std::uniform_int_distribution<int> day(static_cast<int>(GregorianToFixed(-2000, 1, 1)),
                                               static_cast<int>(GregorianToFixed(4000, 12, 31)));
        std::vector<FixedDay> list(1'000'000);
        for (FixedDay& fixed : list) fixed = day(random);
        return list;
    }();
    return days;
}

void CountDays(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Days().size()));
}

void ToJulian(benchmark::State& state, bool revised) {
    julian::options.Revise = revised;
    for (auto _ : state) {
        for (const FixedDay fixed : Days()) benchmark::DoNotOptimize(FixedToJulianDate(fixed, revised));
    }
    julian::options.Revise = false;
    CountDays(state);
}

void ToISO(benchmark::State& state) {
    for (auto _ : state) {
        for (const FixedDay fixed : Days()) benchmark::DoNotOptimize(FixedToISODate(fixed));
    }
    CountDays(state);
}

void ToChrono(benchmark::State& state) {
    using namespace std::chrono;
    std::vector<sys_days> days;
    for (const FixedDay fixed : Days()) days.emplace_back(std::chrono::days{static_cast<int>(fixed - UnixEpoch)});
    for (auto _ : state) {
        for (const sys_days day : days) benchmark::DoNotOptimize(year_month_day{day});
    }
    CountDays(state);
}

BENCHMARK_CAPTURE(ToJulian, plain, false)->Name("Julian day to date");
BENCHMARK_CAPTURE(ToJulian, revised, true)->Name("Revised Julian day to date");
BENCHMARK(ToISO)->Name("ISO day to date");
BENCHMARK(ToChrono)->Name("std::chrono day to date");

const RatioClaim julianClaim({"Julian day to date", "std::chrono day to date", 20});
const RatioClaim revisedClaim({"Revised Julian day to date", "std::chrono day to date", 20});
const RatioClaim isoClaim({"ISO day to date", "std::chrono day to date", 20});

}  // namespace
}  // namespace horvanta
