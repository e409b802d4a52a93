#include "hebrew/torah.h"

#include "core/memo.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace horvanta {
namespace {

constexpr std::string_view portionNames[] = {
    "Bereishit",    "Noach",     "Lech Lecha",  "Vayeira",   "Chayei Sarah",   "Toldot",   "Vayeitzei",
    "Vayishlach",   "Vayeishev", "Mikeitz",     "Vayigash",  "Vayechi",        "Shemot",   "Va'eira",
    "Bo",           "Beshalach", "Yitro",       "Mishpatim", "Terumah",        "Titzaveh", "Ki Tisa",
    "Vayakhel",     "Pekudei",   "Vayikra",     "Tzav",      "Shemini",        "Tazria",   "Metzora",
    "Acharei Mot",  "Kedoshim",  "Emor",        "Behar",     "Bechukotai",     "Bamidbar", "Nasso",
    "Beha'alotcha", "Shelach",   "Korach",      "Chukat",    "Balak",          "Pinchas",  "Mattot",
    "Masei",        "Devarim",   "Ve'etchanan", "Eikev",     "Re'eh",          "Shoftim",  "Ki Teitzei",
    "Ki Tavo",      "Nitzavim",  "Vayeilech",   "Haazinu",   "V'zot Habrachah"};

constexpr std::int32_t firstYear = 3623;
constexpr std::int32_t lastPortion = 54;
constexpr std::int32_t nisan = 1;
constexpr std::int32_t tishrei = 7;
constexpr int saturday = 6;

/// A round of readings, from the Sabbath on or before the day that ends Sukkot to the same of the year after.
struct Cycle {
    std::int32_t year;
    bool diaspora;
    FixedDay end = EndOfSukkot(year + 1);
    FixedDay sabbath0 = KDayOnOrBefore(saturday, EndOfSukkot(year));
    FixedDay passover = HebrewToFixed(year, nisan, 15);
    bool leap = isHebrewLeapYear19(year);

