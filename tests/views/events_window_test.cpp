#include "views/events_window.h"

#include "desk_fixture.h"
#include "locale/presets.h"

namespace horvanta {
namespace {

using EventsWindowTest = DeskTest;

/// The day of a Persian new year and an equinox, with all windows open that tell of it.
TEST_F(EventsWindowTest, ListsTheDayInTheColoursOfItsCalendars) {
    desk.Obey("menu PersianCal");
    Show(2024, 3, 20);
    const auto& rows = desk.program.events.EventsGrid.rows;
    const std::pair<const Control&, const char*> told[] = {{desk.program.persian.ThePersianDate, "Norouz"},
                                                           {desk.program.timeAstro.TimeOfDay, "Northward Equinox"},
                                                           {desk.program.lunar.MoonName, "Local Moonrise"}};
    for (const auto& [date, text] : told) {
        EXPECT_TRUE(std::ranges::any_of(rows, [&](const RowTable::Row& row) {
            return row.colors == date.colors && row.cells[2].find(text) != std::string::npos;
        })) << text;
    }

    const auto& cells = rows[0].cells;
    EXPECT_EQ(AskedBy("click Events.EventsGrid 0"),
              "clipboard \"" + cells[2] + ", " + cells[1] + " (" + cells[0] + ")\"");
    EXPECT_EQ(desk.desktop.focused, &desk.program.timeAstro.FixedDayNum);
}

/// North and south of the equator the clocks change on the same days, in opposite ways.
TEST_F(EventsWindowTest, TellsOfClockChanges) {
    const std::tuple<const char*, std::int32_t, std::int32_t, const char*> rows[] = {
        {"Times Square", 3, 10, "Switch to Daylight Saving Time on"},
        {"Times Square", 11, 3, "Switch to Standard Time on"},
        {"Melbourne", 3, 10, "Switch to Standard Time on"},
        {"Times Square", 3, 11, ""}};
    for (const auto& [place, month, day, text] : rows) {
        Locale = PresetLocale(place);
        Show(2024, month, day);
        std::string told;
        for (const RowTable::Row& row : desk.program.events.EventsGrid.rows) {
            if (row.cells[2].starts_with("Switch")) told = row.cells[2];
        }
        EXPECT_EQ(told.substr(0, std::string_view(text).size()), text) << place << month;
        EXPECT_EQ(told.empty(), std::string_view(text).empty()) << place << month;
    }
}

TEST_F(EventsWindowTest, BeepsWhereNothingHappens) {
    for (const char* window : {"Lunar", "Gregorian", "Hebrew"}) desk.Obey(std::string("close ") + window);
    Show(2024, 1, 2);
    ASSERT_TRUE(desk.program.events.EventsGrid.rows.empty());
    EXPECT_EQ(AskedBy("click Events.EventsGrid"), "beep");
}

}  // namespace
}  // namespace horvanta
