#pragma once

#include "core/numerics.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers, times and fractions as text, and the way back. Nothing here reads the machine's locale: the decimal mark
/// is always a point. Text is UTF-8, and positions in it count characters.
namespace horvanta {

// Numbers.

/// The shortest general text of at most 15 significant digits, as "739000.25" or "1e+20"; negative zero is "0".
std::string GeneralText(double x);

/// The general text of 17 significant digits, which reads back as the same double.
std::string ExactText(double x);

/// A number under a format of zeros: the zeros before the point are the least number of digits there, those behind it
/// the decimals, and a "%" at the end takes x times 100, as in "0", "00", "0.0", "0.00", "0.0%". Halves round away
/// from zero, decided on the 15-digit decimal text; what rounds to zero has no sign.
std::string FormatNumber(double x, std::string_view format);

/// The number that a text is, blanks around it aside. The minus sign may be "-", or a leading "—", "–" or "−" as
/// word processors write it. Nothing for any other text, and for a number past the range of doubles.
std::optional<double> ParseNumber(std::string_view text);

/// The number that a text begins with, blanks ahead of it aside; nothing if it begins with none.
std::optional<double> ParseLeadingNumber(std::string_view text);

/// "+" and the general text if x is zero or positive, else the general text alone.
std::string SignedStr(double x);

/// n with its English ending: 22nd. Only 11, 12 and 13 themselves take "th" against their last digit, so that 111 is
/// "111st". n is not negative; the ending of a negative n is "th".
std::string OrdinalString(std::int32_t n);

/// A blank and the ordinal of b - a; empty unless b exceeds a.
std::string OrdinalDiff(std::int32_t a, std::int32_t b);

// Times.

/// The time of day of a moment, "never" for `NeverMoment`. What rounds up to 24 hours reads as midnight.
///
/// | style | text at 5:11:20, short and long                                       |
/// |-------|-----------------------------------------------------------------------|
/// | 0     | 05:11:20                                                              |
/// | 1     | 5h 11m 20s, 5 hours 11 minutes 20 seconds                             |
/// | 2     | 05:11                                                                 |
/// | 3, 9  | 5:11                                                                  |
/// | 4     | 5h 11m, 5 hours 11 minutes                                            |
/// | 5     | 05:204, hours and parts of 1080 to the hour                           |
/// | 6     | 05:11:06, with parts of 18 to the minute, counted in moments of 76 to the part |
/// | 7     | 5h 11m 6p, 5 hours 11 minutes 6 parts                                 |
/// | 8     | as 7, counted in moments                                              |
/// | 10    | 5h 204p, 5 hours 204 parts                                            |
/// | 11    | 5:11:20                                                               |
/// | 12    | 311.3m, 311.3 minutes                                                 |
/// | 13    | 5.19h, 5.19 hours                                                     |
/// | 14    | 05:11:20.0                                                            |
///
/// The worded styles leave out leading fields that are zero. Any other style is 0.
std::string FormatTime(Moment x, int style, bool longForm = false);

/// The part of the day that a time tells as "5:11" or "05:11:20.5"; nothing for any other text.
std::optional<double> ParseTimeOfDay(std::string_view text);

/// A length of time in days: its whole days, if any, and the rest through `FormatTime`, rounded together.
std::string DurationString(double days, int style = 1, bool longForm = false);

namespace time_text {
struct Options {
    std::int32_t TempHourFormat = 1;  ///< 1 is hours and minutes, 2 minutes and 3 hours, both with decimals.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace time_text

/// The length of a temporal hour (in days) as the user wants it; "never" for `NeverMoment`.
std::string TimeOfDayFormat(double days);

// Angles and fractions.

/// An angle in degrees to tenths of an arc second, 12°34'56.7"; a negative one within "-(" and ")".
std::string AngleString(double degrees);

/// Hours as whole minutes, 90m; negative ones within "-(" and ")".
std::string MinutesString(double hours);

/// A whole number and a fraction in lowest terms, "3 + 1 / 4", or its form for web pages. A negative value has the sign
/// on the whole number and on the fraction; it is printed with a dash before, and in parentheses if it has both. Zero
/// is "0".
std::string FractionText(std::int32_t whole, std::int32_t numerator, std::int32_t denominator, bool html);

/// A fraction in small print for web pages.
std::string FractionParts(std::int64_t numerator, std::int64_t denominator);

// Text.

/// `text` without white space at its ends.
std::string_view Trimmed(std::string_view text);

/// The text from the n-th character on, the first being 1; empty if it has fewer.
std::string_view FromCharacter(std::string_view text, int n);

/// A character at the front of a text.
struct Character {
    std::size_t bytes = 1;         ///< How many it takes.
    std::optional<char32_t> code;  ///< None where no character begins.
};

/// The first character of a text that is not empty; one byte without a code where none begins.
Character FrontOf(std::string_view text);

/// The text within `most` characters: a longer one ends in "…".
std::string Elided(std::string_view text, std::size_t most);

/// A name that the user gave, as it can stand anywhere: trimmed, without control characters and bytes that are none of
/// a character, white space as blanks, at most 60 characters.
std::string NameText(std::string_view name);

/// Replaces every `what` in the text from left to right; an empty `what` changes nothing.
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);

/// A text whose lines were broken by hand for a certain width, with each paragraph in one line. A line that ends a
/// sentence or was short by itself stays one, and so do those that tell a value each.
std::string Unwrapped(std::string_view text);

/// What is said of an entry that is not what it should be: "abc is not a day number".
std::string NotText(std::string_view entry, std::string_view wanted);

/// A caption without the marks of its access key.
std::string RemoveAmpersands(std::string_view caption);

std::string UnderscoresToBlanks(std::string_view text);

/// prefix + text + suffix, or `otherwise` if the text is empty.
std::string WrapIfNotEmpty(std::string_view text, std::string_view prefix, std::string_view suffix,
                           std::string_view otherwise);

}  // namespace horvanta
