#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "ratios.h"
#include "samples.h"

namespace horvanta {
namespace {

void ToJulian(benchmark::State& state, bool revised) {
    julian::options.Revise = revised;
    ForEach(state, RandomDays(), [](FixedDay fixed) { return FixedToJulianDate(fixed, true); });
    julian::options = {};
}

void ToISO(benchmark::State& state) { ForEach(state, RandomDays(), FixedToISODate); }

void ToChrono(benchmark::State& state) {
    ForEach(state, LibraryDays(), [](std::chrono::sys_days day) { return std::chrono::year_month_day{day}; });
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
