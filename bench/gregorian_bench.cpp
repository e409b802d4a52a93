#include "calendars/gregorian.h"
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
        std::mt19937_64 random(2);
        std::uniform_int_distribution<int> day(static_cast<int>(GregorianToFixed(-2000, 1, 1)),
                                               static_cast<int>(GregorianToFixed(4000, 12, 31)));
        std::vector<FixedDay> list(1'000'000);
        for (FixedDay& fixed : list) fixed = day(random);
        return list;
    }();
    return days;
}

void GregorianThereAndBack(benchmark::State& state) {
    const std::vector<FixedDay>& days = Days();
    for (auto _ : state) {
        for (const FixedDay fixed : days) {
            const GregorianDate date = FixedToGregorianDate(fixed);
            benchmark::DoNotOptimize(GregorianToFixed(date.year, date.month, date.day));
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(days.size()));
}

void ChronoThereAndBack(benchmark::State& state) {
    using namespace std::chrono;
    std::vector<sys_days> days;
    for (const FixedDay fixed : Days()) days.emplace_back(std::chrono::days{static_cast<int>(fixed - UnixEpoch)});
    for (auto _ : state) {
        for (const sys_days day : days) {
            const year_month_day date{day};
            benchmark::DoNotOptimize(sys_days{date});
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(days.size()));
}

BENCHMARK(GregorianThereAndBack)->Name("Gregorian there and back");
BENCHMARK(ChronoThereAndBack)->Name("std::chrono there and back");

const RatioClaim claim({"Gregorian there and back", "std::chrono there and back", 6});

}  // namespace
}  // namespace horvanta
