#include "calendars/oriental_text.h"

#include "calendars/oriental_names.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace horvanta::oriental {
namespace {

const Names& PresentNames() {
    if (!options.UseEnglish) return NationalNames[options.OrientVariant];
    return options.OrientVariant == Vietnamese ? EnglishVietnameseNames : EnglishNames;
}

/// The name of a number from 1.
template <std::size_t size>
std::string NameAt(const std::array<std::string_view, size>& names, std::int32_t number) {
    return std::string(names[static_cast<std::size_t>(number - 1)]);
}

/// The name of a month, "Leap 4th".
std::string MonthText(std::int32_t month, bool isLeapMonth) {
    const std::string name = NameAt(PresentNames().months, month);
    return isLeapMonth ? std::string(PresentNames().leap) + " " + name : name;
}

std::int32_t StemOf(std::int32_t n) { return static_cast<std::int32_t>(FloorModulo(std::int64_t{n} - 1, 10) + 1); }
std::int32_t BranchOf(std::int32_t n) { return static_cast<std::int32_t>(FloorModulo(std::int64_t{n} - 1, 12) + 1); }

struct StemAndBranch {
    double stem;
    double branch;
};

StemAndBranch ReadName(std::string_view name) {
    const std::size_t comma = std::min(name.find(','), name.size());
    const std::string_view branch = name.substr(std::min(comma + 1, name.size()));
    return {ParseNumber(name.substr(0, comma)).value_or(0), ParseNumber(branch).value_or(0)};
}

}  // namespace

std::string SexagesimalName(std::int32_t n, bool withNumber) {
    const std::int32_t stem = StemOf(n);
    const std::int32_t branch = BranchOf(n);
    const std::string name = NameAt(PresentNames().stems, stem) + "-" + NameAt(PresentNames().branches, branch);
    if (!withNumber) return name;
    return std::to_string(n) + "/60 = " + std::to_string(stem) + "-" + std::to_string(branch) + " " + name;
}

std::int32_t SexagesimalDay(FixedDay day) { return WholeNumber(AdjustedModulo(Floor(day) - GregorianEpoch + 16, 60)); }

std::string DayName(FixedDay day) { return SexagesimalName(SexagesimalDay(day), false); }

std::int32_t SexagesimalMonth(const OrientDate& date) {
    return WholeNumber(AdjustedModulo(12 * date.year + 3 + date.month - 13, 60));
}

std::int32_t NameDifference(std::string_view from, std::string_view to) {
    const auto [stem, branch] = ReadName(from);
    const auto [toStem, toBranch] = ReadName(to);
    const double stems = toStem - stem;
    const double branches = toBranch - branch;
    return WholeNumber(AdjustedModulo(stems + 25 * (branches - stems), 60));
}

FixedDay DayNameOnOrBefore(std::string_view name, FixedDay day) {
    constexpr std::string_view nameOfDay0 = "5,3";
    const double rataDie = day - GregorianEpoch + 1;
    return day - Modulo(rataDie + NameDifference(name, nameOfDay0), 60);
}

std::string OrientDateString(const OrientDate& date) {
    return "Year " + std::to_string(date.shownYear) + ", " + MonthText(date.month, date.isLeapMonth) +
           (options.UseEnglish ? " Month, Day " : " ") + std::to_string(date.day);
}

std::string FixedToOrientMonthDay(Moment x) {
    const OrientDate& date = OrientDateOn(x);
    return std::to_string(date.month) + (date.isLeapMonth ? "*" : "-") + FormatNumber(date.day, "00");
}

std::string CalendarName() { return std::string(NationalNames[options.OrientVariant].language); }

// Events.

