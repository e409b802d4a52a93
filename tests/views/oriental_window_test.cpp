#include "views/oriental_window.h"

#include "calendars/easter.h"
#include "calendars/gregorian.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "desk.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

/// The day's events of one calendar.
std::string Events(std::string_view calendar) {
    std::string texts;
    for (const day_events::Event& event : day_events::List()) {
        if (event.calendar == calendar) texts += event.text + ";";
    }
    return texts;
}

class OrientalWindowTest : public testing::Test {
  protected:
    OrientalWindowTest() { desk_.Obey("menu OrientCal"); }

    void Show(int year, int month, int day) {
        DisplayedMoment = GregorianToFixed(year, month, day) + 0.5;
        UpdateStatus();
    }

    Desk desk_;
    OrientalWindow& window_ = desk_.program.oriental;
};

TEST_F(OrientalWindowTest, ShowsTheDateInEachCalendarAndLanguage) {
    struct Row {
        const char *choice, *caption, *english, *national, *year, *midnight;
    };
    constexpr Row rows[] = {
        {"0", "Chinese Lunisolar", " Year 4720, Leap 2nd Month, Day 15 ", " Year 4720, rùnyuè èryuè 15 ",
         "40/60 = 10-4 gui-mao, cycle 79", "Midnight Solar Longitude at Time Zone UT+8 = 14.6218°"},
        {"1", "Japanese Lunisolar", " Year 2683, Leap 2nd Month, Day 15 ", " Year 2683, + nigatsu 15 ",
         "40/60 = 10-4 ki/mizunoto-bo/u, cycle 79", "Midnight Solar Longitude at Time Zone UT+9 = 14.5807°"},
        {"2", "Korean Lunisolar", " Year 4356, Leap 2nd Month, Day 15 ", " Year 4356, Leap Ee wol 15 ",
         "40/60 = 10-4 Gye-Myo, cycle 79", "Midnight Solar Longitude at Time Zone UT+9 = 14.5807°"},
        {"3", "Vietnamese Lunisolar", " Year 4720, Leap 2nd Month, Day 15 ", " Year 4720, nhuân Hai 15 ",
         "40/60 = 10-4 Quý-Mão, cycle 79", "Midnight Solar Longitude at Time Zone UT+7 = 14.6628°"},
    };
    Show(2023, 4, 5);
    for (const Row& row : rows) {
        desk_.Obey("choose Chinese.CalChoice " + std::string(row.choice));
        EXPECT_EQ(window_.form.text, row.caption);
        EXPECT_EQ(window_.TheOrientDate.text, row.english);
        EXPECT_EQ(window_.SLatMidnight.text, row.midnight);
        desk_.Obey("click Chinese.UseEnglish");
        EXPECT_EQ(window_.TheOrientDate.text, row.national);
        EXPECT_EQ(window_.SexYear.text, row.year);
        desk_.Obey("click Chinese.UseEnglish");
    }
    EXPECT_EQ(window_.LeapCheckbox.text, "Leap year");
    Show(1900, 1, 31);
    desk_.Obey("choose Chinese.CalChoice 0");
    EXPECT_EQ(window_.SLatMidnight.text.find("Midnight Solar Longitude at Time Zone UT+7:45:40 = "), 0U);
    desk_.Obey("click Chinese.SLatMidnight");
    EXPECT_GT(desk_.Obey("asked").size(), window_.SLatMidnight.text.size() + 15);
    EXPECT_EQ(Events("Chinese").find("New Year Day"), 0U);
}

/// Each calendar wears its own colours, also those that were chosen for it, and the settings keep them all.
TEST_F(OrientalWindowTest, WearsTheColoursOfItsCalendar) {
    const auto background = [this] { return window_.TheOrientDate.colors->background.Number(); };
    EXPECT_EQ(background(), 255);
    desk_.Obey("choose Chinese.CalChoice 2");
    EXPECT_EQ(background(), 16777215);
    desk_.Obey("answer color 12345");
    desk_.Obey("dblclick Chinese.TheOrientDate");
    EXPECT_EQ(background(), 12345);
    desk_.Obey("choose Chinese.CalChoice 3");
    EXPECT_EQ(background(), 65535);
    desk_.Obey("menu MenuExit");
    StoredSettings saved = desk_.desktop.settings.flushed;
    EXPECT_EQ(saved["Horvanta"]["Color"]["KorBC"], "12345");
    EXPECT_EQ(saved["Horvanta"]["Color"]["ChinBC"], "255");
    EXPECT_EQ(saved["Horvanta"]["Color"]["VietBC"], "65535");
    EXPECT_EQ(saved["Horvanta"]["Item"]["CCM"], "3");
}

