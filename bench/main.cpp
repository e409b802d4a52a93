// Runs every benchmark in several rounds, the sides alternating in random order, and prints the ratio of the medians
// of the two sides of each claim.

#include "ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

/// Keeps the median time of one item of each benchmark.
class Medians final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.aggregate_name != "median") continue;
            const std::string name = run.run_name.function_name;
            nanoseconds[name] = 1e9 / run.counters.at("items_per_second");
        }
    }

    std::map<std::string, double, std::less<>> nanoseconds;
};

int PrintRatios(const Medians& medians) {
    int missed = 0;
    std::printf("\n%-28s %12s   %-28s %12s %10s %10s\n", "measured", "ns", "yardstick", "ns", "ratio", "at most");
    for (const horvanta::Ratio& claim : horvanta::Ratios()) {
        const auto measured = medians.nanoseconds.find(claim.measured);
        const auto yardstick = medians.nanoseconds.find(claim.yardstick);
        if (measured == medians.nanoseconds.end() || yardstick == medians.nanoseconds.end()) continue;
        const double ratio = measured->second / yardstick->second;
        const bool holds = ratio <= claim.atMost;
        missed += !holds;
        std::printf("%-28s %12.2f   %-28s %12.2f %10.4f %10.4f%s\n", measured->first.c_str(), measured->second,
                    yardstick->first.c_str(), yardstick->second, ratio, claim.atMost, holds ? "" : "  MISSED");
    }
    return missed;
}

}  // namespace

int main(int argc, char* argv[]) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string rounds = "--benchmark_repetitions=9";
    std::string alternating = "--benchmark_enable_random_interleaving=true";
    std::string shortRounds = "--benchmark_min_time=0.1";
    std::string mediansOnly = "--benchmark_report_aggregates_only=true";
    for (std::string* option : {&rounds, &alternating, &shortRounds, &mediansOnly}) {
        arguments.insert(arguments.begin() + 1, option->data());
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    return PrintRatios(medians) == 0 ? 0 : 1;
}