namespace {

/// What a day of the year is called in each tongue; an empty text is that of the tongue behind it.
struct Wording {
    std::string_view korean;
    std::string_view chinese;
    std::string_view english;
};

struct Festival {
    std::int16_t month;
    std::int16_t day;
    Wording wording;
};

constexpr Festival festivals[] = {
    {1, 15, {"Great Full Moon (Daeboreum)", "", "Lantern Festival (Yuánxiao jié)"}},
    {2, 1, {"Festival for Servants (Meoseumnal)", "", ""}},
    {3, 3, {"Swallows Return (Samjinnal)", "", ""}},
    {4, 8, {"Lantern Festival (Chopail)", "", "Buddha's Birthday"}},
    {5, 5, {"Spring Festival (Dano)", "Duanwu jié", "Dragon Boat Festival"}},
    {6, 15, {"Water Greeting (Yudu)", "", ""}},
    {7, 7, {"Chilseok", "Qi xi", "Night of Sevens"}},
    {7, 15, {"Worship Buddha (Baekjung)", "Zhongyuán jié", "Ghost Festival"}},
    {8, 15, {"Harvest Festival (Chuseok)", "", "Mooncake Festival (Zhongqiu jié)"}},
    {9, 9, {"Sparrows Leave (Jungyangjeol)", "", "Double 9th Festival (Chóngyáng jié)"}},
    {10, 15, {"", "", "Xià Yuán Festival (Xiàyuán jié)"}},
};

std::string_view WordsOf(const Wording& wording) {
    if (options.OrientVariant == Korean && !wording.korean.empty()) return wording.korean;
    const bool inChinese = options.OrientVariant == Chinese && !options.UseEnglish;
    return inChinese && !wording.chinese.empty() ? wording.chinese : wording.english;
}

/// What has one name in each variant and another in English.
struct NationalWording {
    std::array<std::string_view, 4> national;  ///< An empty one is the English.
    std::string_view english;
};

constexpr NationalWording solsticeFestival{{"Dongzhì", "", "Dongji", "Dông chí"}, "Winter Solstice Festival"};
constexpr NationalWording newYearDay{{"Chun jié", "Ganjitsu", "Seollal", "Têt Nguyên Dán"}, "New Year Day"};
constexpr NationalWording newYearEve{{"Chúxì", "", "Seotdal Geumeum", "Giao Thù'a"}, "New Year Eve"};
constexpr NationalWording thirdMinorTerm{{"Qingming Festival (Qingming jié)", "", "Begin Farming Season (Hansik)", ""},
                                         ""};

std::string_view WordsOf(const NationalWording& wording, bool inEnglish) {
    const std::string_view national = wording.national[static_cast<std::size_t>(options.OrientVariant)];
    return inEnglish || national.empty() ? wording.english : national;
}

/// The Sun's longitudes at the two ends of a day.
struct Longitudes {
    double begin;
    double end;
};

std::string AngleOf(double degrees) { return GeneralText(Degrees(degrees)) + "°"; }

/// Degrees of the corners of the Sun's circle at which the earth is honoured.
std::string EarthDayText(const Longitudes& sun) {
    constexpr double firstCorner = 27;
    const auto quarterOf = [](double longitude) { return Floor(Degrees(longitude - firstCorner) / 90); };
    if (options.OrientVariant != Korean || quarterOf(sun.begin) == quarterOf(sun.end)) return "";
    return "toe-wang-yong-sa (" + AngleOf(90 * quarterOf(sun.end) + firstCorner) + ")";
}

/// A term that is reached within the day, with its English name behind that of another language; 0 if none.
struct TermOfDay {
    std::int32_t number = 0;
    std::string text;
};

TermOfDay TermWithin(const Longitudes& sun, double first, std::string_view kind,
                     std::array<std::string_view, 12> Names::*terms) {
    const std::int32_t term = TermAt(sun.end, first);
    if (term == TermAt(sun.begin, first)) return {};
    std::string text = AngleOf(first + DegreesOfTerm * (term - 1)) + " " + std::string(kind) +
                       " solar term = " + NameAt(PresentNames().*terms, term);
    if (!options.UseEnglish) text += " (" + NameAt(EnglishNames.*terms, term) + ")";
    return {term, std::move(text)};
}

void AddSolarEvents(FixedDay day, std::vector<std::string>& events) {
    const Longitudes sun{MidnightLongitude(day), MidnightLongitude(day + 1)};
    events.push_back(EarthDayText(sun));
    const TermOfDay minor = TermWithin(sun, FirstMinorTerm, "minor", &Names::minorTerms);
    events.push_back(minor.text);
    if (minor.number == 3) events.emplace_back(WordsOf(thirdMinorTerm, false));
    const TermOfDay major = TermWithin(sun, FirstMajorTerm, "major", &Names::majorTerms);
    events.push_back(major.text);
    if (major.number == 11) events.emplace_back(WordsOf(solsticeFestival, options.UseEnglish));
}

std::string NewYearText(const OrientDate& date) {
    if (date.fixed != date.newYear) return "";
    return std::string(WordsOf(newYearDay, options.UseEnglish)) +
           " [marriage augury type: " + std::string(MarriageAugury(date.cycle, date.year)) + "]";
}

std::string_view FestivalText(const OrientDate& date) {
    if (date.isLeapMonth) return "";
    const auto* found = std::ranges::find_if(
        festivals, [&](const Festival& each) { return each.month == date.month && each.day == date.day; });
    return found == std::end(festivals) ? "" : WordsOf(found->wording);
}

}  // namespace

std::vector<std::string> EventsOf(const OrientDate& date) {
    std::vector<std::string> events;
    AddSolarEvents(date.fixed, events);
    events.push_back(NewYearText(date));
    events.emplace_back(FestivalText(date));
    if (date.fixed == date.nextNewYear - 1) events.emplace_back(WordsOf(newYearEve, options.UseEnglish));
    if (date.day == 1) events.push_back("Start " + MonthText(date.month, date.isLeapMonth) + " Month");
    std::erase(events, "");
    return events;
}

// The grid.

namespace {

/// A 13th month in a year of 12 is its last.
FixedDay GridDateToFixed(std::int32_t year, std::int32_t place, std::int32_t day) {
    const std::vector<Month> months = MonthsOfShownYear(year);
    const auto last = static_cast<std::int32_t>(months.size()) - 1;
    return months[static_cast<std::size_t>(std::clamp(place, 1, last) - 1)].first + day - 1;
}

GridDate GridDateOf(Moment x) {
    const OrientDate& date = OrientDateOn(x);
    return {date.shownYear, date.place, date.day, date.monthLength,
            static_cast<std::int16_t>(DayOfWeek(date.fixed - date.day + 1))};
}

std::vector<std::string> MonthNames(std::int32_t year) {
    std::vector<Month> months = MonthsOfShownYear(year);
    months.pop_back();
    std::vector<std::string> names;
    for (const Month& month : months) names.push_back(MonthText(month.number, month.isLeap));
    return names;
}

NamesOfDays DayNames() { return WeekFrom(0, PresentNames().weekdays, PresentNames().shortWeekdays); }

}  // namespace

constinit const CalendarContract Calendar{.name = "Chinese",
                                          .ToFixed = GridDateToFixed,
                                          .DateOf = GridDateOf,
                                          .MonthNames = MonthNames,
                                          .DayNames = DayNames,
                                          .PresentName = CalendarName};

}  // namespace horvanta::oriental
