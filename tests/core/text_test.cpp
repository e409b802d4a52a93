#include "core/text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <tuple>

namespace horvanta {
namespace {

TEST(GeneralText, HasUpTo15Digits) {
    constexpr std::pair<double, const char*> rows[] = {
        {739000.25, "739000.25"}, {0.1 + 0.2, "0.3"}, {-0.0, "0"}, {1e15, "1e+15"}, {-2533803, "-2533803"}};
    for (const auto& [x, text] : rows) EXPECT_EQ(GeneralText(x), text);
}

TEST(FormatNumber, RoundsHalvesAwayFromZeroOnTheDecimalText) {
    constexpr std::tuple<double, const char*, const char*> rows[] = {
        {2.5, "0", "3"},        {-2.5, "0", "-3"},       {0.5, "0", "1"},
        {0.49, "0", "0"},       {1.005, "0.00", "1.01"}, {2.675, "0.00", "2.68"},
        {-0.04, "0.0", "0.0"},  {9.95, "0.0", "10.0"},   {99.5, "00", "100"},
        {-7, "00", "-07"},      {0, "0.00", "0.00"},     {0.125, "0.0%", "12.5%"},
        {1e-9, "0.00", "0.00"}, {0.0449, "0.0", "0.0"},  {1e20, "0", "100000000000000000000"}};
    for (const auto& [x, format, text] : rows) EXPECT_EQ(FormatNumber(x, format), text) << x << " " << format;
}

TEST(ParseNumber, TakesWholeDecimalNumbersOnly) {
    constexpr std::pair<const char*, double> rows[] = {
        {" 739000.25 ", 739000.25}, {"+5", 5},        {".5", 0.5},     {"5.", 5}, {"1e3", 1000},
        {"—1000", -1000},           {"–1000", -1000}, {"−1000", -1000}};
    for (const auto& [text, number] : rows) EXPECT_EQ(ParseNumber(text), number) << text;
    for (const char* text :
         {"", " ", "-", "—", "+-5", "--5", "12a", "1 2", "1,5", "nan", "-inf", "0x10", "1e400", "e5", "1e"})
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
    EXPECT_EQ(ParseNumber(std::string(5000, '9')), std::nullopt);
    EXPECT_EQ(ParseNumber("0." + std::string(5000, '3')), 1.0 / 3);
    EXPECT_EQ(ParseLeadingNumber("739000,25"), 739000);
}

TEST(Text, KnowsNoLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "");  // the user's, as a desktop toolkit sets it
    EXPECT_EQ(GeneralText(0.5), "0.5");
    EXPECT_EQ(FormatNumber(1234.5, "0.0"), "1234.5");
    EXPECT_EQ(ParseNumber("0.5"), 0.5);
    EXPECT_EQ(Floor(2.9999999999999996), 3);
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(Ordinals, LookAtTheNumberItselfFor11To13) {
    constexpr std::pair<int, const char*> rows[] = {{0, "0th"},   {1, "1st"},   {3, "3rd"},     {11, "11th"},
                                                    {13, "13th"}, {22, "22nd"}, {112, "112nd"}, {-1, "-1th"}};
    for (const auto& [n, text] : rows) EXPECT_EQ(OrdinalString(n), text);
}

/// A time and what just falls short of midnight, which never reads 24 hours.
TEST(FormatTime, HasALookForEachStyle) {
    constexpr double time = (5 * 3600 + 11 * 60 + 20) / 86400.0;
    // clang-format off
    constexpr std::pair<const char*, const char*> texts[] = {
        {"05:11:20", "00:00:00"}, {"5h 11m 20s", "0s"}, {"05:11", "00:00"}, {"5:11", "0:00"}, {"5h 11m", "0m"},
        {"05:204", "00:00"}, {"05:11:06", "00:00:00"}, {"5h 11m 6p", "0p"}, {"5h 11m 6p", "0p"}, {"5:11", "0:00"},
        {"5h 204p", "0p"}, {"5:11:20", "0:00:00"}, {"311.3m", "0.0m"}, {"5.19h", "0.00h"}, {"05:11:20.0", "00:00:00.0"}};
    // clang-format on
    for (int style = 0; style < 15; ++style) {
        EXPECT_EQ(FormatTime(time, style), texts[style].first) << style;
        EXPECT_EQ(FormatTime(0.99999999, style), texts[style].second) << style;
        EXPECT_EQ(FormatTime(NeverMoment, style), "never") << style;
    }
    EXPECT_EQ(FormatTime(time, 7, true), "5 hours 11 minutes 6 parts");
    EXPECT_EQ(FormatTime(-0.25, 2), "18:00");
}

TEST(DurationString, RoundsDaysAndRestTogether) {
    EXPECT_EQ(DurationString(1.25, 4, true), "1 day 6 hours 0 minutes");
    EXPECT_EQ(DurationString(2.99999999, 2), "3d 00:00");
    EXPECT_EQ(DurationString(NeverMoment), "never");
}

TEST(AngleString, WrapsItsSign) {
    EXPECT_EQ(AngleString(-12.582417), "-(12°34'56.7\")");
    EXPECT_EQ(AngleString(359.99999999), "0°00'00.0\"");
}

TEST(FractionText, IsInLowestTerms) {
    EXPECT_EQ(FractionText(3, 0, 5, false), "3");
    EXPECT_EQ(FractionText(365, 97, 400, false), "365 + 97 / 400");
    EXPECT_EQ(FractionText(-3, -2, 8, false), "–(3 + 1 / 4)");
    EXPECT_EQ(FractionText(-3, -1, 4, true), "&ndash;(3+<small><sup>1</sup></small>/<small><sub>4</sub></small>)");
}

TEST(Text, IsCountedInCharacters) {
    EXPECT_EQ(FromCharacter("Gregorian day 15+351=366", 15), "15+351=366");
    EXPECT_EQ(FromCharacter("–é°x", 4), "x");
}

/// Whatever was typed, pasted or left in a damaged file.
TEST(NameText, CanStandAnywhere) {
    constexpr std::pair<const char*, const char*> rows[] = {{"  Kfar Saba\t\n", "Kfar Saba"},
                                                            {"a\tb\nc", "a b c"},
                                                            {"a\x01\x7F\xC2\x85\xE2\x80\xA8z", "az"},
                                                            {"\xE2\x80\xAE moc", "moc"},
                                                            {"\xFF\xC0\xAF\xED\xA0\x80é", "é"},
                                                            {"ירושלים\xD7", "ירושלים"},
                                                            {" \x01 ", ""},
                                                            {"<b>&[*]\"", "<b>&[*]\""}};
    for (const auto& [name, text] : rows) EXPECT_EQ(NameText(name), text);
    const std::string letters(59, 'x');
    EXPECT_EQ(NameText(letters + " é, and more"), letters);
    EXPECT_EQ(Elided("ירושלים", 4), "ירו…");
}

TEST(Text, JoinsTheLinesOfAParagraph) {
    constexpr std::pair<const char*, const char*> rows[] = {
        {"A line that was broken by hand for a narrow window,\nand its rest.\nAnother.",
         "A line that was broken by hand for a narrow window, and its rest.\nAnother."},
        {"A line that was not broken by hand, but ends a part,\n\nA paragraph.",
         "A line that was not broken by hand, but ends a part,\n\nA paragraph."},
        {"Saturday = Shanbeh\nSunday = Yek-shanbeh\n", "Saturday = Shanbeh\nSunday = Yek-shanbeh\n"},
    };
    for (const auto& [text, unwrapped] : rows) EXPECT_EQ(Unwrapped(text), unwrapped);
}

}  // namespace
}  // namespace horvanta
