#include "calendars/typed_dates.h"

#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/julian.h"
#include "calendars/roman.h"
#include "core/moment.h"
#include "core/text.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace horvanta {
namespace {

constexpr std::int32_t longestMonth = 42;  // days that the grid has room for

TypedDate NoDate(std::string why) { return {.told = std::move(why)}; }

/// A whole number, of few digits.
std::optional<std::int32_t> Whole(std::string_view text) {
    const auto number = ParseNumber(text);
    const bool fits = number && *number == Floor(*number) && std::fabs(*number) < 1e6;
    return fits ? std::optional(WholeNumber(*number)) : std::nullopt;
}

/// Small letters without accents; a comma parts words like a blank.
std::string Folded(std::string_view text) {
    constexpr std::string_view latin =
        "aaaaaaaceeeeiiiidnooooo ouuuuypsaaaaaaaceeeeiiiidnooooo ouuuuypy";  // from U+00C0
    constexpr char lead = '\xC3';
    std::string folded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == lead && i + 1 < text.size()) {
            folded += latin[static_cast<unsigned char>(text[++i]) & 0x3F];
        } else {
            folded += c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c == ',' ? ' ' : c;
        }
    }
    return folded;
}

std::vector<std::string_view> WordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    for (text = Trimmed(text); !text.empty(); text = Trimmed(text)) {
        words.push_back(text.substr(0, text.find(' ')));
        text.remove_prefix(words.back().size());
    }
    return words;
}

std::string Joined(std::span<const std::string_view> words) {
    std::string text;
    for (const std::string_view word : words) text += (text.empty() ? "" : " ") + std::string(word);
    return text;
}

/// The fields of "2024-02-29": the first may have a sign.
std::vector<std::string_view> DashedFields(std::string_view text) {
    std::vector<std::string_view> fields;
    for (std::size_t dash = 0; dash != std::string_view::npos;) {
        dash = text.find('-', fields.empty() ? 1 : 0);
        fields.push_back(text.substr(0, dash));
        if (dash != std::string_view::npos) text.remove_prefix(dash + 1);
    }
    return fields;
}

/// A day that can be displayed, or why it can't be.
TypedDate InRange(Moment x, bool hasTime, std::string told) {
    const std::string_view why = WhyBeyondRange(x);
    return why.empty() ? TypedDate{x, hasTime, std::move(told)} : NoDate(std::string(why));
}

/// Counts of days, by their names.
struct DayCount {
    std::string_view key;
    std::string_view name;
    const Epoch& start;
};

constexpr DayCount dayCounts[] = {{"jd", "Julian Day", JDEpoch}, {"mjd", "Modified Julian Day", MJDEpoch}};

std::optional<TypedDate> ReadCount(std::string_view text) {
    for (const auto& [key, name, start] : dayCounts) {
        const auto number = text.starts_with(key) ? ParseNumber(text.substr(key.size())) : std::nullopt;
        if (number)
            return InRange(start + *number, true,
                           std::string(name) + " " + GeneralText(*number) + ", in Universal Time");
    }
    return std::nullopt;
}

TypedDate ISODayOf(std::int32_t year, std::int32_t week, std::int32_t weekday) {
    if (const std::string why = WhyNoYear(ISOCalendar, year); !why.empty()) return NoDate(why);
    const std::int32_t weeks = isISOLeapYear(year) ? 53 : 52;
    if (week < 1 || week > weeks) {
        return NoDate("the ISO year " + std::to_string(year) + " has weeks 1 to " + std::to_string(weeks));
    }
    if (weekday < 1 || weekday > 7) return NoDate("a week has days 1 to 7");
    const FixedDay day = ISOToFixed(year, week, weekday);
    return InRange(day, false, "ISO calendar, " + ISODateString(FixedToISODate(day)));
}

/// "Julian calendar, 15 March 44 BC"
std::string HowRead(const CalendarContract& calendar, FixedDay day) {
    const GridDate date = calendar.DateOf(day);
    const std::string month = calendar.MonthNames(date.year)[static_cast<std::size_t>(date.month - 1)];
    return NameOf(calendar) + " calendar, " + std::to_string(date.day) + " " + month + " " +
           YearText(calendar, date.year);
}

TypedDate Told(const CalendarContract& calendar, TypedDate date) {
    if (!isNever(date.moment)) date.told = HowRead(calendar, date.moment);
    return date;
}

