#include "calendars/quartane.h"
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
        std::mt19937_64 random(4);
        std::uniform_int_distribution<int> day(static_cast<int>(quartane::QuaNewYear(-2000)),
                                               static_cast<int>(quartane::QuaNewYear(4001)) - 1);
        std::vector<FixedDay> list(1'000'000);
        for (FixedDay& fixed : list) fixed = day(random);
        return list;
    }();
    return days;
}

void ToQuartane(benchmark::State& state) {
    const std::vector<FixedDay>& days = Days();
    for (auto _ : state) {
        for (const FixedDay fixed : days) benchmark::DoNotOptimize(quartane::FixedToQuaDate(fixed));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(days.size()));
}

void ToChronoDate(benchmark::State& state) {
    using namespace std::chrono;
    std::vector<sys_days> days;
    for (const FixedDay fixed : Days()) days.emplace_back(std::chrono::days{static_cast<int>(fixed - UnixEpoch)});
    for (auto _ : state) {
        for (const sys_days day : days) benchmark::DoNotOptimize(year_month_day{day});
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(days.size()));
}

BENCHMARK(ToQuartane)->Name("day to Quartane date");
BENCHMARK(ToChronoDate)->Name("day to std::chrono date");

const RatioClaim claim({"day to Quartane date", "day to std::chrono date", 30});

}  // namespace
}  // namespace horvanta
