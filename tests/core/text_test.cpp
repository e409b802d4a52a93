#include "core/text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <random>

namespace horvanta {
namespace {

TEST(GeneralText, HasUpTo15Digits) {
    EXPECT_EQ(GeneralText(739000.25), "739000.25");
    EXPECT_EQ(GeneralText(0.1 + 0.2), "0.3");
    EXPECT_EQ(GeneralText(-0.0), "0");
    EXPECT_EQ(GeneralText(1e15), "1e+15");
    EXPECT_EQ(GeneralText(-2533803), "-2533803");
}

TEST(ExactText, ReadsBackAsTheSameDouble) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> day(-3e6, 5e6);
    for (int i = 0; i < 10'000; ++i) {
        const double x = day(random);
        EXPECT_EQ(ParseNumber(ExactText(x)), x);
    }
}

TEST(FormatNumber, RoundsHalvesAwayFromZeroOnTheDecimalText) {
    struct Row {
        double x;
        const char* format;
        const char* text;
    };
    constexpr Row rows[] = {
        {2.5, "0", "3"},
        {-2.5, "0", "-3"},
        {0.5, "0", "1"},
        {0.49, "0", "0"},
        {1.005, "0.00", "1.01"},
        {2.675, "0.00", "2.68"},
        {-0.04, "0.0", "0.0"},
        {0.05, "0.0", "0.1"},
        {9.95, "0.0", "10.0"},
        {99.5, "00", "100"},
        {7, "00", "07"},
        {-7, "00", "-07"},
        {0, "0.00", "0.00"},
        {0.125, "0.0%", "12.5%"},
        {1e20, "0", "100000000000000000000"},
        {123456.789, "0", "123457"},
        {1e-9, "0.00", "0.00"},
        {0.0449, "0.0", "0.0"},
    };
    for (const Row& row : rows) EXPECT_EQ(FormatNumber(row.x, row.format), row.text) << row.x << " " << row.format;
}

TEST(ParseNumber, TakesWholeDecimalNumbersOnly) {
    struct Row {
        const char* text;
        std::optional<double> number;
    };
    const Row rows[] = {
        {"1000", 1000},   {" 739000.25 ", 739000.25},
        {"-5", -5},       {"+5", 5},
        {".5", 0.5},      {"5.", 5},
        {"1e3", 1000},    {"—1000", -1000},
        {"–1000", -1000}, {"−1000", -1000},
        {"", {}},         {" ", {}},
        {"-", {}},        {"—", {}},
        {"+-5", {}},      {"--5", {}},
        {"12a", {}},      {"1 2", {}},
        {"1,5", {}},      {"nan", {}},
        {"-inf", {}},     {"0x10", {}},
        {"1e400", {}},    {"e5", {}},
        {"1e", {}},
    };
    for (const Row& row : rows) EXPECT_EQ(ParseNumber(row.text), row.number) << row.text;
    EXPECT_EQ(ParseNumber(std::string(5000, '9')), std::nullopt);
    EXPECT_EQ(ParseNumber("0." + std::string(5000, '3')), 1.0 / 3);
}

TEST(ParseLeadingNumber, ReadsAsFarAsTheNumberGoes) {
    EXPECT_EQ(ParseLeadingNumber("739000,25"), 739000);
    EXPECT_EQ(ParseLeadingNumber(" 12.5 days"), 12.5);
    EXPECT_EQ(ParseLeadingNumber("days"), std::nullopt);
    EXPECT_EQ(ParseLeadingNumber(""), std::nullopt);
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
    constexpr std::pair<int, const char*> rows[] = {
        {0, "0th"},   {1, "1st"},   {2, "2nd"},     {3, "3rd"},     {4, "4th"},     {11, "11th"}, {12, "12th"},
        {13, "13th"}, {22, "22nd"}, {111, "111st"}, {112, "112nd"}, {400, "400th"}, {-1, "-1th"}};
    for (const auto& [n, text] : rows) EXPECT_EQ(OrdinalString(n), text);
    EXPECT_EQ(OrdinalDiff(1867, 2017), " 150th");
    EXPECT_EQ(OrdinalDiff(5708, 5708), "");
}

TEST(FormatTime, HasALookForEachStyle) {
    constexpr double time = (5 * 3600 + 11 * 60 + 20) / 86400.0;
    struct Row {
        double x;
        int style;
        bool longForm;
        const char* text;
    };
    const Row rows[] = {
        {time, 0, false, "05:11:20"},
        {time, 1, false, "5h 11m 20s"},
        {time, 1, true, "5 hours 11 minutes 20 seconds"},
        {time, 2, false, "05:11"},
        {time, 3, false, "5:11"},
        {time, 4, false, "5h 11m"},
        {time, 5, false, "05:204"},
        {time, 6, false, "05:11:06"},
        {time, 7, true, "5 hours 11 minutes 6 parts"},
        {time, 8, false, "5h 11m 6p"},
        {time, 9, false, "5:11"},
        {time, 10, true, "5 hours 204 parts"},
        {time, 11, false, "5:11:20"},
        {time, 12, false, "311.3m"},
        {time, 13, true, "5.19 hours"},
        {time, 14, false, "05:11:20.0"},
        {time, 99, false, "05:11:20"},
        {1 / 24.0, 1, true, "1 hour 0 minutes 0 seconds"},
        {1 / 1440.0, 1, true, "1 minute 0 seconds"},
        {0, 1, false, "0s"},
        {-0.25, 2, false, "18:00"},
        {739000.5, 0, false, "12:00:00"},
    };
    for (const Row& row : rows) EXPECT_EQ(FormatTime(row.x, row.style, row.longForm), row.text) << row.style;
}

TEST(FormatTime, NeverReads24Hours) {
    constexpr const char* midnights[] = {"00:00:00", "0s",   "00:00", "0:00",    "0m",   "00:00", "00:00:00",  "0p",
                                         "0p",       "0:00", "0p",    "0:00:00", "0.0m", "0.00h", "00:00:00.0"};
    for (int style = 0; style < 15; ++style) {
        EXPECT_EQ(FormatTime(0.99999999, style), midnights[style]) << style;
        EXPECT_EQ(FormatTime(NeverMoment, style), "never") << style;
    }
}

TEST(DurationString, RoundsDaysAndRestTogether) {
    EXPECT_EQ(DurationString(12.5, 4), "12d 12h 0m");
    EXPECT_EQ(DurationString(1.25, 4, true), "1 day 6 hours 0 minutes");
    EXPECT_EQ(DurationString(0.25, 2), "06:00");
    EXPECT_EQ(DurationString(2.99999999, 2), "3d 00:00");
    EXPECT_EQ(DurationString(NeverMoment), "never");
}

TEST(TimeOfDayFormat, FollowsTheOption) {
    const std::int32_t before = TempHourFormat;
    constexpr const char* texts[] = {"1:05", "65.4", "1.09"};
    for (TempHourFormat = 1; TempHourFormat <= 3; ++TempHourFormat) {
        EXPECT_EQ(TimeOfDayFormat(65.4 / 1440), texts[TempHourFormat - 1]);
        EXPECT_EQ(TimeOfDayFormat(NeverMoment), "never");
    }
    TempHourFormat = before;
}

TEST(Angles, WrapTheirSign) {
    EXPECT_EQ(AngleString(12.582417), "12°34'56.7\"");
    EXPECT_EQ(AngleString(-0.5), "-(0°30'00.0\")");
    EXPECT_EQ(AngleString(359.99999999), "0°00'00.0\"");
    EXPECT_EQ(MinutesString(-1.5), "-(90m)");
}

TEST(FractionText, IsInLowestTerms) {
    EXPECT_EQ(FractionText(365, 97, 400, false), "365 + 97 / 400");
    EXPECT_EQ(FractionText(0, 6, 8, false), "3 / 4");
    EXPECT_EQ(FractionText(3, 0, 5, false), "3");
    EXPECT_EQ(FractionText(0, 0, 5, false), "0");
    EXPECT_EQ(FractionText(-3, -2, 8, false), "–(3 + 1 / 4)");
    EXPECT_EQ(FractionText(0, -1, 4, false), "–1 / 4");
    EXPECT_EQ(FractionText(-3, -1, 4, true), "&ndash;(3+<small><sup>1</sup></small>/<small><sub>4</sub></small>)");
}

TEST(Text, IsCountedInCharacters) {
    EXPECT_EQ(FromCharacter("Gregorian day 15+351=366", 15), "15+351=366");
    EXPECT_EQ(FromCharacter("–é°x", 4), "x");
    EXPECT_EQ(FromCharacter("abc", 4), "");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(WrapIfNotEmpty("", "(", ")", "none"), "none");
    EXPECT_EQ(WrapIfNotEmpty("x", "(", ")", "none"), "(x)");
}

}  // namespace
}  // namespace horvanta
