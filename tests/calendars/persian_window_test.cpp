#include "calendars/persian_window.h"

#include "calendars/gregorian.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "desk.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

std::string Events() {
    std::string texts;
    for (const day_events::Event& event : day_events::List()) {
        if (event.calendar == "Persian") texts += event.text + ";";
    }
    return texts;
}

/// The equinoxes as Iran's almanacs give them.
TEST(PersianWindow, ShowsTheDateAndPostsTheEventsOfItsDay) {
    struct Row {
        int year, month, day;
        const char *date, *events;
    };
    constexpr Row rows[] = {
        {2024, 3, 12, " Se-shanbeh, 22 Esfand 1402 PE", "Eve of Charshanbe Suri;"},
        {2024, 3, 19, " Se-shanbeh, 29 Esfand 1402 PE", ""},
        {2024, 3, 20, " Char-shanbeh, 1 Farvardin 1403 PE",
         "Norouz (new year);Tahvil-e sâl (spring equinox) at 06:36 Iran Standard Time;"},
        {2024, 7, 22, " Do-shanbeh, 1 Mordâd 1403 PE", "First day of Mordâd;"},
        {2024, 12, 20, " Jom'eh, 30 Âzar 1403 PE", "Yalda (winter solstice, longest night);"},
        {2025, 3, 20, " Panj-shanbeh, 30 Esfand 1403 PE", "Tahvil-e sâl (spring equinox) at 12:31 Iran Standard Time;"},
        {2025, 3, 21, " Jom'eh, 1 Farvardin 1404 PE", "Norouz (new year);"},
    };
    Desk desk;
    desk.Obey("menu PersianCal");
    for (const Row& row : rows) {
        DisplayedMoment = GregorianToFixed(row.year, row.month, row.day) + 0.5;
        UpdateStatus();
        EXPECT_EQ(desk.program.persian.ThePersianDate.text, row.date);
        EXPECT_EQ(Events(), row.events) << row.date;
    }
}

TEST(PersianWindow, AnswersItsControls) {
    Desk desk;
    DisplayedMoment = GregorianToFixed(2025, 3, 20);
    UpdateStatus();
    EXPECT_EQ(Events(), "");  // the window is hidden at first
    desk.Obey("menu PersianCal");
    desk.Obey("click Persian.LeapCheckbox");
    EXPECT_EQ(desk.program.persian.LeapCheckbox.State(), Checked);
    desk.Obey("click Persian.ThePersianDate");
    desk.Obey("answer color 65280");  // green
    desk.Obey("dblclick Persian.ThePersianDate");
    EXPECT_EQ(desk.Obey("asked"), R"(clipboard " Panj-shanbeh, 30 Esfand 1403 PE"; color 10220253 65280)");
    desk.Obey("menu MenuExit");
    StoredSettings saved = desk.desktop.settings.flushed;
    EXPECT_EQ(saved["Horvanta"]["Color"]["PBC"], "65280");
    EXPECT_EQ(saved["Horvanta"]["Persian"]["Chk"], "True");
}

}  // namespace
}  // namespace horvanta