std::optional<TypedDate> ReadDashed(std::string_view text) {
    const std::vector<std::string_view> fields = DashedFields(text);
    if (fields.size() != 3) return std::nullopt;
    const bool isWeek = fields[1].starts_with('w');
    const auto year = Whole(fields[0]);
    const auto middle = Whole(fields[1].substr(isWeek ? 1 : 0));
    const auto day = Whole(fields[2]);
    if (!year || !middle || !day) return std::nullopt;
    if (isWeek) return ISODayOf(*year, *middle, *day);
    return Told(GregorianCalendar, DayOf(GregorianCalendar, *year, *middle, *day));
}

/// The place of a month in its year, from 1; 0 where the calendar has none of that name. Of a year that there is not it
/// is that in another.
std::int32_t PlaceOf(std::string_view name, const CalendarContract& calendar, std::int32_t year, bool whole) {
    constexpr std::size_t shortest = 3;  // letters of a name that is cut
    if (!whole && name.size() < shortest) return 0;
    const std::vector<std::string> names = calendar.MonthNames(WhyNoYear(calendar, year).empty() ? year : 1);
    const auto found = std::ranges::find_if(names, [&](const std::string& month) {
        const std::string folded = Folded(month);
        const std::string known = Joined(WordsOf(folded));
        return whole ? known == name : known.starts_with(name);
    });
    return found == names.end() ? 0 : static_cast<std::int32_t>(found - names.begin() + 1);
}

/// A date as words: "15 March 44 BC", "March 15, 44 BC" or "2024 March 15", with or without what the year is counted
/// from.
struct WordedDate {
    std::int32_t day;
    std::string month;
    std::int32_t year;
    std::string era;
};

constexpr std::string_view eras[] = {"bc", "bce", "ad", "ce", "auc"};

std::optional<WordedDate> WordedDateOf(std::span<const std::string_view> words) {
    const std::string last = words.empty() ? "" : ReplaceAll(words.back(), ".", "");
    const bool hasEra = std::ranges::find(eras, last) != std::end(eras);
    if (hasEra) words = words.first(words.size() - 1);
    if (words.size() < 3) return std::nullopt;
    auto year = Whole(words.back());
    words = words.first(words.size() - 1);
    const bool dayFirst = Whole(words.front()).has_value();
    auto day = Whole(dayFirst ? words.front() : words.back());
    const auto month = dayFirst ? words.subspan(1) : words.first(words.size() - 1);
    if (dayFirst && *day > longestMonth) std::swap(day, year);
    if (!year || !day || (hasEra && *year < 1)) return std::nullopt;
    return WordedDate{*day, ReplaceAll(Joined(month), ".", ""), *year, hasEra ? last : ""};
}

/// The Julian year by the number that the calendar goes by, which may be that since Rome was founded.
std::int32_t JulianNumber(std::int32_t year, bool sinceRome) {
    if (sinceRome == julian::options.UseAUC) return year;
    return sinceRome ? AUCToJulian(year) : JulianToAUC(year);
}

/// The year of a text that tells its era, by the calendar that counts so.
struct YearOfEra {
    const CalendarContract* calendar;
    std::int32_t year;
};

YearOfEra YearOfEraOf(const WordedDate& date, std::span<const CalendarContract* const> calendars) {
    const auto julian = std::ranges::find(calendars, &JulianCalendar);
    const bool beforeChrist = date.era.starts_with('b');
    const bool sinceRome = date.era == "auc";
    const bool isJulian = beforeChrist || sinceRome || julian < std::ranges::find(calendars, &GregorianCalendar);
    if (!isJulian) return {&GregorianCalendar, date.year};
    return {&JulianCalendar, JulianNumber(beforeChrist ? -date.year : date.year, sinceRome)};
}

constexpr std::size_t longestShown = 20;  // characters of a word that is no month

TypedDate ReadWords(const WordedDate& date, std::span<const CalendarContract* const> calendars) {
    YearOfEra counted{nullptr, date.year};
    if (!date.era.empty()) {
        counted = YearOfEraOf(date, calendars);
        calendars = std::span(&counted.calendar, 1);
    }
    for (const bool whole : {true, false}) {
        for (const CalendarContract* calendar : calendars) {
            const std::int32_t month = PlaceOf(date.month, *calendar, counted.year, whole);
            if (month > 0) return Told(*calendar, DayOf(*calendar, counted.year, month, date.day));
        }
    }
    const std::string who = date.era.empty() ? "no calendar has a month \""
                                             : "the " + NameOf(*counted.calendar) + " calendar has no month \"";
    return NoDate(who + Elided(date.month, longestShown) + "\" in year " + std::to_string(date.year));
}

