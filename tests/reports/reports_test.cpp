#include "core/moment.h"
#include "core/text.h"
#include "hebrew/hebrew_arithmetic.h"
#include "locale/presets.h"
#include "reports/omer_count.h"
#include "reports/postponements.h"
#include "reports/weekday_frequencies.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <utility>

namespace horvanta {
namespace {

/// The calendar in whole parts of 1080 to the hour, from the 6 pm before the epoch's day on.
struct MoladOfYear {
    explicit MoladOfYear(std::int64_t hebrewYear) : year(hebrewYear), months((235 * year - 234) / 19) {
        const std::int64_t parts = 5 * 1080 + 204 + months * 765433;
        day = parts / 25920;
        rest = parts % 25920;
        weekday = (day + 1) % 7;  // the first molad came on a Monday
    }

    bool isLeap() const { return (7 * year + 1) % 19 < 7; }

    std::int64_t year, months, day, rest, weekday;
};

/// The rules as they are taught, by which a new year is moved, and by how many days.
std::pair<std::string, std::int64_t> Postponed(std::int64_t year) {
    const MoladOfYear molad(year);
    const bool isLate = molad.rest >= 18 * 1080;
    const std::int64_t weekday = (molad.weekday + isLate) % 7;
    if (weekday == 0 || weekday == 3 || weekday == 5) return {isLate ? "12" : "2", isLate + 1};
    if (isLate) return {"1", 1};
    if (weekday == 2 && !molad.isLeap() && molad.rest >= 9 * 1080 + 204) return {"3", 2};
    if (weekday == 1 && MoladOfYear(year - 1).isLeap() && molad.rest >= 15 * 1080 + 589) return {"4", 1};
    return {"", 0};
}

std::int64_t NewYear(std::int64_t year) { return MoladOfYear(year).day + Postponed(year).second; }

std::string Texts(const ReportRow& row, std::size_t from, std::size_t to) {
    std::string text;
    for (std::size_t i = from; i < to; ++i) text += row[i].text + ";";
    return text;
}

TEST(Reports, PostponementsFollowTheRulesUnderAnyNumbering) {
    for (const double dayOne : {1.0, -1721425.0}) {
        SetFixedDayEpoch(GregorianEpoch + dayOne, 1, "");
        DisplayedMoment = HebrewNewYear(5300) - 0.5;
        const Report report = ReportPostponements(1000);
        ASSERT_EQ(report.length, 1000);
        for (std::int32_t index = 0; index < report.length; ++index) {
            const std::int64_t year = 5299 + index;
            const MoladOfYear molad(year);
            const auto [codes, delay] = Postponed(year);
            const ReportRow row = report.row(index);
            std::string expected;
            for (const std::int64_t number :
                 {year, (year + 18) % 19 + 1, molad.months, molad.day + 1, molad.weekday + 1, molad.rest / 1080,
                  molad.rest % 1080, delay, NewYear(year + 1) - NewYear(year)}) {
                expected += std::to_string(number) + ";";
            }
            ASSERT_EQ(Texts(row, 0, 9), expected);
            std::string marks;
            for (std::size_t rule = 1; rule <= 4; ++rule)
                marks += row[10 + rule].text.empty() ? "" : std::to_string(rule);
            ASSERT_EQ(marks, codes) << year;
            ASSERT_EQ(row[15].text == "on the day of the <i>molad</i>", codes.empty()) << row[15].text;
            ASSERT_EQ(row[15].text.find("and then postponed from ") != std::string::npos, codes == "12") << year;
        }
    }
    SetFixedDayEpoch(Epoch{0}, 1, "rata die");
}

TEST(Reports, TheOmerIsCountedFromTheSecondNightOfPassoverToShavuot) {
    DisplayedMoment = HebrewNewYear(5785) - 0.25;  // still 5784
    const Report israel = ReportOmerCount(PresetLocale("Jerusalem"));
    const Report diaspora = ReportOmerCount(PresetLocale("Times Square"));
    EXPECT_EQ(israel.fileName, "Omer Count 5784 Israel");
    EXPECT_EQ(diaspora.heading, "Omer Count for Hebrew Year 5784 (Outside Israel)");
    EXPECT_EQ(Texts(diaspora.row(0), 0, 4),
              "Tuesday, April 23, 2024 night;Yom Rivii, 16 Nisan, 5784;1st day of the Omer;Passover 2;");
    EXPECT_EQ(israel.row(0)[3].text, "");
    EXPECT_EQ(Texts(israel.row(49), 0, 4), "Tuesday, June 11, 2024 night;Yom Rivii, 6 Sivan, 5784;;Shavuot;");
    for (std::int32_t night = 0; night < 49; ++night) {
        EXPECT_TRUE(israel.row(night)[2].text.starts_with(OrdinalString(night + 1) + " day of the Omer")) << night;
    }
}

TEST(Reports, WeekdaysOfADayAddUpToAllYearsThatHaveIt) {
    const Report report = ListPossibleWeekdayStats();
    std::map<std::string, std::string> totals;
    std::set<std::pair<std::string, std::string_view>> shades;  // each share has one of its own
    for (std::int32_t index = 0; index < report.length; ++index) {
        const ReportRow row = report.row(index);
        double sum = 0;
        for (std::size_t weekday = 2; weekday < 9; ++weekday) {
            sum += *ParseNumber(row[weekday].text);
            shades.emplace(row[weekday].below, row[weekday].background);
        }
        EXPECT_EQ(GeneralText(sum), row[9].text) << Texts(row, 0, 10);
        totals[row[0].text] = row[9].text;
    }
    std::set<std::string_view> different;
    for (const auto& [share, shade] : shades) EXPECT_TRUE(different.insert(shade).second) << share;
    ASSERT_EQ(totals.size(), 16U);
    for (const auto& [month, total] : totals) {
        const bool isCommon = month == "<i>Adar</i>";
        const bool isLeap = month == "<i>Adar Rishon</i>" || month == "<i>Adar Sheini</i>";
        EXPECT_EQ(total, isCommon ? "435456" : isLeap ? "254016" : "689472") << month;
    }
}

}  // namespace
}  // namespace horvanta
