#include "hebrew/hebrew_arithmetic.h"
#include "ratios.h"
#include "samples.h"

#include <memory>
#include <unicode/calendar.h>
#include <vector>

namespace horvanta {
namespace {

/// The dates of a million days.
const std::vector<HebrewDateRecord>& Dates() {
    static const std::vector<HebrewDateRecord> dates = [] {
        std::vector<HebrewDateRecord> list;
        for (const FixedDay day : RandomDays()) list.push_back(FixedToHebrewDate(day));
        return list;
    }();
    return dates;
}

void ToHebrew(benchmark::State& state) { ForEach(state, RandomDays(), FixedToHebrewDate); }

void FromHebrew(benchmark::State& state) {
    ForEach(state, Dates(),
            [](const HebrewDateRecord& date) { return HebrewToFixed(date.Year, date.Month, date.Day); });
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
    LibraryCalendar library;
    std::vector<UDate> times;
    for (const FixedDay day : RandomDays()) times.push_back((day - UnixEpoch) * millisecondsPerDay);
    ForEach(state, times, [&](UDate time) {
        library.calendar->setTime(time, library.status);
        return LibraryDate{library.calendar->get(UCAL_YEAR, library.status),
                           library.calendar->get(UCAL_MONTH, library.status),
                           library.calendar->get(UCAL_DATE, library.status)};
    });
}

void LibraryFromHebrew(benchmark::State& state) {
    LibraryCalendar library;
    library.calendar->clear();
    std::vector<LibraryDate> dates;
    for (const HebrewDateRecord& date : Dates()) dates.push_back(LibraryDateOf(date));
    ForEach(state, dates, [&](const LibraryDate& date) {
        library.calendar->set(date.year, date.month, date.day);
        return library.calendar->getTime(library.status);
    });
}

BENCHMARK(ToHebrew)->Name("Hebrew from fixed");
BENCHMARK(FromHebrew)->Name("Hebrew to fixed");
BENCHMARK(LibraryToHebrew)->Name("ICU Hebrew from fixed");
BENCHMARK(LibraryFromHebrew)->Name("ICU Hebrew to fixed");

const RatioClaim claimFromFixed({"Hebrew from fixed", "ICU Hebrew from fixed", 0.2});
const RatioClaim claimToFixed({"Hebrew to fixed", "ICU Hebrew to fixed", 0.2});

}  // namespace
}  // namespace horvanta