    FixedDay EndOfSukkot(std::int32_t ofYear) const { return HebrewNewYear(ofYear) + (diaspora ? 22 : 21); }
};

bool inCommonYear(const Cycle& cycle, FixedDay) { return !cycle.leap; }

// clang-format off
/// A portion that is read together with the one before it.
struct Doubling {
    std::int32_t second;
    bool (*holds)(const Cycle& cycle, FixedDay sabbath);
};
constexpr Doubling doublings[] = {
    {23, [](const Cycle& c, FixedDay sabbath) { return CountKDaysInRange(saturday, sabbath, c.passover - 1) < 4; }},
    {28, inCommonYear},
    {30, inCommonYear},
    {33, [](const Cycle& c, FixedDay) { return !c.leap && (c.diaspora || DayOfWeek(c.passover) != 6); }},
    {40, [](const Cycle& c, FixedDay) { return c.diaspora && DayOfWeek(c.passover) == 4; }},
    {43, [](const Cycle& c, FixedDay sabbath) { return CountKDaysInRange(saturday, sabbath, TishaBAv(c.year)) < 3; }},
    {52, [](const Cycle& c, FixedDay sabbath) { return HebrewNewYear(c.year + 1) - sabbath > 3; }},
};
// clang-format on

/// What is read on a Sabbath: nothing (0) on a festival.
struct Reading {
    std::int32_t portion = 0;  ///< The second one of a pair.
    bool doubled = false;
};

/// By the weeks since `sabbath0`.
using Readings = std::array<Reading, 58>;

/// Marks the Sabbaths of festivals by a portion of -1.
void MarkFestivals(const Cycle& cycle, Readings& readings) {
    for (const FestivalDays& festival : Festivals(cycle.diaspora)) {
        const std::int32_t year = festival.month >= tishrei ? cycle.year + 1 : cycle.year;
        const FixedDay first = HebrewToFixed(year, festival.month, festival.firstDay);
        const FixedDay sabbath = KDayOnOrAfter(saturday, first);
        if (sabbath - first > festival.lastDay - festival.firstDay || sabbath > cycle.end) continue;
        readings[static_cast<std::size_t>((sabbath - cycle.sabbath0) / 7)].portion = -1;
    }
}

bool isDoubled(const Cycle& cycle, std::int32_t portion, FixedDay sabbath) {
    for (const Doubling& doubling : doublings) {
        if (doubling.second == portion + 1) return doubling.holds(cycle, sabbath);
    }
    return false;
}

Readings ReadingsOf(const Cycle& cycle) {
    Readings readings;
    MarkFestivals(cycle, readings);
    std::int32_t portion = 0;
    for (std::size_t week = 1; week < readings.size(); ++week) {
        const FixedDay sabbath = cycle.sabbath0 + 7 * static_cast<double>(week);
        if (sabbath > cycle.end) break;
        Reading& reading = readings[week];
        if (std::exchange(reading.portion, 0) == -1) continue;
        reading.doubled = isDoubled(cycle, ++portion, sabbath);
        portion += reading.doubled;
        reading.portion = portion;
    }
    return readings;
}

/// What is read on the first Sabbath from a day on that is no festival.
Reading ReadingFrom(const HebrewDateRecord& date, bool diaspora) {
    static Memo<4, std::tuple<std::int32_t, bool, hebrew::Options>, Readings> memo;
    std::int32_t year = date.Year;
    FixedDay sabbath = KDayOnOrAfter(saturday, date.Fixed);
    if (sabbath < Cycle{year, diaspora}.EndOfSukkot(year)) --year;
    for (;; ++year) {
        const Cycle cycle{year, diaspora};
        const Readings& readings = memo.Of({year, diaspora, hebrew::options}, [&] { return ReadingsOf(cycle); });
        for (; sabbath <= cycle.end; sabbath += 7) {
            const Reading& reading = readings[static_cast<std::size_t>((sabbath - cycle.sabbath0) / 7)];
            if (reading.portion > 0) return reading;
        }
    }
}

/// The day's own name where it has a reading of its own.
std::string OwnReading(const HebrewDay& day) {
    if (!day.YomTov.empty()) return day.YomTov;
    if (!day.CholHamoed.empty()) return day.CholHamoed;
    if (day.isShabbat()) return "";
    const std::string& named = day.Fast.empty() ? day.Holiday : day.Fast;
    return day.RoshChodesh == 0 ? named : "Rosh Chodesh" + WrapIfNotEmpty(named, " ", "", "");
}

void PostPortion(std::vector<std::string>& texts, const HebrewDay& day, const LocaleRecord& place) {
    constexpr std::int32_t weekdays[] = {7, 2, 5};  // the Torah is read on Sabbath, Monday and Thursday
    if (std::ranges::find(weekdays, day.date.WeekDay) == std::end(weekdays)) return;
    const std::string portion = TorahPortion(day, false, place);
    if (portion.empty()) return;
    texts.push_back("Torah portion" + std::string(portion.find('-') == std::string::npos ? " is " : "s are ") +
                    portion);
}

void PostEves(std::vector<std::string>& texts, const HebrewDay& today, const HebrewDay& tomorrow) {
    if (!tomorrow.YomTov.empty()) texts.push_back("Erev " + tomorrow.YomTov);
    if (!tomorrow.Fast.empty() && tomorrow.Fast != tomorrow.YomTov) texts.push_back("Erev " + tomorrow.Fast);
    if (!tomorrow.Holiday.empty() && today.YomTov.empty()) texts.push_back("Erev " + tomorrow.Holiday);
}

}  // namespace

std::string_view TorahPortionName(std::int32_t number) {
    if (number < 1 || number > lastPortion) return {};
    return portionNames[number - 1];
}

std::string TorahPortion(const HebrewDay& day, bool keepHolidayText, const LocaleRecord& place) {
    if (day.date.Year < firstYear) return "";
    const std::string own = OwnReading(day);
    if (!own.empty()) return keepHolidayText ? own : "";
    const Reading reading = ReadingFrom(day.date, place.Diaspora);
    // The days before Sukkot whose next Sabbath of the week is that of the beginning read the end.
    const bool beforeSukkot = reading.portion == 1 && day.date.Day < 15;
    const std::string name{TorahPortionName(beforeSukkot ? lastPortion : reading.portion)};
    return reading.doubled ? std::string(TorahPortionName(reading.portion - 1)) + "-" + name : name;
}

std::vector<std::string> EventsOf(const HebrewDay& today, const HebrewDay& tomorrow, const LocaleRecord& place) {
    std::vector<std::string> texts = today.texts;
    PostPortion(texts, today, place);
    PostEves(texts, today, tomorrow);
    return texts;
}

}  // namespace horvanta
