#include "core/moment.h"
#include "hebrew/hebrew_arithmetic.h"
#include "locale/presets.h"
#include "ratios.h"
#include "reports/omer_count.h"
#include "reports/postponements.h"
#include "reports/report_forms.h"

#include <benchmark/benchmark.h>

namespace horvanta {
namespace {

/// As a page in memory, of a year that was not asked before.
void Page(benchmark::State& state, Report (*make)()) {
    std::int32_t year = 5000;
    for (auto _ : state) {
        DisplayedMoment = HebrewNewYear(year++);
        benchmark::DoNotOptimize(WholeReport(make(), ReportForms.front()).size());
    }
    state.SetItemsProcessed(state.iterations());
}

Report Omer() { return ReportOmerCount(PresetLocale("Times Square")); }

BENCHMARK_CAPTURE(Page, postponements, [] { return ReportPostponements(1000); })->Name("postponements of 1000 years");
BENCHMARK_CAPTURE(Page, omer, Omer)->Name("Omer report");

const RatioClaim postponements({"postponements of 1000 years", "ICU Hebrew from fixed", 4000});
const RatioClaim omer({"Omer report", "ICU Hebrew from fixed", 1000});

}  // namespace
}  // namespace horvanta
