#include "views/gregorian_window.h"

#include "core/day_events.h"
#include "core/moment.h"
#include "desk.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace horvanta {
namespace {

class GregorianWindowTest : public testing::Test {
  protected:
    void Show(int year, int month, int day) {
        DisplayedMoment = GregorianToFixed(year, month, day) + 0.5;
        UpdateStatus();
    }

    Desk desk_;
    GregorianWindow& window_ = desk_.program.gregorian;
};

TEST_F(GregorianWindowTest, ShowsTheDateInBothCalendars) {
    struct Row {
        int year, month, day;
        const char *date, *yearDay, *letters, *cycle, *iso, *isoDay;
    };
    constexpr Row rows[] = {
        {2024, 1, 15, "Monday, January 15, 2024 ", "Gregorian day 15+351=366", "GF", "24th year of 6th cycle AD",
         "2024-W03-1 ", "ISO day 15+349=364"},
        {2000, 12, 31, "Sunday, December 31, 2000 ", "Gregorian day 366+0=366", "BA", "400th year of 5th cycle AD",
         "2000-W52-7 ", "ISO day 364+0=364"},
        {2021, 1, 3, "Sunday, January 3, 2021 ", "Gregorian day 3+362=365", "C", "21st year of 6th cycle AD",
         "2020-W53-7 ", "ISO day 371+0=371"},
        {0, 3, 1, "Wednesday, March 1, 0 ", "Gregorian day 61+305=366", "BA", "400th year of 1st cycle BC", "0-W09-3 ",
         "ISO day 59+305=364"},
        {-399, 1, 1, "Monday, January 1, -399 ", "Gregorian day 1+364=365", "G", "1st year of 1st cycle BC",
         "-399-W01-1 ", "ISO day 1+363=364"},
        {-400, 1, 1, "Saturday, January 1, -400 ", "Gregorian day 1+365=366", "BA", "400th year of 2nd cycle BC",
         "-401-W52-6 ", "ISO day 363+1=364"},
        {112, 1, 1, "Friday, January 1, 112 ", "Gregorian day 1+365=366", "CB", "112nd year of 1st cycle AD",
         "111-W53-5 ", "ISO day 369+2=371"},
    };
    for (const Row& row : rows) {
        Show(row.year, row.month, row.day);
        EXPECT_EQ(window_.GregorianDate.text, row.date);
        EXPECT_EQ(window_.DayNumInGregYear.text, row.yearDay) << row.date;
        EXPECT_EQ(window_.Dominical.text, row.letters) << row.date;
        EXPECT_EQ(window_.GregCycleInfo.text, row.cycle) << row.date;
        EXPECT_EQ(window_.TheISOdate.text, row.iso) << row.date;
        EXPECT_EQ(window_.isoOrdinalDay.text, row.isoDay) << row.date;
    }
}

TEST_F(GregorianWindowTest, PostsTheISOEvents) {
    Show(2024, 1, 1);
    EXPECT_EQ(desk_.Obey("events ISO"), R"("ISO" "2024-W01-1" "Begin ISO Year 2024")");
    Show(2020, 12, 28);
    EXPECT_EQ(desk_.Obey("events ISO"), R"("ISO" "2020-W53-1" "ISO Standard Leap Week")");
    const auto& events = day_events::List();
    const auto iso = std::ranges::find(events, "ISO", &day_events::Event::calendar);
    EXPECT_EQ(iso->colors, window_.TheISOdate.colors);
    Show(2024, 6, 1);
    EXPECT_EQ(desk_.Obey("events ISO"), "none");
}

TEST_F(GregorianWindowTest, CopiesWhatIsClicked) {
    Show(2024, 1, 15);
    constexpr std::pair<const char*, const char*> rows[] = {
        {"GregorianDate", R"(clipboard "Monday, January 15, 2024 ")"},
        {"DayNumInGregYear", R"(clipboard "15+351=366")"},
        {"Dominical", R"(clipboard "GF")"},
        {"GregCycleInfo", R"(clipboard "Gregorian year 2024 (leap) = 24th year of 6th 400-year cycle AD")"},
        {"TheISOdate", R"(clipboard "2024-W03-1 ")"},
        {"isoOrdinalDay", R"(clipboard "15+349=364")"},
    };
    for (const auto& [control, copied] : rows) {
        desk_.Obey("click Gregorian." + std::string(control));
        EXPECT_EQ(desk_.Obey("asked"), copied);
    }
    EXPECT_EQ(desk_.program.timeAstro.ClipBoardStatus.text, "15+349=364");
    desk_.Obey("click TimeAstro.ClipBoardStatus");
    EXPECT_EQ(desk_.Obey("asked"), R"(clipboard "")");
    EXPECT_EQ(desk_.program.timeAstro.ClipBoardStatus.text, "");
}

TEST_F(GregorianWindowTest, OffersItsInformationForCopying) {
    desk_.Obey("click Gregorian.InfoGreg");
    EXPECT_EQ(desk_.desktop.asked.size(), 1U);
    EXPECT_EQ(desk_.desktop.focused, &desk_.program.timeAstro.FixedDayNum);
    desk_.Obey("answer yes");
    desk_.Obey("click Gregorian.isoInfo");
    const std::string asked = desk_.Obey("asked");
    EXPECT_NE(asked.find("clipboard \"The International Organization"), std::string::npos);
    EXPECT_EQ(desk_.program.timeAstro.ClipBoardStatus.text.find('\n'), std::string::npos);
}

TEST_F(GregorianWindowTest, IsColouredFromItsMainDate) {
    desk_.Obey("answer color 65280");  // green
    desk_.Obey("dblclick Gregorian.GregorianDate");
    desk_.Obey("dblclick Gregorian.GregorianDate");  // cancelled
    EXPECT_EQ(desk_.Obey("asked"), "color 12642289 65280; color 65280 cancel");
    const ColorPair green{{0, 255, 0}, {0, 0, 0}};
    EXPECT_EQ(window_.GregorianDate.colors, green);
    EXPECT_EQ(window_.GregCycleInfo.colors, green);
    EXPECT_EQ(window_.TheISOdate.colors, (ColorPair{{48, 207, 48}, {48, 48, 48}}));
}

TEST_F(GregorianWindowTest, AnswersToMonthGrids) {
    DisplayedMoment = GregorianToFixed(2020, 12, 31);
    EXPECT_EQ(desk_.Obey("call Gregorian.GetDateAlt"), "year=2020 month=13 day=32 monthLength=35 firstWeekday=0");
    EXPECT_TRUE(desk_.Obey("call Gregorian.SetMonthNamesAlt").ends_with(R"("Week 49-End"; selected=12)"));
    EXPECT_TRUE(desk_.Obey("call Gregorian.SetDayNamesAlt").starts_with(R"("Monday"; "Tuesday")"));
    EXPECT_TRUE(desk_.Obey("call Gregorian.SetDayNames").starts_with(R"("Sunday"; "Monday")"));
}

}  // namespace
}  // namespace horvanta
