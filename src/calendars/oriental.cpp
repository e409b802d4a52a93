#include "calendars/oriental.h"

#include "astro/lunar_phases.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/oriental_names.h"
#include "core/memo.h"
#include "core/text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <utility>

namespace horvanta::oriental {
namespace {

struct ZoneSpan {
    double firstDay;  ///< From the Gregorian epoch.
    double hours;
};

constexpr double sinceEver = -std::numeric_limits<double>::infinity();

// Before there were zones, the mean times of Beijing, of Kyoto, and of Seoul.
constexpr ZoneSpan chineseZones[] = {{sinceEver, 1397.0 / 180}, {704227, 8}};
constexpr ZoneSpan japaneseZones[] = {{sinceEver, 9.317777777777778}, {689254, 9}};
constexpr ZoneSpan koreanZones[] = {
    {sinceEver, 8.464444444444444}, {696607, 8.5}, {697977, 9}, {713397, 8.5}, {716096, 9}};
constexpr ZoneSpan vietnameseZones[] = {{sinceEver, 1397.0 / 180}, {704227, 8}, {718431, 7}};

/// A calendar as a row. Its festivals are in `oriental_events`.
struct VariantRow {
    std::string_view name;
    std::span<const ZoneSpan> zones;
    bool choosesEra;  ///< Its years are counted from the era that is chosen, otherwise from `yearEpoch`.
    Epoch yearEpoch;
};

constexpr Epoch usualEpoch{-985012};

constexpr VariantRow variants[] = {
    {"Chinese", chineseZones, true, usualEpoch},
    {"Japanese", japaneseZones, false, {-241019}},
    {"Korean", koreanZones, false, {-852066}},
    {"Vietnamese", vietnameseZones, true, usualEpoch},
};

const VariantRow& Present() { return variants[options.OrientVariant]; }

/// A beginning of the count. The cycles begin with it or with the usual one.
struct Era {
    std::int32_t year;
    Epoch yearEpoch;
    Epoch cycleEpoch;
};

constexpr Era usualEra{-2697, usualEpoch, usualEpoch};
constexpr Era eras[] = {{-2637, {-963100}, {-963100}}, {-2698, {-985396}, usualEpoch}};

Era PresentEra() {
    if (!Present().choosesEra) return {0, Present().yearEpoch, usualEpoch};
    const auto* found = std::ranges::find(eras, options.OrientEpochYear, &Era::year);
    return found == std::end(eras) ? usualEra : *found;
}

}  // namespace

FixedDay OrientEpoch() { return PresentEra().cycleEpoch; }
FixedDay OrientYearEpoch() { return PresentEra().yearEpoch; }

double OrientZone(Moment x) {
    const double day = x - GregorianEpoch;
    const auto& zones = Present().zones;
    const auto later = std::ranges::find_if(zones, [day](const ZoneSpan& span) { return day < span.firstDay; });
    return std::prev(later)->hours;
}

Moment OrientUniversal(Moment standardTime) { return standardTime - OrientZone(standardTime) / 24; }
Moment OrientStandard(Moment universal) { return universal + OrientZone(universal) / 24; }
Moment OrientMidnight(Moment day) { return OrientUniversal(Floor(day)); }

namespace {

constexpr double degreesOfTerm = 30;
constexpr double firstMinorTerm = 315;
constexpr double firstMajorTerm = 330;

/// The number of the last term at a longitude, with the first term's longitude.
std::int32_t TermAt(double longitude, double first) {
    return WholeNumber(AdjustedModulo(1 + Floor((longitude - first) / degreesOfTerm), 12));
}

double LongitudeAtMidnight(FixedDay day) { return SolarLongitude(OrientMidnight(day)); }

Moment TermOnOrAfter(FixedDay day, double first) {
    const double terms = Ceiling((LongitudeAtMidnight(day) - first) / degreesOfTerm);
    return OrientLongitudeOnOrAfter(day, Modulo(degreesOfTerm * terms + first, 360));
}

}  // namespace

std::int32_t MajorSolarTerm(FixedDay day) { return TermAt(LongitudeAtMidnight(day), firstMajorTerm); }
std::int32_t MinorSolarTerm(FixedDay day) { return TermAt(LongitudeAtMidnight(day), firstMinorTerm); }

Moment OrientLongitudeOnOrAfter(FixedDay day, double degrees) {
    return OrientStandard(SolarLongitudeAfter(OrientMidnight(day), degrees));
}

Moment MajorSolarTermOnOrAfter(FixedDay day) { return TermOnOrAfter(day, firstMajorTerm); }
Moment MinorSolarTermOnOrAfter(FixedDay day) { return TermOnOrAfter(day, firstMinorTerm); }

namespace {

// The year from winter solstice to winter solstice, the sui, is what decides the months.

constexpr double winterSolstice = 270;
constexpr Epoch solsticeOf1999{730109.5};     // near it
constexpr std::int64_t farthestSui = 30'000;  // from 1999; the series lead nowhere long before

/// What everything remembered depends on, and which one it is, counted from 1999.
struct SuiKey {
    std::int64_t index;
    std::int32_t variant;
    std::int64_t numbering;
    std::int64_t deltaT;

