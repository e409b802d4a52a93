#include "calendars/gregorian.h"
#include "ratios.h"
#include "samples.h"

namespace horvanta {
namespace {

void GregorianThereAndBack(benchmark::State& state) {
    ForEach(state, RandomDays(), [](FixedDay fixed) {
        const GregorianDate date = FixedToGregorianDate(fixed);
        return GregorianToFixed(date.year, date.month, date.day);
    });
}

void ChronoThereAndBack(benchmark::State& state) {
    using namespace std::chrono;
    ForEach(state, LibraryDays(), [](sys_days day) { return sys_days{year_month_day{day}}; });
}

BENCHMARK(GregorianThereAndBack)->Name("Gregorian there and back");
BENCHMARK(ChronoThereAndBack)->Name("std::chrono there and back");

const RatioClaim claim({"Gregorian there and back", "std::chrono there and back", 6});

}  // namespace
}  // namespace horvanta
