#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>
#include <span>
#include <utility>

namespace horvanta {
namespace {

constexpr std::string_view whiteSpace = " \t\r\n\v\f";
constexpr std::array<std::string_view, 3> typographicMinus{"—", "–", "−"};

std::string WithDigits(double x, int significantDigits) {
    std::array<char, 40> text;
    const auto end = std::to_chars(text.begin(), text.end(), x, std::chars_format::general, significantDigits).ptr;
    return {text.begin(), end};
}

/// A finite number as 15 decimal digits d with the value 0.ddd... * 10^pointAt.
struct Decimal {
    std::string digits;
    int pointAt;
};

Decimal DecimalOf(double x) {
    std::array<char, 32> text;  // d.dddddddddddddde+dd
    const auto end = std::to_chars(text.begin(), text.end(), std::fabs(x), std::chars_format::scientific, 14).ptr;
    constexpr std::size_t exponentMark = 16;
    int exponent = 0;
    std::from_chars(&text[exponentMark + 2], end, exponent);
    const bool isSmall = text[exponentMark + 1] == '-';
    text[1] = text[0];
    return {{&text[1], exponentMark - 1}, (isSmall ? -exponent : exponent) + 1};
}

/// The digits of the decimal down to `places` behind the point, rounded half up, as one whole number without a point.
std::string RoundedDigits(const Decimal& decimal, int places) {
    const int kept = decimal.pointAt + places;
    if (kept < 0) return "0";
    std::string digits = "0" + decimal.digits;
    digits.resize(static_cast<std::size_t>(std::max(kept + 2, static_cast<int>(digits.size()))), '0');
    const auto half = static_cast<std::size_t>(kept + 1);
    const bool up = digits[half] >= '5';
    digits.resize(half);
    if (up) {
        auto last = digits.rbegin();
        while (*last == '9') *last++ = '0';
        ++*last;
    }
    return digits;
}

/// The digits of a finite number's size, rounded so. Nothing of a whole number has to be rounded.
std::string DigitsOf(double x, int places) {
    constexpr double digitsRunOut = 1e15;
    const double size = std::fabs(x);
    if (size >= digitsRunOut || size != Floor(size)) return RoundedDigits(DecimalOf(x), places);
    return std::to_string(WholeNumber<std::int64_t>(size)).append(static_cast<std::size_t>(places), '0');
}

/// A typed number with a leading typographic minus sign replaced by "-", and without a leading plus sign.
std::string Normalised(std::string_view text) {
    for (const std::string_view dash : typographicMinus) {
        if (text.starts_with(dash)) return "-" + std::string(text.substr(dash.size()));
    }
    const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return std::string(plus ? text.substr(1) : text);
}

struct LeadingNumber {
    double value;
    std::string_view rest;
};

/// Decimal digits alone make a number: "inf" and "nan" are words.
std::optional<LeadingNumber> LeadingNumberOf(std::string_view text) {
    const std::size_t first = text.find_first_not_of("-.");
    if (first == std::string_view::npos || text[first] < '0' || text[first] > '9') return std::nullopt;
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc()) return std::nullopt;
    return LeadingNumber{value, {rest, static_cast<std::size_t>(end - rest)}};
}

}  // namespace

std::string GeneralText(double x) { return WithDigits(x == 0 ? 0.0 : x, 15); }

std::string ExactText(double x) { return WithDigits(x, 17); }

std::string FormatNumber(double x, std::string_view format) {
    const bool percent = format.ends_with('%');
    if (percent) {
        x *= 100;
        format.remove_suffix(1);
    }
    if (!std::isfinite(x)) return GeneralText(x);
    const std::size_t point = std::min(format.find('.'), format.size());
    const std::size_t places = format.size() - std::min(point + 1, format.size());

    std::string digits = DigitsOf(x, static_cast<int>(places));
    digits.erase(0, digits.find_first_not_of('0'));
    const bool zero = digits.empty();
    if (digits.size() < point + places) digits.insert(0, point + places - digits.size(), '0');
    if (places > 0) digits.insert(digits.size() - places, ".");
    return (x < 0 && !zero ? "-" : "") + digits + (percent ? "%" : "");
}

std::optional<double> ParseNumber(std::string_view text) {
    const std::string number = Normalised(Trimmed(text));
    const auto parsed = LeadingNumberOf(number);
    return parsed && parsed->rest.empty() ? std::optional(parsed->value) : std::nullopt;
}

std::optional<double> ParseLeadingNumber(std::string_view text) {
    const std::string number = Normalised(Trimmed(text));
    const auto parsed = LeadingNumberOf(number);
    return parsed ? std::optional(parsed->value) : std::nullopt;
}