    bool operator==(const SuiKey&) const = default;
};

SuiKey KeyOf(std::int64_t index) { return {index, options.OrientVariant, NumberingSerial, DeltaTSerial}; }

/// The day at whose end the Sun is past the solstice and at whose beginning it is not, near a day. About the solstice
/// the Sun goes on by 0.948° to 1.026° a day, as the millennium is: where the days back by a slower and by a faster Sun
/// are the same, they need no second look.
FixedDay FindSolstice(FixedDay day) {
    constexpr double slowest = 0.94;  // degrees
    constexpr double fastest = 1.035;
    constexpr int patience = 50;
    for (int tries = 0; tries < patience; ++tries) {
        const double past = ModuloRange(LongitudeAtMidnight(day + 1) - winterSolstice, -180, 180);
        const double daysBack = Ceiling(past / slowest) - 1;
        day -= daysBack;
        if (daysBack == Ceiling(past / fastest) - 1) return day;
    }
    return day;
}

FixedDay SolsticeOf(std::int64_t index) {
    static Memo<16, SuiKey, FixedDay> memo;
    return memo.Of(KeyOf(index), [index] {
        return FindSolstice(Floor(solsticeOf1999 + static_cast<double>(index) * MeanTropicalYear));
    });
}

/// The day of a new moon, by the number of its lunation.
FixedDay NewMoonDay(std::int64_t lunation) { return Floor(OrientStandard(NthNewMoon(lunation))); }

/// The number of the last lunation that began up to a day.
std::int64_t LunationOn(FixedDay day) {
    constexpr Epoch newMoonOf2000{730124.6};
    const double since2000 = Floor((day - newMoonOf2000) / MeanSynodicMonth);
    auto lunation = WholeNumber<std::int64_t>(since2000) + FirstNewMoonOf2000;
    while (NewMoonDay(lunation) > day) --lunation;
    while (NewMoonDay(lunation + 1) <= day) ++lunation;
    return lunation;
}

/// The months about the days from a winter solstice up to the next.
struct Sui {
    FixedDay solstice = 0;
    FixedDay nextSolstice = 0;
    std::size_t months = 0;             ///< 12 or 13, from one 11th month to the next.
    std::size_t leap = 0;               ///< Which of them, from 0, is a leap month; 0 if none.
    std::array<FixedDay, 15> starts{};  ///< First days from the 11th month on; the next 11th is at `months`, and the
                                        ///< month after that one stands behind it.

    bool isLeap() const { return months == 13; }
    FixedDay NewYear() const { return starts[NewYearPlace()]; }
    std::size_t NewYearPlace() const { return leap == 1 || leap == 2 ? 3 : 2; }

    /// The place of the month of a day that lies in the sui.
    std::size_t PlaceOf(FixedDay day) const {
        std::size_t place = static_cast<std::size_t>((day - starts[0]) / 30.5);
        while (starts[place + 1] <= day) ++place;
        return place;
    }

