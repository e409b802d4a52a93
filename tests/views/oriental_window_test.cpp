#include "views/oriental_window.h"

#include "calendars/easter.h"
#include "desk_fixture.h"

#include <tuple>

namespace horvanta {
namespace {

class OrientalWindowTest : public DeskTest {
  protected:
    OrientalWindowTest() { desk.Obey("menu OrientCal"); }

    OrientalWindow& window_ = desk.program.oriental;
};

TEST_F(OrientalWindowTest, ShowsTheDateInEachCalendarAndLanguage) {
    constexpr std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
        {"0", " Year 4720, Leap 2nd Month, Day 15 ", " Year 4720, rùnyuè èryuè 15 ", "40/60 = 10-4 gui-mao, cycle 79",
         "Midnight Solar Longitude at Time Zone UT+8 = 14.6218°"},
        {"1", " Year 2683, Leap 2nd Month, Day 15 ", " Year 2683, + nigatsu 15 ",
         "40/60 = 10-4 ki/mizunoto-bo/u, cycle 79", "Midnight Solar Longitude at Time Zone UT+9 = 14.5807°"},
        {"2", " Year 4356, Leap 2nd Month, Day 15 ", " Year 4356, Leap Ee wol 15 ", "40/60 = 10-4 Gye-Myo, cycle 79",
         "Midnight Solar Longitude at Time Zone UT+9 = 14.5807°"},
        {"3", " Year 4720, Leap 2nd Month, Day 15 ", " Year 4720, nhuân Hai 15 ", "40/60 = 10-4 Quý-Mão, cycle 79",
         "Midnight Solar Longitude at Time Zone UT+7 = 14.6628°"},
    };
    Show(2023, 4, 5);
    for (const auto& [choice, english, national, year, midnight] : rows) {
        desk.Obey("choose Chinese.CalChoice " + std::string(choice));
        EXPECT_EQ(window_.TheOrientDate.text, english);
        EXPECT_EQ(window_.SLatMidnight.text, midnight);
        desk.Obey("click Chinese.UseEnglish");
        EXPECT_EQ(window_.TheOrientDate.text, national);
        EXPECT_EQ(window_.SexYear.text, year);
        desk.Obey("click Chinese.UseEnglish");
    }
    EXPECT_EQ(window_.LeapCheckbox.text, "Leap year");
    Show(1900, 1, 31);
    desk.Obey("choose Chinese.CalChoice 0");
    EXPECT_EQ(window_.SLatMidnight.text.find("Midnight Solar Longitude at Time Zone UT+7:45:40 = "), 0U);
    desk.Obey("click Chinese.SLatMidnight");
    EXPECT_GT(desk.Obey("asked").size(), window_.SLatMidnight.text.size() + 15);
    EXPECT_EQ(Events("Chinese").find("New Year Day"), 0U);
}

/// Each calendar wears its own colours, also those that were chosen for it, and the settings keep them all.
TEST_F(OrientalWindowTest, WearsTheColoursOfItsCalendar) {
    const auto background = [this] { return window_.TheOrientDate.colors->background.Number(); };
    EXPECT_EQ(background(), 255);
    desk.Obey("choose Chinese.CalChoice 2");
    EXPECT_EQ(background(), 16777215);
    Obey({"answer color 12345", "dblclick Chinese.TheOrientDate"});
    EXPECT_EQ(background(), 12345);
    desk.Obey("choose Chinese.CalChoice 3");
    EXPECT_EQ(background(), 65535);
    StoredSettings saved = LeftBy(desk);
    EXPECT_EQ(saved["Horvanta"]["Color"]["KorBC"], "12345");
    EXPECT_EQ(saved["Horvanta"]["Color"]["ChinBC"], "255");
    EXPECT_EQ(saved["Horvanta"]["Color"]["VietBC"], "65535");
    EXPECT_EQ(saved["Horvanta"]["Item"]["CCM"], "3");
}

TEST_F(OrientalWindowTest, CountsFromTheEraOfTheMenu) {
    Show(2024, 6, 1);
    desk.Obey("choose Monthly.Calendars 6");
    ASSERT_EQ(desk.program.monthly.Calendars.items[6], "Chinese");
    desk.Obey("menu CE2637");
    EXPECT_EQ(desk.program.monthly.ThisYear.text, "4661");
    EXPECT_TRUE(desk.program.frame.CE2637.isTicked());
    desk.Obey("menu CE2698");
    EXPECT_EQ(desk.program.monthly.ThisYear.text, "4722");
    desk.Obey("close Chinese");
    EXPECT_FALSE(desk.program.frame.CE2637.isEnabled());
}

/// From the 13th month of a year there is a way to the years beside it, which have 12.
TEST_F(OrientalWindowTest, TheGridStepsThroughALeapYear) {
    desk.Obey("choose Monthly.Calendars 6");
    MonthlyWindow& month = desk.program.monthly;
    Show(2024, 2, 5);
    EXPECT_EQ(month.MonthNames.items.size(), 13U);
    EXPECT_EQ(month.MonthNames.selected, 12);
    desk.Obey("click Monthly.ChangeByYear up");
    EXPECT_EQ(month.ThisYear.text, "4721");
    EXPECT_EQ(month.MonthNames.selected, 11);
    Show(2024, 2, 5);
    desk.Obey("click Monthly.NextMonth");
    EXPECT_EQ(month.ThisYear.text, "4721");
    EXPECT_EQ(month.MonthNames.selected, 0);
    desk.Obey("click Monthly.PrevMonth");
    EXPECT_EQ(month.MonthNames.selected, 12);
    desk.Obey("choose Monthly.MonthNames 2");
    EXPECT_EQ(month.MonthNames.items[2], "Leap 2nd");
}

TEST_F(OrientalWindowTest, HolidaysStandOut) {
    const Control& date = desk.program.gregorian.GregorianDate;
    const auto ink = [&date] { return date.colors->foreground; };
    desk.Obey("choose Monthly.Calendars 1");
    const auto& cells = desk.program.monthly.Days.cells;
    Show(2024, 12, 24);  // December begins on a Sunday
    EXPECT_EQ(ink(), Color{});
    EXPECT_EQ(cells[24].mark, Mark::Warm);
    EXPECT_EQ(cells[24].tooltip, "Christmas");
    EXPECT_EQ(cells[23].mark, Mark::None);
    Show(2024, 12, 25);
    EXPECT_GT(ink().red, ink().blue);
    EXPECT_EQ(date.tooltip, "Gregorian date (Christmas)");
    EXPECT_EQ(Events("Gregorian"), "Christmas; ");
    desk.Obey("menu SavePreferences");
    EXPECT_EQ(desk.desktop.settings.flushed["Horvanta"]["Color"]["GFC"], "0");
    Show(2024, 8, 5);
    EXPECT_GT(ink().blue, ink().red);
    Show(2024, 8, 6);
    EXPECT_EQ(ink(), Color{});
    EXPECT_EQ(date.tooltip, "Gregorian date");
}

TEST_F(OrientalWindowTest, UniformEasterMovesAndRenamesTheDaysAtOnce) {
    desk.Obey("menu JulianCal");
    Show(2024, 5, 5);
    EXPECT_EQ(Events("Julian"), "Orthodox Easter; ");
    desk.Obey("menu UniformEaster");
    EXPECT_EQ(Events("Julian"), "Uniform Rogation Sunday; ");
    EXPECT_EQ(Events("Gregorian"), "Uniform Rogation Sunday; Cinco de Mayo; ");
    Show(2024, 3, 31);
    EXPECT_EQ(Events("Julian"), "Uniform Easter; ");
    EXPECT_EQ(Events("Gregorian"), "Uniform Easter; ");
    EXPECT_EQ(Events("Quartane454"), "Uniform Easter; Fixed Palm Sunday; ");
}

}  // namespace
}  // namespace horvanta
