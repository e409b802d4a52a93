#include "calendars/civil_days.h"
#include "calendars/easter.h"
#include "ratios.h"
#include "samples.h"

#include <numeric>

namespace horvanta {
namespace {

std::vector<std::int32_t> Years(std::int32_t first, std::size_t count) {
    std::vector<std::int32_t> years(count);
    std::iota(years.begin(), years.end(), first);
    return years;
}

/// The anonymous computus of 1876, to month and day.
int PlainComputus(int year) {
    const int a = year % 19, b = year / 100, c = year % 100;
    const int h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    return h + l - 7 * ((a + 11 * h + 22 * l) / 451) + 114;
}

void Western(benchmark::State& state) {
    ForEach(state, Years(1583, 2500), [](std::int32_t year) { return EasterSunday(year, false); });
}

void Plain(benchmark::State& state) { ForEach(state, Years(1583, 2500), PlainComputus); }

void AstronomicalMoon(benchmark::State& state) { ForEach(state, Years(1000, 1000), AstronomicalPaschalMoon); }

/// What all windows post of a day but for the sky's.
void EventsOfADay(benchmark::State& state) {
    std::vector<FixedDay> days;
    for (FixedDay day = GregorianToFixed(2024, 1, 1); day <= GregorianYearEnd(2024); ++day) days.push_back(day);
    ForEach(state, days, [](FixedDay day) {
        const quartane::QuaDate quaDate = quartane::FixedToQuaDate(day);
        return CivilDays(FixedToGregorianDate(day)).size() + OrthodoxDays(FixedToJulianDate(day, true)).size() +
               quartane::CivilDays(quaDate).size() + quartane::EventsOf(quaDate).size();
    });
}

BENCHMARK(Western)->Name("EasterSunday");
BENCHMARK(Plain)->Name("Plain computus");
BENCHMARK(AstronomicalMoon)->Name("AstronomicalPaschalMoon");
BENCHMARK(EventsOfADay)->Name("Events of a day");

const RatioClaim western({"EasterSunday", "Plain computus", 10});
const RatioClaim astronomical({"AstronomicalPaschalMoon", "SolarLongitude", 75});
const RatioClaim events({"Events of a day", "SolarLongitude", 10});

}  // namespace
}  // namespace horvanta