    std::int16_t MonthAt(std::size_t place) const {
        const std::size_t numbered = leap > 0 && place >= leap ? place - 1 : place;
        return static_cast<std::int16_t>((numbered + 10) % 12 + 1);
    }
};

/// The first month that ends under the major term under which it began.
std::size_t FindLeap(const Sui& sui) {
    std::int32_t term = MajorSolarTerm(sui.starts[1]);
    for (std::size_t place = 1; place < sui.months; ++place) {
        const std::int32_t next = MajorSolarTerm(sui.starts[place + 1]);
        if (next == term) return place;
        term = next;
    }
    return 0;
}

Sui MakeSui(std::int64_t index) {
    Sui sui{.solstice = SolsticeOf(index), .nextSolstice = SolsticeOf(index + 1)};
    std::int64_t lunation = LunationOn(sui.solstice);
    std::size_t place = 0;
    do {
        sui.starts[place] = NewMoonDay(lunation++);
    } while (sui.starts[place] <= sui.nextSolstice && ++place < sui.starts.size());
    sui.months = place - 1;
    if (sui.isLeap()) sui.leap = FindLeap(sui);
    return sui;
}

const Sui& SuiOf(std::int64_t index) {
    static Memo<8, SuiKey, Sui> memo;
    return memo.Of(KeyOf(index), [index] { return MakeSui(index); });
}

/// The sui in which a day lies.
std::int64_t SuiIndexOf(FixedDay day) {
    const double suis = Floor((day - solsticeOf1999) / MeanTropicalYear);
    const std::int64_t index = std::clamp(WholeNumber<std::int64_t>(suis), -farthestSui, farthestSui);
    if (day < SolsticeOf(index)) return index - 1;
    return day < SolsticeOf(index + 1) ? index : index + 1;
}

/// The sui in which the year of a day begins.
std::int64_t YearIndexOf(FixedDay day) {
    const std::int64_t index = SuiIndexOf(day);
    return day < SuiOf(index).NewYear() ? index - 1 : index;
}

}  // namespace

FixedDay WinterSolsticeOnOrBefore(FixedDay day) { return SolsticeOf(SuiIndexOf(Floor(day))); }

FixedDay NewYearOnOrBefore(FixedDay day) { return SuiOf(YearIndexOf(Floor(day))).NewYear(); }

namespace {

/// Years of all cycles in one count.
std::int64_t CountOf(std::int32_t cycle, std::int32_t year) { return std::int64_t{60} * cycle + year - 60; }

/// The sui in which the year of a count begins, by the middle of the mean year.
std::int64_t IndexOfYear(std::int64_t count) {
    return YearIndexOf(Floor((static_cast<double>(count) - 0.5) * MeanTropicalYear + OrientEpoch()));
}

/// The year of a month and of the days from an epoch.
std::int64_t YearAt(std::int32_t month, double days) {
    return WholeNumber<std::int64_t>(Floor(1.5 - month / 12.0 + days / MeanTropicalYear));
}

/// How far the count of the cycles is ahead of the years shown.
std::int64_t CountLessShown() {
    return WholeNumber<std::int64_t>(Round((OrientYearEpoch() - OrientEpoch()) / MeanTropicalYear));
}

struct Month {
    FixedDay first;
    std::int16_t number;
    bool isLeap;
};

/// The months of the year that begins in a sui, and behind them the first of the next.
std::vector<Month> MonthsOfYear(std::int64_t index) {
    std::vector<Month> months;
    const auto add = [&](const Sui& sui, std::size_t from, std::size_t to) {
        for (std::size_t place = from; place < to; ++place) {
            months.push_back({sui.starts[place], sui.MonthAt(place), place > 0 && place == sui.leap});
        }
    };
    const Sui& sui = SuiOf(index);
    add(sui, sui.NewYearPlace(), sui.months);
    const Sui& next = SuiOf(index + 1);
    add(next, 0, next.NewYearPlace() + 1);
    return months;
}

}  // namespace

FixedDay NewYear(std::int32_t cycle, std::int32_t year, std::int32_t addend) {
    return SuiOf(IndexOfYear(CountOf(cycle, year) + addend)).NewYear();
}

FixedDay OrientToFixed(std::int32_t cycle, std::int32_t year, std::int32_t month, bool isLeapMonth, std::int32_t day) {
    const std::vector<Month> months = MonthsOfYear(IndexOfYear(CountOf(cycle, year)));
    const auto place = static_cast<std::size_t>(std::clamp(month, 1, 12) - 1);
    const Month& found = months[place];
    const bool isIt = found.number == month && found.isLeap == isLeapMonth;
    return (isIt ? found : months[place + 1]).first + day - 1;
}

OrientDate FixedToOrientDate(Moment x) {
    OrientDate date{.fixed = Floor(x)};
    const std::int64_t index = SuiIndexOf(date.fixed);
    const Sui& sui = SuiOf(index);
    const std::size_t place = sui.PlaceOf(date.fixed);
    date.isLeapSui = sui.isLeap();
    date.month = sui.MonthAt(place);
    date.isLeapMonth = place > 0 && place == sui.leap;
    date.day = static_cast<std::int16_t>(date.fixed - sui.starts[place] + 1);
    date.monthLength = static_cast<std::int16_t>(sui.starts[place + 1] - sui.starts[place]);
    const bool begun = date.fixed >= sui.NewYear();
    const Sui& other = SuiOf(begun ? index + 1 : index - 1);
    date.newYear = begun ? sui.NewYear() : other.NewYear();
    date.nextNewYear = begun ? other.NewYear() : sui.NewYear();
    const std::size_t placesBefore = begun ? 0 : other.months;
    date.place = static_cast<std::int16_t>(placesBefore + place + 1 - (begun ? sui : other).NewYearPlace());
    date.isLongYear = date.nextNewYear - date.newYear > 365;
    date.gregorianYear = FixedToGregorianYear(date.newYear);
    date.elapsed = date.fixed - OrientEpoch();
    const std::int64_t count = YearAt(date.month, date.elapsed);
    date.cycle = static_cast<std::int32_t>(FloorDivide(count - 1, 60) + 1);
    date.year = static_cast<std::int32_t>(FloorModulo(count - 1, 60) + 1);
    date.shownYear = static_cast<std::int32_t>(YearAt(date.month, date.fixed - OrientYearEpoch()));
    date.weekday = DayOfWeek(date.fixed);
    date.sexagesimal = static_cast<std::int16_t>(SexagesimalDay(date.fixed));
    return date;
}

const OrientDate& OrientDateOn(Moment x) {
    return DateOn<FixedToOrientDate>(x, DeltaTSerial, options.OrientVariant, options.OrientEpochYear);
}

Moment JumpNewYear(Moment from, int direction) {
    const std::int64_t index = YearIndexOf(Floor(from));
    const FixedDay newYear = SuiOf(index).NewYear();
    return direction * from < direction * newYear ? newYear : SuiOf(index + direction).NewYear();
}

// Names.

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

std::int32_t StemOf(std::int32_t n) { return static_cast<std::int32_t>(FloorModulo(n - 1, 10) + 1); }
std::int32_t BranchOf(std::int32_t n) { return static_cast<std::int32_t>(FloorModulo(n - 1, 12) + 1); }

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

std::int32_t KoreanYear(std::int32_t cycle, std::int32_t year) { return 60 * cycle + year - 424; }

std::string_view MarriageAugury(std::int32_t cycle, std::int32_t year) {
    const bool beginsLate = MinorSolarTerm(NewYear(cycle, year)) == 1;
    const bool endsEarly = MinorSolarTerm(NewYear(cycle, year, 1)) == 12;
    if (beginsLate) return endsEarly ? "widow" : "blind";
    return endsEarly ? "bright" : "double bright";
}

std::string MonthText(std::int32_t month, bool isLeapMonth) {
    const std::string name = NameAt(PresentNames().months, month);
    return isLeapMonth ? std::string(PresentNames().leap) + " " + name : name;
}

std::string OrientDateString(const OrientDate& date) {
    return "Year " + std::to_string(date.shownYear) + ", " + MonthText(date.month, date.isLeapMonth) +
           (options.UseEnglish ? " Month, Day " : " ") + std::to_string(date.day);
}

std::string FixedToOrientMonthDay(Moment x) {
    const OrientDate& date = OrientDateOn(x);
    return std::to_string(date.month) + (date.isLeapMonth ? "*" : "-") + FormatNumber(date.day, "00");
}

std::string CalendarName() { return std::string(Present().name); }

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
    std::string text = AngleOf(first + degreesOfTerm * (term - 1)) + " " + std::string(kind) +
                       " solar term = " + NameAt(PresentNames().*terms, term);
    if (!options.UseEnglish) text += " (" + NameAt(EnglishNames.*terms, term) + ")";
    return {term, std::move(text)};
}

