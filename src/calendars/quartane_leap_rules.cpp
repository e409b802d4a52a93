#include "calendars/quartane_leap_rules.h"

#include "calendars/gregorian.h"
#include "core/memo.h"
#include "core/numerics.h"
#include "core/text.h"

#include <algorithm>
#include <optional>

namespace horvanta::quartane {
namespace {

/// Of a mean synodic month in a mean year: 1 over the mean months of a year.
constexpr double lunationsPerYear = 0.08085203847915712;

struct Choice {
    std::string_view key;
    std::string_view text;
};

constexpr std::size_t shortListLength = 10;

/// The entries of the list; without a key they separate, and without a text they tell of the ISO new year.
constexpr Choice choices[] = {
    {"52/293", "52 symmetrically spread leap years per 293 year cycle"},
    {"93/524", "93 symmetrically spread leap years per 524 year cycle"},
    {"LANEY", "Linear Approximation to Northward Equinoctial year"},
    {},
    {"69/389", "69 symmetrically spread leap years per 389 year cycle"},
    {"58/327", "58 symmetrically spread leap years per 327 year cycle"},
    {"LANSY", "Linear Approximation to North Solstitial year"},
    {},
    {"ISO", {}},
    {"ISOalt", {}},
    {"71/400", "Gregorian mean year, but leap years uniformly spread"},
    {"41/231", "Dee mean year, with symmetrically spread leap years"},
    {"320/1803", "320 symmetric spread leap years per 1803 year cycle"},
    {"145/817", "145 symmetrically spread leap years per 817 year cycle"},
    {"167/941", "167 symmetrically spread leap years per 941 year cycle"},
    {"115/648", "115 symmetrically spread leap years per 648 year cycle"},
    {"63/355", "63 symmetrically spread leap years per 355 year cycle"},
    {"137/772", "137 symmetrically spread leap years per 772 year cycle"},
    {"559/3150", "Revised Julian mean year, uniformly spread leap years"},
    {"74/417", "74 symmetrically spread leap years per 417 year cycle"},
    {"159/896", "symmetrical Bonavian 159 leap years per 896 years"},
    {},
    {"LASEY", "Linear Approximation to Southward Equinoctial year"},
    {"11/62", "11 symmetrically spread leap years per 62 year cycle"},
    {},
    {"LASSY", "Linear Approximation to South Solstitial year"},
    {"30/169", "30 symmetrically spread leap years per 169 year cycle"},
    {},
    {"BNY", "Besselian New Year at 280° solar longitude"},
    {"LABY", "Linear Approximation to Besselian year"},
    {},
    {"MOY", "Mean Orbital Year"},
    {"RAY", "Rotation-Adjusted Year"},
};

/// The rules that go by the Sun, listed or not.
constexpr std::string_view sunKeys[] = {"NE80",  "MNE80", "NS174", "MNS174", "SE100", "MSE100", "SS10", "MSS10",
                                        "LANEY", "LANSY", "LASEY", "LASSY",  "LABY",  "BNY",    "MOY",  "RAY"};

struct Cycle {
    std::int64_t leapYears;
    std::int64_t years;
};

constexpr Cycle gregorianCycle{71, 400};
constexpr Cycle revisedJulianCycle{559, 3150};

/// Whole positive numbers that may stand in a key.
std::optional<std::int64_t> WholeNumberOf(std::string_view digits) {
    constexpr double most = 100'000;
    const auto number = ParseNumber(digits);
    if (!number || *number != Floor(*number) || *number < 1 || *number > most) return {};
    return WholeNumber<std::int64_t>(*number);
}

/// The cycle that a key such as "52/293" writes.
std::optional<Cycle> WrittenCycle(std::string_view key) {
    const std::size_t slash = key.find('/');
    if (slash == std::string_view::npos) return {};
    const auto leapYears = WholeNumberOf(key.substr(0, slash));
    const auto years = WholeNumberOf(key.substr(slash + 1));
    const bool sound = leapYears && years && *leapYears <= *years;
    return sound ? std::optional(Cycle{*leapYears, *years}) : std::nullopt;
}

std::int64_t MiddleOffset(std::int64_t years, bool commonYearFirst) {
    const bool even = years % 2 == 0;
    return even ? years / 2 - (commonYearFirst ? 1 : 0) : (years - 1) / 2;
}

void SetCycle(LeapRule& rule, const Cycle& cycle) {
    rule.LeapNumerator = cycle.leapYears;
    rule.CycleLength = cycle.years;
    rule.CycleDays = 7 * cycle.leapYears + 364 * cycle.years;
    rule.DayExcess = rule.CycleDays - 365 * cycle.years;
    const std::int64_t divisor = rule.DayExcess % 7 == 0 ? 7 : 1;
    rule.ReducedNumerator = rule.DayExcess / divisor;
    rule.ReducedDenominator = cycle.years / divisor;
    rule.ReducedRatio = static_cast<double>(rule.ReducedNumerator) / static_cast<double>(rule.ReducedDenominator);
    rule.MeanYear = static_cast<double>(rule.CycleDays) / static_cast<double>(cycle.years);
    rule.MeanLunation = rule.MeanYear * lunationsPerYear;
}

LeapRule RuleOf(std::string_view key, bool commonYearFirst) {
    LeapRule rule;
    if (key.find("ISO") != std::string_view::npos) {
        SetCycle(rule, key.starts_with("RJISO") ? revisedJulianCycle : gregorianCycle);
    } else if (const auto cycle = WrittenCycle(key)) {
        SetCycle(rule, *cycle);
        rule.IsCycleRule = true;
        rule.CycleOffset = MiddleOffset(cycle->years, commonYearFirst);
        rule.ModularInverse =
            ModInverse(static_cast<std::int32_t>(cycle->leapYears), static_cast<std::int32_t>(cycle->years));
    } else if (std::ranges::find(sunKeys, key) == std::end(sunKeys)) {
        return RuleOf(choices[0].key, commonYearFirst);
    }
    return rule;
}

/// The text of the entries that tell of the ISO new year, by the weekday on which years begin.
std::string ISOText(std::string_view key) {
    const std::string name(WeekdayNames[options.StartWeekday]);
    if (key == "ISO") return "Start on " + name + " closest to Gregorian new year 71/400";
    return "Start on " + name + " " + std::string(BesideISOWeekday()) + " ISO new year 71/400";
}

std::string TextOf(const Choice& choice) {
    if (choice.key.empty()) return "";
    const std::string text = choice.text.empty() ? ISOText(choice.key) : std::string(choice.text);
    return std::string(choice.key) + " = " + text;
}

std::int32_t NumberOfChoices() {
    return static_cast<std::int32_t>(options.QuaSoupMix ? std::size(choices) : shortListLength);
}

}  // namespace

const LeapRule& Rule() {
    static Memo<1, Options, LeapRule> memo;
    return memo.Of(options, [] { return RuleOf(options.LeapRuleKey, options.EvenCycleFlag); });
}

bool isISORule() { return options.LeapRuleKey.find("ISO") != std::string::npos; }

std::string_view BesideISOWeekday() {
    if (options.StartWeekday == 1) return "that starts";
    return options.StartWeekday >= 2 && options.StartWeekday <= 4 ? "after" : "before";
}

std::int32_t SetKoffset(std::int32_t weekday) {
    const LeapRule& rule = Rule();
    if (rule.IsCycleRule || rule.CycleLength == 0) return static_cast<std::int32_t>(rule.CycleOffset);
    const std::int64_t days = FloorModulo(4 - std::int64_t{weekday}, 7) - 1;
    return static_cast<std::int32_t>(FloorDivide(days * rule.CycleLength, 7) + rule.LeapNumerator);
}

void SetEvenCycleMode(bool middleLeapFirst) { options.EvenCycleFlag = !middleLeapFirst; }

std::int32_t CheckIfQuaCycle() {
    const LeapRule& rule = Rule();
    const auto leap = [&rule](std::int64_t year) {
        return FloorModulo(year * rule.LeapNumerator + rule.CycleOffset, rule.CycleLength) < rule.LeapNumerator;
    };
    if (!rule.IsCycleRule) return 0;
    const bool odd = rule.CycleLength % 2 != 0;
    std::int64_t apart = odd ? 0 : 1;
    for (std::int64_t year = rule.CycleLength / 2 + 2; year <= rule.CycleLength; ++year) {
        apart += 2;
        if (leap(year) != leap(year - apart)) return 0;
    }
    return odd ? 1 : -1;
}

const std::vector<std::string>& LeapChoices() {
    static Memo<1, Options, std::vector<std::string>> memo;
    return memo.Of(options, [] {
        std::vector<std::string> texts;
        std::transform(choices, choices + NumberOfChoices(), std::back_inserter(texts), TextOf);
        return texts;
    });
}

std::int32_t FindQuaLeapRule(std::string_view key) {
    const std::vector<std::string>& texts = LeapChoices();
    const auto found = std::ranges::find_if(texts, [key](const std::string& text) { return text.starts_with(key); });
    return found == texts.end() ? -1 : static_cast<std::int32_t>(found - texts.begin());
}

void SetQuaLeapChoice(std::string_view key) { ChooseLeapRule(std::max(FindQuaLeapRule(key), 0)); }

void ChooseLeapRule(std::int32_t index) {
    if (index < 0 || index >= NumberOfChoices() || choices[index].key.empty()) return;
    options.LeapRuleIndex = index;
    options.LeapRuleKey = choices[index].key;
}

}  // namespace horvanta::quartane