TEST_F(OrientalWindowTest, CountsFromTheEraOfTheMenu) {
    Show(2024, 6, 1);
    desk_.Obey("choose Monthly.Calendars 6");
    ASSERT_EQ(desk_.program.monthly.Calendars.items[6], "Chinese");
    desk_.Obey("menu CE2637");
    EXPECT_EQ(desk_.program.monthly.ThisYear.text, "4661");
    EXPECT_TRUE(desk_.program.frame.CE2637.isTicked());
    desk_.Obey("menu CE2698");
    EXPECT_EQ(desk_.program.monthly.ThisYear.text, "4722");
    desk_.Obey("close Chinese");
    EXPECT_FALSE(desk_.program.frame.CE2637.isEnabled());
}

/// From the 13th month of a year there is a way to the years beside it, which have 12.
TEST_F(OrientalWindowTest, TheGridStepsThroughALeapYear) {
    desk_.Obey("choose Monthly.Calendars 6");
    MonthlyWindow& month = desk_.program.monthly;
    Show(2024, 2, 5);
    EXPECT_EQ(month.MonthNames.items.size(), 13U);
    EXPECT_EQ(month.MonthNames.selected, 12);
    desk_.Obey("click Monthly.ChangeByYear up");
    EXPECT_EQ(month.ThisYear.text, "4721");
    EXPECT_EQ(month.MonthNames.selected, 11);
    Show(2024, 2, 5);
    desk_.Obey("click Monthly.NextMonth");
    EXPECT_EQ(month.ThisYear.text, "4721");
    EXPECT_EQ(month.MonthNames.selected, 0);
    desk_.Obey("click Monthly.PrevMonth");
    EXPECT_EQ(month.MonthNames.selected, 12);
    desk_.Obey("choose Monthly.MonthNames 2");
    EXPECT_EQ(month.MonthNames.items[2], "Leap 2nd");
}

TEST_F(OrientalWindowTest, HolidaysStandOut) {
    const Control& date = desk_.program.gregorian.GregorianDate;
    const auto ink = [&date] { return date.colors->foreground; };
    desk_.Obey("choose Monthly.Calendars 1");
    const auto& cells = desk_.program.monthly.Days.cells;
    Show(2024, 12, 24);  // December begins on a Sunday
    EXPECT_EQ(ink(), Color{});
    EXPECT_EQ(cells[24].mark, Mark::Warm);
    EXPECT_EQ(cells[24].tooltip, "Christmas");
    EXPECT_EQ(cells[23].mark, Mark::None);
    Show(2024, 12, 25);
    EXPECT_GT(ink().red, ink().blue);
    EXPECT_EQ(date.tooltip, "Gregorian date (Christmas)");
    EXPECT_EQ(Events("Gregorian"), "Christmas;");
    desk_.Obey("menu SavePreferences");
    EXPECT_EQ(desk_.desktop.settings.flushed["Horvanta"]["Color"]["GFC"], "0");
    Show(2024, 8, 5);
    EXPECT_GT(ink().blue, ink().red);
    Show(2024, 8, 6);
    EXPECT_EQ(ink(), Color{});
    EXPECT_EQ(date.tooltip, "Gregorian date");
}

TEST_F(OrientalWindowTest, UniformEasterMovesAndRenamesTheDaysAtOnce) {
    desk_.Obey("menu JulianCal");
    Show(2024, 5, 5);
    EXPECT_EQ(Events("Julian"), "Orthodox Easter;");
    desk_.Obey("menu UniformEaster");
    EXPECT_EQ(Events("Julian"), "Uniform Rogation Sunday;");
    EXPECT_EQ(Events("Gregorian"), "Uniform Rogation Sunday;Cinco de Mayo;");
    Show(2024, 3, 31);
    EXPECT_EQ(Events("Julian"), "Uniform Easter;");
    EXPECT_EQ(Events("Gregorian"), "Uniform Easter;");
    EXPECT_EQ(Events("Quartane454"), "Uniform Easter;Fixed Palm Sunday;");
}

}  // namespace
}  // namespace horvanta
