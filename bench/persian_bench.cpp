#include "calendars/persian.h"
#include "core/numbering.h"
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

/// The days of the year 1403.
std::vector<FixedDay> DaysOfAYear() {
    std::vector<FixedDay> days;
    for (FixedDay day = persian::Norouz(1403); day < persian::Norouz(1404); ++day) days.push_back(day);
    return days;
}

void KnownYear(benchmark::State& state) { ForEach(state, DaysOfAYear(), FixedToPersianDate); }

/// ICU's calendar in Universal Time, which counts milliseconds from 1970.
void LibraryKnownYear(benchmark::State& state) {
    constexpr double millisecondsPerDay = 86'400'000;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), icu::Locale("en@calendar=persian"), status));
    std::vector<UDate> times;
    for (const FixedDay day : DaysOfAYear()) times.push_back((day - UnixEpoch) * millisecondsPerDay);
    ForEach(state, times, [&](UDate time) {
        calendar->setTime(time, status);
        return YearMonthDay{calendar->get(UCAL_YEAR, status), calendar->get(UCAL_MONTH, status),
                            calendar->get(UCAL_DATE, status)};
    });
}

/// A day in every second year, so that neither its new year nor the next is remembered.
void UnseenYear(benchmark::State& state) {
    std::vector<FixedDay> days;
    for (std::int32_t year = -7000; year < 11'000; year += 2) days.push_back(PersianToFixed(year, 6, 15));
    ForEach(state, days, FixedToPersianDate);
}

BENCHMARK(KnownYear)->Name("Persian, known year");
BENCHMARK(LibraryKnownYear)->Name("ICU Persian, known year");
BENCHMARK(UnseenYear)->Name("Persian, unseen year");

const RatioClaim claimKnown({"Persian, known year", "ICU Persian, known year", 0.2});
const RatioClaim claimUnseen({"Persian, unseen year", "SolarLongitude", 8});

}  // namespace
}  // namespace horvanta
