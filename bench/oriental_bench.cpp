#include "calendars/oriental.h"
#include "ratios.h"
#include "samples.h"

#include <memory>
#include <unicode/calendar.h>
#include <vector>

namespace horvanta {
namespace {

struct YearMonthDay {
    int year;
    int month;
    int day;
};

/// The days of a sui, one after another.
const std::vector<FixedDay>& DaysOfASui() {
    static const std::vector<FixedDay> days = [] {
        std::vector<FixedDay> list;
        for (FixedDay day = GregorianToFixed(2023, 12, 23); day < GregorianToFixed(2024, 12, 20); ++day) {
            list.push_back(day);
        }
        return list;
    }();
    return days;
}

/// A day of every fifth year, so that no sui that it asks for is remembered.
const std::vector<FixedDay>& DaysOfUnseenSuis() {
    static const std::vector<FixedDay> days = [] {
        std::vector<FixedDay> list;
        for (std::int32_t year = 0; year < 4000; year += 5) list.push_back(GregorianToFixed(year, 7, 15));
        return list;
    }();
    return days;
}

void Library(benchmark::State& state, const std::vector<FixedDay>& days) {
    constexpr double millisecondsPerDay = 86'400'000;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), icu::Locale("en@calendar=chinese"), status));
    std::vector<UDate> times;
    for (const FixedDay day : days) times.push_back((day - UnixEpoch) * millisecondsPerDay);
    ForEach(state, times, [&](UDate time) {
        calendar->setTime(time, status);
        return YearMonthDay{calendar->get(UCAL_YEAR, status), calendar->get(UCAL_MONTH, status),
                            calendar->get(UCAL_DATE, status)};
    });
}

void KnownSui(benchmark::State& state) { ForEach(state, DaysOfASui(), oriental::FixedToOrientDate); }
void LibraryKnownSui(benchmark::State& state) { Library(state, DaysOfASui()); }
void UnseenSui(benchmark::State& state) { ForEach(state, DaysOfUnseenSuis(), oriental::FixedToOrientDate); }
void LibraryUnseenSui(benchmark::State& state) { Library(state, DaysOfUnseenSuis()); }

BENCHMARK(KnownSui)->Name("Oriental, known sui");
BENCHMARK(LibraryKnownSui)->Name("ICU Chinese, known sui");
BENCHMARK(UnseenSui)->Name("Oriental, unseen sui");
BENCHMARK(LibraryUnseenSui)->Name("ICU Chinese, unseen sui");

const RatioClaim known({"Oriental, known sui", "ICU Chinese, known sui", 0.02});
const RatioClaim unseen({"Oriental, unseen sui", "ICU Chinese, unseen sui", 0.6});
const RatioClaim unseenByTheSun({"Oriental, unseen sui", "SolarLongitude", 100});

}  // namespace
}  // namespace horvanta