std::string SignedStr(double x) { return (x >= 0 ? "+" : "") + GeneralText(x); }

std::string OrdinalString(std::int32_t n) {
    constexpr std::string_view endings = "thstndrdthththththth";
    const bool plainTh = n < 0 || (n >= 11 && n <= 13);
    return std::to_string(n) + std::string(endings.substr(plainTh ? 0 : static_cast<std::size_t>(2 * (n % 10)), 2));
}

std::string OrdinalDiff(std::int32_t a, std::int32_t b) {
    return b > a ? " " + OrdinalString(static_cast<std::int32_t>(std::int64_t{b} - a)) : "";
}

namespace {

/// One field of a time: how many of the style's smallest unit it holds, and its words.
struct TimeField {
    int units;
    std::string_view letter;
    std::string_view word;
};

constexpr TimeField secondsFields[] = {{3600, "h", " hour"}, {60, "m", " minute"}, {1, "s", " second"}};
constexpr TimeField minutesFields[] = {{60, "h", " hour"}, {1, "m", " minute"}};
constexpr TimeField partsFields[] = {{1080, "h", " hour"}, {1, "p", " part"}};
constexpr TimeField minutePartsFields[] = {{1080, "h", " hour"}, {18, "m", " minute"}, {1, "p", " part"}};
constexpr TimeField momentsFields[] = {{82080, "h", " hour"}, {1368, "m", " minute"}, {76, "p", " part"}};
constexpr TimeField minuteField[] = {{1, "m", " minute"}};
constexpr TimeField hourField[] = {{1, "h", " hour"}};
constexpr TimeField tenthsFields[] = {{36000, "h", ""}, {600, "m", ""}, {10, "s", ""}};

enum class TimeLook { clock, clockUnpadded, worded, decimal, tenths };

struct TimeStyle {
    TimeLook look;
    double unitsPerDay;
    std::span<const TimeField> fields;
    std::string_view decimals = "";
};

constexpr TimeStyle timeStyles[] = {
    /*  0 */ {TimeLook::clock, 86400, secondsFields},
    /*  1 */ {TimeLook::worded, 86400, secondsFields},
    /*  2 */ {TimeLook::clock, 1440, minutesFields},
    /*  3 */ {TimeLook::clockUnpadded, 1440, minutesFields},
    /*  4 */ {TimeLook::worded, 1440, minutesFields},
    /*  5 */ {TimeLook::clock, 25920, partsFields},
    /*  6 */ {TimeLook::clock, 1969920, momentsFields},
    /*  7 */ {TimeLook::worded, 25920, minutePartsFields},
    /*  8 */ {TimeLook::worded, 1969920, momentsFields},
    /*  9 */ {TimeLook::clockUnpadded, 1440, minutesFields},
    /* 10 */ {TimeLook::worded, 25920, partsFields},
    /* 11 */ {TimeLook::clockUnpadded, 86400, secondsFields},
    /* 12 */ {TimeLook::decimal, 1440, minuteField, "0.0"},
    /* 13 */ {TimeLook::decimal, 24, hourField, "0.00"},
    /* 14 */ {TimeLook::tenths, 864000, tenthsFields},
};

const TimeStyle& StyleOf(int style) {
    const bool known = style >= 0 && style < static_cast<int>(std::size(timeStyles));
    return timeStyles[known ? style : 0];
}

/// "5h" or "5 hours", with the "s" of every count but 1.
std::string Worded(const std::string& count, const TimeField& field, bool longForm) {
    if (!longForm) return count + std::string(field.letter);
    return count + std::string(field.word) + (count == "1" ? "" : "s");
}

std::string WordedTime(std::int64_t count, std::span<const TimeField> fields, bool longForm) {
    std::string text;
    for (const TimeField& field : fields) {
        const std::int64_t value = count / field.units;
        count %= field.units;
        const bool leadingZero = text.empty() && value == 0 && &field != &fields.back();
        if (leadingZero) continue;
        if (!text.empty()) text += ' ';
        text += Worded(std::to_string(value), field, longForm);
    }
    return text;
}

std::string ClockTime(std::int64_t count, std::span<const TimeField> fields, bool padHours) {
    std::string text;
    for (const TimeField& field : fields) {
        const bool hours = &field == &fields.front();
        if (!hours) text += ':';
        const std::int64_t value = count / field.units;
        if (value < 10 && (padHours || !hours)) text += '0';
        text += std::to_string(value);
        count %= field.units;
    }
    return text;
}

/// Settled units of the style, below one day.
std::string TimeText(double units, const TimeStyle& style, bool longForm) {
    const auto count = WholeNumber<std::int64_t>(units);
    switch (style.look) {
        case TimeLook::decimal: return Worded(FormatNumber(units, style.decimals), style.fields.front(), longForm);
        case TimeLook::worded: return WordedTime(count, style.fields, longForm);
        case TimeLook::clockUnpadded: return ClockTime(count, style.fields, false);
        case TimeLook::tenths: return ClockTime(count, style.fields, true) + "." + std::to_string(count % 10);
        default: return ClockTime(count, style.fields, true);
    }
}

/// Units of the style as they are shown: whole, or to its decimals.
double Settled(double units, const TimeStyle& style) {
    return style.decimals.empty() ? Round(units) : ParseNumber(FormatNumber(units, style.decimals)).value_or(units);
}

}  // namespace