void AddSolarEvents(FixedDay day, std::vector<std::string>& events) {
    const Longitudes sun{LongitudeAtMidnight(day), LongitudeAtMidnight(day + 1)};
    events.push_back(EarthDayText(sun));
    const TermOfDay minor = TermWithin(sun, firstMinorTerm, "minor", &Names::minorTerms);
    events.push_back(minor.text);
    if (minor.number == 3) events.emplace_back(WordsOf(thirdMinorTerm, false));
    const TermOfDay major = TermWithin(sun, firstMajorTerm, "major", &Names::majorTerms);
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

std::int64_t IndexOfShownYear(std::int32_t year) { return IndexOfYear(year + CountLessShown()); }

/// A 13th month in a year of 12 is its last.
FixedDay GridDateToFixed(std::int32_t year, std::int32_t place, std::int32_t day) {
    const std::vector<Month> months = MonthsOfYear(IndexOfShownYear(year));
    const auto last = static_cast<std::int32_t>(months.size()) - 1;
    return months[static_cast<std::size_t>(std::clamp(place, 1, last) - 1)].first + day - 1;
}

GridDate GridDateOf(Moment x) {
    const OrientDate& date = OrientDateOn(x);
    return {date.shownYear, date.place, date.day, date.monthLength,
            static_cast<std::int16_t>(DayOfWeek(date.fixed - date.day + 1))};
}

std::vector<std::string> MonthNames(std::int32_t year) {
    std::vector<Month> months = MonthsOfYear(IndexOfShownYear(year));
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
