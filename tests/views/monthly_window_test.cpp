#include "views/monthly_window.h"

#include "calendars/typed_dates.h"
#include "desk_fixture.h"

#include <algorithm>
#include <tuple>

namespace horvanta {
namespace {

using Monthly = DeskTest;

/// Whatever the calendar and the day: each day of the month stands in one cell, under its weekday, and a click on a
/// cell goes there at the same time of day.
TEST_F(Monthly, ShowsEachDayOnceUnderItsWeekday) {
    MonthlyWindow& month = desk.program.monthly;
    for (std::size_t calendar = 0; calendar < month.Calendars.items.size(); ++calendar) {
        desk.Obey("choose Monthly.Calendars " + std::to_string(calendar));
        std::array<std::string, 7> headings;  // of the weekdays
        for (double day = -730'000; day < 730'000; day += 9973) {
            desk.Obey("set DisplayedMoment " + GeneralText(day + 0.25));
            const auto& cells = month.Days.cells;
            const auto blank = [](const CellGrid::Cell& cell) { return cell.blank; };
            const auto first = std::find_if_not(cells.begin(), cells.end(), blank);
            const auto end = std::find_if(first, cells.end(), blank);
            ASSERT_TRUE(std::all_of(end, cells.end(), blank)) << month.Calendars.items[calendar] << day;
            ASSERT_GE(end - first, 28) << month.Calendars.items[calendar] << day;
            const auto clicked = static_cast<std::size_t>(first - cells.begin()) + 16;
            const auto active = static_cast<double>(month.Days.active);
            desk.Obey("click Monthly.Days " + std::to_string(clicked));
            ASSERT_EQ(DisplayedMoment, day + 0.25 + static_cast<double>(clicked) - active);
            const auto weekday = static_cast<std::size_t>(DayOfWeek(DisplayedMoment));
            std::string& heading = headings[weekday];
            if (heading.empty()) heading = month.Days.headings[clicked % 7].text;
            ASSERT_EQ(month.Days.headings[clicked % 7].text, heading) << month.Calendars.items[calendar] << day;
        }
    }
}

TEST_F(Monthly, MovesByMonthsAndYears) {
    constexpr std::tuple<const char*, const char*, const char*> rows[] = {
        {"click Monthly.NextMonth", "2024-01-31", "Thursday, February 29, 2024"},
        {"click Monthly.PrevMonth", "2024-01-31", "Sunday, December 31, 2023"},
        {"press PageDown", "2024-12-05", "Sunday, January 5, 2025"},
        {"press PageUp", "2024-03-31", "Thursday, February 29, 2024"},
        {"choose Monthly.MonthNames 5", "2024-01-31", "Sunday, June 30, 2024"},
        {"click Monthly.ChangeByYear up", "2024-02-29", "Saturday, March 1, 2025"},
        {"type Monthly.ThisYear -3", "2024-07-04", "Friday, July 4, -3"},
        {"type Monthly.ThisYear x", "2024-07-04", "Thursday, July 4, 2024"},
        {"press End", "2024-07-01", "Wednesday, July 31, 2024"},
        {"press Numeric5", "2024-07-01", "Tuesday, July 16, 2024"},
        {"press Home", "2024-07-05", "Friday, July 5, 2024"},
        {"press Home", "2024-09-05", "Sunday, September 1, 2024"},
    };
    desk.Obey("choose Monthly.Calendars 1");
    for (const auto& [line, from, to] : rows) {
        Show(ReadDate(from, std::array{&GregorianCalendar}).moment + 0.5);
        desk.Obey("focus Monthly.Days");
        EXPECT_EQ(desk.Obey(line), "ok") << line;
        EXPECT_EQ(FixedToGregorianString(DisplayedMoment), to) << line << " from " << from;
    }
    Show(8415.5);
    desk.Obey("click Monthly.NextMonth");
    EXPECT_EQ(DisplayedMoment, 8446.5);
    desk.Obey("choose Monthly.MonthNames 2");
    EXPECT_EQ(DisplayedMoment, 8475);
    desk.Obey("focus Monthly.Days");
    EXPECT_EQ(desk.Obey("press Escape"), "ok");
    EXPECT_EQ(desk.desktop.focused, &desk.program.timeAstro.FixedDayNum);
}

TEST_F(Monthly, StepsAsItsLayoutLies) {
    constexpr std::tuple<const char*, int, int> rows[] = {
        // days, with the weekdays as columns and as rows
        {"Left", -1, -7},     {"Numeric4", -1, -7}, {"Right", 1, 7},         {"Numeric6", 1, 7},    {"Up", -7, -1},
        {"Numeric8", -7, -1}, {"Down", 7, 1},       {"Numeric2", 7, 1},      {"Backspace", -1, -1}, {"Minus", -1, -1},
        {"Plus", 1, 1},       {"Space", 1, 1},      {"Space shift", -1, -1},
    };
    MonthlyWindow& month = desk.program.monthly;
    for (const bool across : {false, true}) {
        EXPECT_EQ(month.Layout.text, across ? "&Across" : "&Down");
        EXPECT_EQ(month.Days.across, across);
        EXPECT_EQ(month.Days.headings[1].text, across ? "Tuesday" : "Tue");
        EXPECT_EQ(month.Days.headings[1].tooltip, across ? "" : "Tuesday");
        for (const auto& [key, byColumns, byRows] : rows) {
            Show(8415);
            Obey({"focus Monthly.Days", std::string("press ") + key});
            EXPECT_EQ(DisplayedMoment, 8415 + (across ? byRows : byColumns)) << key;
            EXPECT_EQ(desk.desktop.focused, &month.Days) << key;
        }
        desk.Obey("click Monthly.Layout");
    }
}

/// The keys of the year keep the month and the day and drop the time; what else moves the day does not move it here.
TEST_F(Monthly, EditsTheYear) {
    // clang-format off
    constexpr std::pair<const char*, int> rows[] = {
        {"Up", 2025}, {"Plus", 2025}, {"Down", 2023}, {"Minus", 2023}, {"Up shift", 2034}, {"Down ctrl", 1924},
        {"Up shift ctrl", 3024}, {"PageUp", 2034}, {"PageDown", 2014}, {"PageUp ctrl", 2124},
        {"PageDown shift ctrl", 1024},
    };
    // clang-format on
    desk.Obey("choose Monthly.Calendars 1");
    const Moment start = GregorianToFixed(2024, 7, 4) + 0.25;
    const auto press = [&](const std::string& key) {
        Obey({"set DisplayedMoment " + GeneralText(start), "focus Monthly.ThisYear", "press " + key});
    };
    for (const auto& [key, year] : rows) {
        press(key);
        EXPECT_EQ(DisplayedMoment, GregorianToFixed(year, 7, 4)) << key;
    }
    for (const char* key : {"Space", "Space shift", "Home", "Left", "Backspace", "End"}) {
        press(key);
        EXPECT_EQ(DisplayedMoment, start) << key;
    }
}

/// What a screen reader says of the grid, and where it marks today.
TEST_F(Monthly, SpeaksTheDay) {
    const FixedDay today = Today();
    ASSERT_EQ(FixedToGregorianString(today), "Monday, January 15, 2024");
    // The last is the cell of today, -1 for none.
    // clang-format off
    const std::tuple<const char*, Moment, const char*, int> rows[] = {
        {"1", today + 0.9, "Monday, January 15, 2024, today", 15}, {"1", today + 1, "Tuesday, January 16, 2024", 15},
        {"1", today + 16.5, "Wednesday, January 31, 2024", 15}, {"1", today - 15, "Sunday, December 31, 2023", -1},
        {"1", today + 17, "Thursday, February 1, 2024", -1}, {"2", today, "Monday, W3-1, 2024, today", 14},
        {"5", today + 1, "Se-shanbeh, Dey 26, 1402", 30}, {"6", today, "Monday, 12th, day 5, 4720, today", 8},
        {"7", today, "Yom Sheini, Shevat 5, 5784, today", 8},
        {"8", today, "Monday, Yerm 21, month 9, day 4, 1113, today", 8},
    };
    // clang-format on
    for (const auto& [calendar, moment, spoken, cell] : rows) {
        desk.Obey(std::string("choose Monthly.Calendars ") + calendar);
        Show(moment);
        const CellGrid& days = desk.program.monthly.Days;
        EXPECT_EQ(AccessibleName(days), spoken);
        EXPECT_EQ(days.today ? static_cast<int>(*days.today) : -1, cell) << spoken;
    }
}

/// A day that four weeks don't have keeps its weekday; the thirteenth month follows the twelfth.
TEST_F(Monthly, WalksTheMonthsOfWeeks) {
    desk.Obey("choose Monthly.Calendars 2");
    Show(ISOToFixed(2020, 53, 3));
    EXPECT_EQ(desk.program.monthly.Days.cells[desk.program.monthly.Days.active].text, "W53-3");
    desk.Obey("click Monthly.PrevMonth");
    EXPECT_EQ(ISODateString(FixedToISODate(DisplayedMoment)), "2020-W48-3");
    for (int i = 0; i < 13; ++i) desk.Obey("click Monthly.NextMonth");
    EXPECT_EQ(ISODateString(FixedToISODate(DisplayedMoment)), "2021-W48-3");
    for (int i = 0; i < 26; ++i) desk.Obey("click Monthly.PrevMonth");
    EXPECT_EQ(ISODateString(FixedToISODate(DisplayedMoment)), "2019-W48-3");
}

TEST_F(Monthly, StepsOverAYearThatThereIsNot) {
    for (const char* calendar : {"3", "4", "5"}) {  // Julian, Roman, Persian
        Obey({std::string("choose Monthly.Calendars ") + calendar, "type Monthly.ThisYear 1",
              "choose Monthly.MonthNames 0"});
        for (const char* line : {"click Monthly.ChangeByYear down", "click Monthly.PrevMonth"}) {
            desk.Obey(line);
            EXPECT_EQ(desk.program.monthly.ThisYear.text, "-1") << calendar << line;
            desk.Obey("type Monthly.ThisYear 1");
        }
        desk.Obey("type Monthly.ThisYear 0");
        EXPECT_EQ(desk.program.monthly.ThisYear.text, "-1") << calendar;
        desk.Obey("click Monthly.ChangeByYear up");
        EXPECT_EQ(desk.program.monthly.ThisYear.text, "1") << calendar;
    }
}

TEST_F(Monthly, BringsTheWindowOfItsCalendar) {
    Obey({"close Gregorian", "choose Monthly.Calendars 2"});
    EXPECT_TRUE(desk.program.gregorian.form.visible);
    EXPECT_EQ(desk.desktop.focused, &desk.program.monthly.Calendars);
    EXPECT_EQ(desk.program.monthly.ThisYear.colors, desk.program.gregorian.TheISOdate.colors);
    Obey({"click Monthly.Layout"});
    Desk again(LeftBy(desk));
    EXPECT_EQ(again.program.monthly.Layout.text, "&Across");
    EXPECT_EQ(again.program.monthly.Calendars.selected, 2);
}

}  // namespace
}  // namespace horvanta