std::string FormatTime(Moment x, int style, bool longForm) {
    if (isNever(x)) return "never";
    const TimeStyle& chosen = StyleOf(style);
    const double units = Settled(DayFraction(x) * chosen.unitsPerDay, chosen);
    return TimeText(units >= chosen.unitsPerDay ? 0 : units, chosen, longForm);
}

std::optional<double> ParseTimeOfDay(std::string_view text) {
    constexpr double limits[] = {24, 60, 60};
    constexpr double secondsIn[] = {3600, 60, 1};
    double seconds = 0;
    std::size_t field = 0;
    for (bool more = true; more; ++field) {
        const std::size_t colon = text.find(':');
        more = colon != std::string_view::npos;
        const auto number = field < std::size(limits) ? ParseNumber(text.substr(0, colon)) : std::nullopt;
        const bool fits = number && *number >= 0 && *number < limits[field];
        if (!fits || (field < 2 && *number != Floor(*number))) return std::nullopt;
        seconds += *number * secondsIn[field];
        text.remove_prefix(more ? colon + 1 : 0);
    }
    return field < 2 ? std::nullopt : std::optional(seconds / 86400);
}

std::string DurationString(double days, int style, bool longForm) {
    if (isNever(days)) return "never";
    const TimeStyle& chosen = StyleOf(style);
    const double settled = Settled(days * chosen.unitsPerDay, chosen) / chosen.unitsPerDay;
    const double whole = Floor(settled);
    const std::string rest = FormatTime(settled - whole, style, longForm);
    if (whole == 0) return rest;
    return Worded(GeneralText(whole), {1, "d", " day"}, longForm) + " " + rest;
}

std::string TimeOfDayFormat(double days) {
    if (isNever(days)) return "never";
    switch (time_text::options.TempHourFormat) {
        case 2: return FormatNumber(days * 1440, "0.0");
        case 3: return FormatNumber(days * 24, "0.00");
        default: return FormatTime(days, 9);
    }
}

namespace {

std::string WithSign(const std::string& size, bool negative) { return negative ? "-(" + size + ")" : size; }

}  // namespace

std::string AngleString(double degrees) {
    constexpr double tenthsOfCircle = 360 * 36000;
    const auto tenths = WholeNumber<std::int64_t>(Modulo(Round(std::fabs(degrees) * 36000), tenthsOfCircle));
    const std::string seconds = FormatNumber(static_cast<double>(tenths % 600) / 10, "00.0");
    const std::string minutes = FormatNumber(static_cast<double>(tenths / 600 % 60), "00");
    return WithSign(std::to_string(tenths / 36000) + "°" + minutes + "'" + seconds + "\"", degrees < 0);
}

std::string MinutesString(double hours) {
    return WithSign(FormatNumber(Round(std::fabs(hours) * 60), "0") + "m", hours < 0);
}

std::string FractionParts(std::int64_t numerator, std::int64_t denominator) {
    return "<small><sup>" + std::to_string(numerator) + "</sup></small>/<small><sub>" + std::to_string(denominator) +
           "</sub></small>";
}

std::string FractionText(std::int32_t whole, std::int32_t numerator, std::int32_t denominator, bool html) {
    const bool negative = Sign(whole) < 0 || Sign(numerator) * Sign(denominator) < 0;
    const std::int64_t units = std::abs(std::int64_t{whole});
    const std::int64_t divisor = GCD(numerator, denominator);
    if (units == 0 && numerator == 0) return "0";
    const std::int64_t above = divisor == 0 ? 0 : std::abs(numerator / divisor);
    const std::int64_t below = divisor == 0 ? 0 : std::abs(denominator / divisor);

    std::string text = units != 0 ? std::to_string(units) : "";
    if (above != 0) {
        if (units != 0) text += html ? "+" : " + ";
        text += html ? FractionParts(above, below) : std::to_string(above) + " / " + std::to_string(below);
    }
    if (!negative) return text;
    return (html ? "&ndash;" : "–") + (units != 0 && above != 0 ? "(" + text + ")" : text);
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) + 1 - first);
}

