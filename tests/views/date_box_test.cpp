#include "views/date_box.h"

#include "calendars/julian.h"
#include "desk_fixture.h"
#include "hebrew/hebrew_options.h"

#include <tuple>

namespace horvanta {
namespace {

class DateBoxTest : public DeskTest {
  protected:
    void Obey(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) ASSERT_EQ(desk.Obey(line), "ok") << line;
    }
    std::string Fields() const {
        return box.Year.text + " | " +
               (box.Month.selected < 0 ? "" : box.Month.items[std::size_t(box.Month.selected)]) + " | " + box.Day.text;
    }

    const DateBox& box = desk.program.dateBox;
};

/// Opened and left by OK, and with every field typed anew as it was shown.
TEST_F(DateBoxTest, KeepsTheMomentInEveryCalendar) {
    void (*const choices[])() = {
        [] {},
        [] { julian::options = {.Revise = true, .UseAUC = true}; },
        [] { hebrew::options.UseHebrewFont = true; },
    };
    const Moment moments[] = {MinFixedDay,
                              MinFixedDay + 0.3,
                              MaxFixedDay,
                              GregorianToFixed(-8, 7, 4) + 0.1,
                              8415.123456789,
                              8415 + 1 - 1e-9,
                              0.5,
                              GregorianToFixed(0, 1, 1) + 1 / 3.0,
                              MaxFixedDay - 0.2,
                              GregorianToFixed(2024, 3, 20) + 0.7};
    for (const auto choose : choices) {
        choose();
        for (std::size_t calendar = 0; calendar < GridCalendarCount; ++calendar) {
            date_box::options.Calendar = static_cast<std::int32_t>(calendar);
            for (const Moment moment : moments) {
                DisplayedMoment = moment;
                Obey({"menu JumpToDate", "press Enter"});
                ASSERT_EQ(DisplayedMoment, moment) << calendar;
                Obey({"menu JumpToDate"});
                ASSERT_EQ(box.Calendar.selected, static_cast<int>(calendar));
                Obey({"type DateBox.Year " + box.Year.text,
                      "choose DateBox.Month " + std::to_string(box.Month.selected), "type DateBox.Day " + box.Day.text,
                      "press Enter"});
                ASSERT_EQ(DisplayedMoment, moment) << calendar << " " << Fields();
                EXPECT_FALSE(box.form.visible);
                EXPECT_EQ(desk.Obey("asked"), "none");
            }
        }
    }
}

TEST_F(DateBoxTest, ShowsDatesInTheFormOfTheirCalendar) {
    const std::tuple<int, const char*, std::vector<std::string>, const char*> rows[] = {
        {1, "15 March 44 BC", {}, "-43 | March | 13"},
        {3, "15 March 44 BC", {}, "44 BC | March | 15"},
        {3, "29 February 1 BC", {"press Up"}, "1 AD | February | 28"},
        {3, "29 February 2024", {"edit DateBox.Year 45 bc"}, "45 bc | February | 29"},
        {2, "2024-W09-4", {"edit DateBox.Day w12-7"}, "2024 | Week 9-12 | w12-7"},
        {7, "15 Nisan 5784", {"edit DateBox.Year 5785"}, "5785 | Nisan | 15"},
        {7, "14 Adar 5785", {"edit DateBox.Year 5784"}, "5784 | Adar Rishon | 14"},
        {7, "14 Adar Sheini 5784", {"edit DateBox.Year 5785"}, "5785 | Adar | 14"},
        {7, "30 Adar Rishon 5784", {"press PageUp"}, "5794 | Adar | 29"},
        {5, "1 Farvardin 1", {"press Down"}, "-1 | Farvardin | 1"},
    };
    for (const auto& [calendar, text, lines, fields] : rows) {
        Obey({"menu JumpToDate", "choose DateBox.Calendar " + std::to_string(calendar),
              std::string("edit DateBox.DateText ") + text, "focus DateBox.Year"});
        Obey(lines);
        EXPECT_EQ(Fields(), fields) << text;
        EXPECT_TRUE(box.OK.enabled) << box.Why.text;
        Obey({"press Escape"});
    }
}

TEST_F(DateBoxTest, TellsWhyThereIsNoDateAndStays) {
    const std::tuple<std::vector<std::string>, const char*> rows[] = {
        {{"edit DateBox.DateText 30 February 2024"}, "February 2024 has 29 days"},
        {{"edit DateBox.Year 2024 BC"}, "2024 BC is not a year"},
        {{"choose DateBox.Calendar 3", "edit DateBox.Year 0"}, "the Julian calendar has no year 0"},
        {{"edit DateBox.Time 24:00"}, "24:00 is not a time of day"},
        {{"edit DateBox.DateText JD 2460000.5", "edit DateBox.Time 7"}, "7 is not a time of day"},
    };
    const Moment before = DisplayedMoment;
    for (const auto& [lines, why] : rows) {
        Obey({"menu JumpToDate"});
        Obey(lines);
        EXPECT_EQ(box.Why.text, why);
        EXPECT_FALSE(box.OK.enabled);
        EXPECT_TRUE(box.Gregorian.text.empty() && box.DayNumber.text.empty());
        Obey({"press Enter"});
        EXPECT_TRUE(box.form.visible);
        EXPECT_EQ(desk.Obey("status"), "\"" + std::string(why) + "\"");
        Obey({"press Escape"});
        EXPECT_FALSE(box.form.visible);
        EXPECT_EQ(DisplayedMoment, before);
    }
    Obey({"menu JumpToDate", "edit DateBox.Day 32", "edit DateBox.Day 31"});
    EXPECT_TRUE(box.OK.enabled && box.Why.text.empty());
}

TEST_F(DateBoxTest, TakesTheTimeByTheChosenScale) {
    const std::tuple<const char*, const char*, const char*, int, const char*> rows[] = {
        {"SetTimesSquare", "2024-07-04", "21:30", 1, "Friday, July 5, 2024 02:30:00"},
        {"SetTimesSquare", "2024-07-04", "21:30", 2, "Friday, July 5, 2024 01:30:00"},
        {"SetTimesSquare", "2024-01-15", "0:00:30", 2, "Monday, January 15, 2024 05:00:30"},
    };
    for (const auto& [place, date, time, scale, told] : rows) {
        Obey({std::string("menu ") + place, "menu JumpToDate", std::string("edit DateBox.DateText ") + date,
              std::string("edit DateBox.Time ") + time, "choose DateBox.Scale " + std::to_string(scale)});
        EXPECT_EQ(box.Gregorian.text + " " + box.Universal.text, told);
        Obey({"click DateBox.OK"});
        EXPECT_EQ(FixedToGregorianString(DisplayedMoment) + " " + FormatTime(DisplayedMoment, 0), told);
    }
}

TEST_F(DateBoxTest, GoesThereByOneStepAndKeepsItsCalendar) {
    Obey({"menu JumpToDate", "choose DateBox.Calendar 7", "edit DateBox.DateText 15 Nisan 5784", "press Enter"});
    EXPECT_EQ(FixedToGregorianString(DisplayedMoment), "Tuesday, April 23, 2024");
    Obey({"menu Back"});
    EXPECT_EQ(FixedToGregorianString(DisplayedMoment), "Monday, January 15, 2024");
    EXPECT_EQ(desk.Obey("menu Back"), "error: not enabled: Back");
    Obey({"menu JumpToDate", "choose DateBox.Calendar 3", "press Escape", "menu SavePreferences"});
    Desk next(desk.desktop.settings.flushed);
    EXPECT_EQ(next.Obey("menu JumpToDate"), "ok");
    EXPECT_EQ(next.program.dateBox.Calendar.selected, 7);
    EXPECT_EQ(next.program.dateBox.Month.items.size(), 13U);
}

}  // namespace
}  // namespace horvanta
