#include "calendars/quartane_leap_text.h"

#include "astro/year_dates.h"
#include "calendars/gregorian.h"
#include "calendars/quartane_leap_rules.h"
#include "core/text.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

namespace horvanta::quartane {
namespace {

std::string StartWeekdayName() { return std::string(WeekdayNames[options.StartWeekday]); }

/// What is said of a rule that ties the new year to the Sun.
struct SolarRule {
    std::string_view key;
    std::string_view moment;       ///< What years start closest to.
    std::string_view explanation;  ///< How long its mean year is.
};

constexpr std::string_view seasonal =
    "The year follows the true motion of the Sun, so that its length varies from year to\n"
    "year.";
constexpr std::string_view meanSeasonal =
    "The year follows the mean motion of the Sun, which only changes with the speed of the\n"
    "Earth's rotation.";

constexpr SolarRule solarRules[] = {
    {"NE80", "79 days before Northward Equinox", seasonal},
    {"MNE80", "79 days before Mean Northward Equinox", meanSeasonal},
    {"NS174", "173 days before North Solstice", seasonal},
    {"MNS174", "173 days before Mean North Solstice", meanSeasonal},
    {"SE100", "100.25 days after Southward Equinox", seasonal},
    {"MSE100", "100.25 days after Mean Southward Equinox", meanSeasonal},
    {"SS10", "10.25 days after South Solstice", seasonal},
    {"MSS10", "10.25 days after Mean South Solstice", meanSeasonal},
    {"MOY", "Mean Orbital New Year moment",
     "The Mean Orbital Year (MOY) is the mean time that Earth takes around the Sun from\n"
     "equinox to equinox.\n"
     "The MOY is getting shorter due to tidal slowing of Earth's rotation."},
    {"RAY", "Rotation-Adjusted New Year moment",
     "The Rotation-Adjusted Year (RAY) follows the northward equinox, and keeps step with\n"
     "the slowing of Earth's rotation."},
    {"LANEY", "Linear Approximation to the mean Northward Equinoctial year",
     "The year is taken to get shorter by 9/5 seconds per\n"
     "century over the years from 5500 AD to 14000 AD."},
    {"LANSY", "Linear Approximation to the mean North Solstitial year",
     "The year is taken to get shorter by 5/4 seconds per\n"
     "century over the years from 10500 AD to 18200 AD."},
    {"LASEY", "Linear Approximation to the mean Southward Equinoctial year",
     "The year is taken to get shorter by\n"
     "5/2 seconds per century over the years from 3000 BC to 5200 AD."},
    {"LASSY", "Linear Approximation to the mean South Solstitial year",
     "The year is taken to get shorter by 7/3 seconds per\n"
     "century over the years from 1400 AD to 9250 AD."},
    {"BNY", "Besselian New Year moment",
     "That is when the longitude of the Sun is 280°. The year follows the true motion of\n"
     "the Sun, so that its length varies from year to year."},
    {"LABY", "Linear Approximation to the mean Besselian year",
     "The year is taken to get shorter by 11/5\n"
     "seconds per century over the years from 1600 AD to 9700 AD."},
};

const SolarRule* FindSolarRule() {
    const auto* found = std::ranges::find(solarRules, options.LeapRuleKey, &SolarRule::key);
    return found == std::end(solarRules) ? nullptr : found;
}

std::string ISOMethod() {
    const bool revised = options.LeapRuleKey.starts_with("RJISO");
    const std::string start = "Each year starts on the " + StartWeekdayName() + " ";
    if (options.LeapRuleKey.ends_with("alt")) {
        return start + std::string(BesideISOWeekday()) + " the " + (revised ? "RJISO" : "ISO") + " new year.";
    }
    return start + "closest to the " + (revised ? "Revised Julian" : "Gregorian") + " new year.";
}

/// "(52 Year + 146)", or "52 Year" without an offset.
std::string CycleTerm(const LeapRule& rule, std::string_view year) {
    const std::string product = std::to_string(rule.LeapNumerator) + std::string(year);
    if (rule.CycleOffset == 0) return product;
    return "(" + product + (rule.CycleOffset > 0 ? " + " : " - ") + std::to_string(std::abs(rule.CycleOffset)) + ")";
}

/// A leap year with a remainder below this has the next after 6 years.
std::int64_t LongIntervalRemainder(const LeapRule& rule) { return rule.CycleLength % rule.LeapNumerator; }

std::string CycleMethod(const LeapRule& rule, bool forWebPage) {
    const std::string remainder = forWebPage ? "<i>remainder</i>" : "remainder";
    const std::string lineBreak = forWebPage ? "<br>" : "\n";
    return "Year is leap only if the " + remainder + " of " + CycleTerm(rule, " Year") + " / " +
           std::to_string(rule.CycleLength) + " is less than " + std::to_string(rule.LeapNumerator) + "." + lineBreak +
           "If a leap year " + remainder + " is less than " + std::to_string(LongIntervalRemainder(rule)) +
           " then the next leap year will be" + lineBreak + "6 years later, otherwise 5 years later.";
}

/// "365+71/293", with something around the plus sign if wanted.
std::string MeanYearSum(const LeapRule& rule, const std::string& plus = "+") {
    return "365" + plus + std::to_string(rule.ReducedNumerator) + "/" + std::to_string(rule.ReducedDenominator);
}

std::string CycleExplanation(const LeapRule& rule) {
    const std::string inverse = rule.ModularInverse == 0 ? "none" : std::to_string(rule.ModularInverse);
    return "Year  y  is leap only if the remainder of " + CycleTerm(rule, " y") + " / " +
           std::to_string(rule.CycleLength) + " is < " + std::to_string(rule.LeapNumerator) + ".\n" +
           "If a leap year remainder is < " + std::to_string(LongIntervalRemainder(rule)) +
           " then the next leap year will be\n6 years later, otherwise 5 years later.\n\n" + "There are " +
           std::to_string(rule.LeapNumerator) + " leap years " +
           (CheckIfQuaCycle() == 0 ? "spread as uniformly as possible" : "distributed symmetrically") +
           "\nat 6 or 5 year intervals in " + std::to_string(rule.CycleLength) +
           " years (modular inverse = " + inverse + ").\n\n" + "The mean year of " + MeanYearSum(rule, " + ") +
           " days = " + DurationString(rule.MeanYear) + ".";
}

constexpr std::string_view followsNextNewYear =
    "\n\nThe year has no fixed length, and has a leap week only if the next year starts >364 days later.";

std::string ISOExplanation(const LeapRule& rule) {
    const bool revised = options.LeapRuleKey.starts_with("RJISO");
    return ISOMethod() + std::string(followsNextNewYear) + "\n\nThere are " + std::to_string(rule.LeapNumerator) +
           " leap years in " + std::to_string(rule.CycleLength) + " years.\nThe mean year is " +
           GeneralText(rule.MeanYear) + " days (identical to the " + (revised ? "Revised Julian" : "Gregorian") +
           " mean year).";
}

/// The days, which the slowing of the Earth's rotation makes fewer, of the mean orbital year about a moment.
double OrbitalYearLength(Moment x) {
    const double date = MomentToOrbitalDate(x);
    return OrbitalDateToMoment(date + 0.5) - OrbitalDateToMoment(date - 0.5);
}

/// The days of the mean year, for rules that have one.
std::optional<double> MeanYearAt(Moment x) {
    if (Rule().CycleLength != 0) return Rule().MeanYear;
    if (options.LeapRuleKey == "RAY") return RAYYearLength(x);
    if (options.LeapRuleKey == "MOY") return OrbitalYearLength(x);
    return {};
}

// Groups of intervals by letters: the letter of 11 is K, that of 17 is Q.

struct Group {
    std::string_view begins;  ///< The letters by which it is known; any for the last.
    std::string_view left;    ///< In the left half, and its mirror in the right one.
    std::string_view right;
    std::string_view text;
};

constexpr Group groups[] = {
    {"QK", "QKQ", "QKQ", "45"},
    {"KQ", "KQ", "QK", "(28)"},
    {"", "QQKQQ", "QQKQQ", "79"},
};

const Group& GroupOf(std::string_view letters) {
    return *std::ranges::find_if(groups, [letters](const Group& group) { return letters.starts_with(group.begins); });
}

std::string Letters(std::string_view intervals) {
    return ReplaceAll(ReplaceAll(ReplaceAll(intervals, "11", "K"), "17", "Q"), " ", "");
}

/// Two letters in the middle are a pair on their own, others are summed.
std::string MiddleText(std::string_view letters) {
    if (letters == "KQ" || letters == "QK") return "(28)";
    int sum = 0;
    for (const char letter : letters) sum += letter - 64;
    return std::to_string(sum);
}

std::string Joined(const std::vector<std::string>& parts, std::string_view separator) {
    std::string text;
    for (const std::string& part : parts) text += (text.empty() ? "" : std::string(separator)) + part;
    return text;
}

/// The leap years of a cycle and one more, from the second on.
std::vector<std::int64_t> LeapYearsFromSecond(const LeapRule& rule) {
    std::vector<std::int64_t> years;
    for (std::int64_t year = 1; std::ssize(years) < rule.LeapNumerator + 2; ++year) {
        const std::int64_t remainder = FloorModulo(year * rule.LeapNumerator + rule.CycleOffset, rule.CycleLength);
        if (remainder < rule.LeapNumerator) years.push_back(year);
    }
    years.erase(years.begin());
    return years;
}

}  // namespace

std::string LeapRuleMethod(bool forWebPage) {
    if (isISORule()) return ISOMethod();
    const SolarRule* solar = FindSolarRule();
    if (!solar) return CycleMethod(Rule(), forWebPage);
    return "Year starts on " + StartWeekdayName() + " closest to " + std::string(solar->moment) + ".";
}

std::string LeapRuleExplanation() {
    if (isISORule()) return ISOExplanation(Rule());
    const SolarRule* solar = FindSolarRule();
    if (!solar) return CycleExplanation(Rule());
    return LeapRuleMethod(false) + std::string(followsNextNewYear) + "\n\n" + std::string(solar->explanation);
}

std::string MeanYearText(Moment x) {
    if (Rule().CycleLength != 0) return MeanYearSum(Rule()) + " days";
    if (const auto days = MeanYearAt(x)) return FormatNumber(*days, "0.000000") + " days";
    if (options.LeapRuleKey.find("NE80") != std::string::npos) return "Northward Equinox Year";
    if (options.LeapRuleKey.find("NS174") != std::string::npos) return "North Solstice Year";
    return "(varies)";
}

std::string MeanYearFraction(Moment x) {
    if (Rule().CycleLength != 0) return GeneralText(Rule().ReducedRatio);
    const auto days = MeanYearAt(x);
    return days ? FormatNumber(*days - Floor(*days), "0.000000") : MeanYearText(x);
}

std::string MeanYearSummary(Moment x) {
    const auto days = MeanYearAt(x);
    if (!days) return "mean year: " + MeanYearText(x);
    const std::string source = Rule().CycleLength == 0 ? "" : " (" + options.LeapRuleKey + " leap cycle)";
    return "mean year = " + MeanYearText(x) + " = " + DurationString(*days) + source;
}

std::string QuaLeapIntervals() {
    if (!Rule().IsCycleRule) return "";
    const std::vector<std::int64_t> years = LeapYearsFromSecond(Rule());
    std::vector<std::string> intervals;
    for (std::size_t i = 0; i + 1 < years.size();) {
        const auto spans = [&](std::size_t leaps, std::int64_t length) {
            return i + leaps < years.size() && years[i + leaps] - years[i] == length;
        };
        const bool three = spans(1, 6) && spans(2, 11) && spans(3, 17);
        const bool two = !three && spans(1, 5) && spans(2, 11);
        const std::size_t leaps = three ? 3 : two ? 2 : 1;
        intervals.push_back(std::to_string(years[i + leaps] - years[i]));
        i += leaps;
    }
    return Joined(intervals, " ");
}

std::string QuaGroupIntervals(std::string_view intervals) {
    const std::string all = Letters(intervals);
    std::string_view letters = all;
    std::vector<std::string> left;
    std::vector<std::string> right;
    while (letters.size() >= 3) {
        const Group& group = GroupOf(letters);
        if (letters.size() < 2 * group.left.size()) break;
        if (!letters.starts_with(group.left) || !letters.ends_with(group.right)) return std::string(intervals);
        left.emplace_back(group.text);
        right.insert(right.begin(), std::string(group.text));
        letters.remove_prefix(group.left.size());
        letters.remove_suffix(group.right.size());
    }
    if (!letters.empty()) left.push_back(MiddleText(letters));
    left.insert(left.end(), right.begin(), right.end());
    return Joined(left, "+");
}

std::string ReduceIntervals(std::string_view text, bool forWebPage) {
    std::vector<std::string> reduced;
    while (!text.empty()) {
        const std::string group(text.substr(0, text.find('+')));
        int count = 0;
        while (!text.empty() && text.substr(0, text.find('+')) == group) {
            ++count;
            text.remove_prefix(std::min(text.size(), group.size() + 1));
        }
        const std::string times = std::to_string(count) + (forWebPage ? "&times;" : "*");
        reduced.push_back((count > 1 ? times : "") + group);
    }
    return Joined(reduced, " + ");
}

}  // namespace horvanta::quartane