std::string_view FromCharacter(std::string_view text, int n) {
    int character = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool continuation = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
        if (!continuation && ++character == n) return text.substr(i);
    }
    return {};
}

std::string Elided(std::string_view text, std::size_t most) {
    const std::string_view rest = FromCharacter(text, static_cast<int>(most) + 1);
    if (rest.empty()) return std::string(text);
    const std::string_view last = FromCharacter(text, static_cast<int>(most));
    return std::string(text.substr(0, text.size() - last.size())) + "…";
}

namespace {

/// What no name holds: the controls, the ends of lines and paragraphs, and the marks that turn the direction of what
/// stands behind them.
constexpr std::pair<char32_t, char32_t> unnameable[] = {
    {0, 0x1F},        {0x7F, 0x9F},     {0x2028, 0x202E}, {0x2066, 0x2069},
    {0xD800, 0xDFFF}, {0xFDD0, 0xFDEF}, {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFF},
};

bool isNameable(char32_t c) {
    return c <= 0x10FFFF &&
           std::ranges::none_of(unnameable, [c](const auto& range) { return c >= range.first && c <= range.second; });
}

}  // namespace

Character FrontOf(std::string_view text) {
    struct Lead {
        unsigned char mask, bits;
        std::size_t bytes;
        char32_t least;
    };
    constexpr Lead leads[] = {{0x80, 0, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};
    const auto front = static_cast<unsigned char>(text.front());
    const auto* lead = std::ranges::find_if(leads, [front](const Lead& l) { return (front & l.mask) == l.bits; });
    if (lead == std::end(leads) || text.size() < lead->bytes) return {};
    auto code = static_cast<char32_t>(front & ~lead->mask);
    for (const char c : text.substr(1, lead->bytes - 1)) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) return {};
        code = code << 6 | (static_cast<unsigned char>(c) & 0x3F);
    }
    return code < lead->least ? Character() : Character{lead->bytes, code};
}

std::string NameText(std::string_view name) {
    constexpr int longest = 60;
    std::string text;
    while (!name.empty()) {
        const auto [bytes, code] = FrontOf(name);
        if (bytes == 1 && whiteSpace.find(name.front()) != std::string_view::npos) {
            text += ' ';
        } else if (code && isNameable(*code)) {
            text += name.substr(0, bytes);
        }
        name.remove_prefix(bytes);
    }
    const std::string_view trimmed = Trimmed(text);
    return std::string(Trimmed(trimmed.substr(0, trimmed.size() - FromCharacter(trimmed, longest + 1).size())));
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string result;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what)) {
        result.append(text.substr(0, at)).append(with);
        text.remove_prefix(at + what.size());
    }
    return result.append(text);
}

namespace {

bool TellsValue(std::string_view line) { return line.find(" = ") != std::string_view::npos; }

}  // namespace

std::string Unwrapped(std::string_view text) {
    constexpr std::size_t shortest = 45;  // bytes of a line that has been broken for its width
    constexpr std::string_view endings = ".:!?";
    std::string joined;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        joined += line;
        text = end == std::string_view::npos ? "" : text.substr(end + 1);
        if (end == std::string_view::npos) break;
        const bool listed = TellsValue(line) && TellsValue(text.substr(0, text.find('\n')));
        const bool endsHere = listed || line.size() < shortest || endings.find(line.back()) != std::string_view::npos;
        joined += endsHere || text.starts_with('\n') ? "\n" : " ";
    }
    return joined;
}

std::string NotText(std::string_view entry, std::string_view wanted) {
    constexpr std::size_t longest = 40;  // characters
    const std::string shown = Elided(Trimmed(entry), longest);
    return (shown.empty() ? "an empty text" : shown) + " is not " + std::string(wanted);
}

std::string RemoveAmpersands(std::string_view caption) { return ReplaceAll(caption, "&", ""); }

std::string UnderscoresToBlanks(std::string_view text) { return ReplaceAll(text, "_", " "); }

std::string WrapIfNotEmpty(std::string_view text, std::string_view prefix, std::string_view suffix,
                           std::string_view otherwise) {
    if (text.empty()) return std::string(otherwise);
    return std::string(prefix).append(text).append(suffix);
}

}  // namespace horvanta