/// The weekday, from 0 for Sunday, that a date may begin with: "Sunday", "Sun.".
std::optional<std::int32_t> WeekdayOf(std::string_view word) {
    for (std::int32_t weekday = 0; weekday < 7; ++weekday) {
        const std::string name = Folded(WeekdayNames[weekday]);
        if (word == name || ReplaceAll(word, ".", "") == name.substr(0, 3)) return weekday;
    }
    return std::nullopt;
}

/// A date whose weekday was told with it.
TypedDate OnWeekday(const TypedDate& date, std::int32_t weekday) {
    if (isNever(date.moment) || DayOfWeek(date.moment) == weekday) return date;
    return NoDate(date.told + ", is a " + std::string(WeekdayNames[DayOfWeek(date.moment)]));
}

}  // namespace

std::string YearText(const CalendarContract& calendar, std::int32_t year) {
    return calendar.YearText ? calendar.YearText(year) : std::to_string(year);
}

std::optional<std::int32_t> ReadYear(const CalendarContract& calendar, std::string_view text) {
    if (const auto number = Whole(text)) return number;
    const auto size = ParseLeadingNumber(text);
    if (!size || !calendar.YearText || std::fabs(*size) > 1e6) return std::nullopt;
    const std::string wanted = Folded(Trimmed(text));
    for (const std::int32_t year : {WholeNumber(*size), -WholeNumber(*size)}) {
        if (Folded(calendar.YearText(year)) == wanted) return year;
    }
    return std::nullopt;
}

std::string WhyNoYear(const CalendarContract& calendar, std::int32_t year) {
    constexpr std::int32_t farthest = 20'000;  // the range ends before in every calendar
    if (year == 0 && !HasYear0(calendar)) {
        return "the " + NameOf(calendar) + " calendar has no year 0";
    }
    return std::abs(year) <= farthest ? "" : std::string(WhyBeyondRange(year < 0 ? MinFixedDay - 1 : MaxFixedDay + 1));
}

TypedDate DayOf(const CalendarContract& calendar, std::int32_t year, std::int32_t month, std::int32_t day) {
    if (const std::string why = WhyNoYear(calendar, year); !why.empty()) return NoDate(why);
    const std::vector<std::string> months = calendar.MonthNames(year);
    if (month < 1 || month > static_cast<std::int32_t>(months.size())) {
        return NoDate("a year has months 1 to " + std::to_string(months.size()));
    }
    const FixedDay first = calendar.ToFixed(year, month, 1);
    const GridDate date = isNever(first) ? GridDate() : calendar.DateOf(first);
    if (date.month == 0) return NoDate("the " + NameOf(calendar) + " calendar does not reach there");
    if (day < 1 || day > date.monthLength) {
        return NoDate(months[static_cast<std::size_t>(month - 1)] + " " + YearText(calendar, year) + " has " +
                      std::to_string(date.monthLength) + " days");
    }
    return InRange(calendar.ToFixed(year, month, day), false, "");
}

std::string DayOfMonthText(const CalendarContract& calendar, const GridDate& date) {
    return calendar.CellText ? calendar.CellText(date, date.day) : std::to_string(date.day);
}

std::optional<std::int32_t> ReadDay(const CalendarContract& calendar, const GridDate& month, std::string_view text) {
    if (const auto number = Whole(text)) return number;
    const std::string wanted = Folded(Trimmed(text));
    for (std::int32_t day = 1; calendar.CellText && day <= longestMonth; ++day) {
        if (Folded(calendar.CellText(month, day)) == wanted) return day;
    }
    return std::nullopt;
}

TypedDate ReadDate(std::string_view text, std::span<const CalendarContract* const> calendars) {
    const std::string folded = Folded(ReplaceAll(ReplaceAll(text, "\t", " "), "\u00A0", " "));
    const std::vector<std::string_view> words = WordsOf(folded);
    const std::string line = Joined(words);
    if (const auto date = ReadCount(line)) return *date;
    if (const auto date = ReadDashed(line)) return *date;
    const auto weekday = words.empty() ? std::nullopt : WeekdayOf(words.front());
    const auto date = WordedDateOf(std::span(words).subspan(weekday ? 1 : 0));
    if (date) return weekday ? OnWeekday(ReadWords(*date, calendars), *weekday) : ReadWords(*date, calendars);
    return NoDate(NotText(text, "a date"));
}

}  // namespace horvanta
