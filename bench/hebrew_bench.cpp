#include "hebrew/hebrew_arithmetic.h"
#include "ratios.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <unicode/calendar.h>
#include <vector>

namespace horvanta {
namespace {

/// A million days of the years 1 to 6000, and their dates.
const std::vector<HebrewDateRecord>& Dates() {
    static const std::vector<HebrewDateRecord> dates = [] {
        std::mt19937_64 random(3);
        std::uniform_int_distribution<int> day(static_cast<int>(HebrewNewYear(1)),
                                               static_cast<int>(HebrewNewYear(6001)) - 1);
        std::vector<HebrewDateRecord> list;
        for (int i = 0; i < 1'000'000; ++i) list.push_back(FixedToHebrewDate(day(random)));
        return list;
    }();
    return dates;
}

void CountItems(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(Dates().size()));
}

void ToHebrew(benchmark::State& state) {
    const std::vector<HebrewDateRecord>& dates = Dates();
    for (auto _ : state) {
        for (const HebrewDateRecord& date : dates) benchmark::DoNotOptimize(FixedToHebrewDate(date.Fixed));
    }
    CountItems(state);
}

void FromHebrew(benchmark::State& state) {
    const std::vector<HebrewDateRecord>& dates = Dates();
    for (auto _ : state) {
        for (const HebrewDateRecord& date : dates) {
            benchmark::DoNotOptimize(HebrewToFixed(date.Year, date.Month, date.Day));
        }
    }
    CountItems(state);
}

/// ICU's calendar in Universal Time, which counts milliseconds from 1970.
struct LibraryCalendar {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar{
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), icu::Locale("en@calendar=hebrew"), status)};
};

/// ICU's months run from Tishrei = 0 and keep a place for Adar Rishon in every year.
struct LibraryDate {
    int year;
    int month;
    int day;
};

LibraryDate LibraryDateOf(const HebrewDateRecord& date) {
    const bool commonAdar = date.Month == 12 && !isHebrewLeapYear19(date.Year);
    const int month = date.Month < 7 ? date.Month + 6 : commonAdar ? 6 : date.Month - 7;
    return {date.Year, month, date.Day};
}

void LibraryToHebrew(benchmark::State& state) {
    constexpr double millisecondsPerDay = 86'400'000;
    auto [status, calendar] = LibraryCalendar();
    std::vector<UDate> times;
    for (const HebrewDateRecord& date : Dates()) times.push_back((date.Fixed - UnixEpoch) * millisecondsPerDay);
    for (auto _ : state) {
        for (const UDate time : times) {
            calendar->setTime(time, status);
            benchmark::DoNotOptimize(LibraryDate{calendar->get(UCAL_YEAR, status), calendar->get(UCAL_MONTH, status),
                                                 calendar->get(UCAL_DATE, status)});
        }
    }
    CountItems(state);
}

void LibraryFromHebrew(benchmark::State& state) {
    auto [status, calendar] = LibraryCalendar();
    calendar->clear();
    std::vector<LibraryDate> dates;
    for (const HebrewDateRecord& date : Dates()) dates.push_back(LibraryDateOf(date));
    for (auto _ : state) {
        for (const LibraryDate& date : dates) {
            calendar->set(date.year, date.month, date.day);
            benchmark::DoNotOptimize(calendar->getTime(status));
        }
    }
    CountItems(state);
}

BENCHMARK(ToHebrew)->Name("Hebrew from fixed");
BENCHMARK(FromHebrew)->Name("Hebrew to fixed");
BENCHMARK(LibraryToHebrew)->Name("ICU Hebrew from fixed");
BENCHMARK(LibraryFromHebrew)->Name("ICU Hebrew to fixed");

const RatioClaim claimFromFixed({"Hebrew from fixed", "ICU Hebrew from fixed", 0.2});
const RatioClaim claimToFixed({"Hebrew to fixed", "ICU Hebrew to fixed", 0.2});

}  // namespace
}  // namespace horvanta
