#include "calendars/quartane.h"
#include "ratios.h"
#include "samples.h"

namespace horvanta {
namespace {

void ToQuartane(benchmark::State& state) { ForEach(state, RandomDays(), quartane::FixedToQuaDate); }

BENCHMARK(ToQuartane)->Name("Quartane day to date");

const RatioClaim claim({"Quartane day to date", "std::chrono day to date", 30});

}  // namespace
}  // namespace horvanta
