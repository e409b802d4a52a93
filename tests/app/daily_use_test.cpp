#include "core/moment.h"
#include "core/text.h"
#include "desk.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace horvanta {
namespace {

void ObeyAll(Desk& desk, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) ASSERT_EQ(desk.Obey(line), "ok") << line;
}

TEST(DailyUse, AnItemRaisesItsWindowAndHidesItOnlyInFront) {
    struct {
        const char* line;
        bool visible;
        const char* focused;
    } const rows[] = {
        {"menu GregCal", true, "Dummy"},           {"menu CalendarMonth", true, "Days"},
        {"menu GregCal", true, "Dummy"},           {"menu GregCal", false, "FixedDayNum"},
        {"menu GregCal", true, "Dummy"},           {"menu ShowTime", true, "FixedDayNum"},
        {"close Gregorian", false, "FixedDayNum"},
    };
    Desk desk;
    for (const auto& [line, visible, focused] : rows) {
        ASSERT_EQ(desk.Obey(line), "ok");
        EXPECT_EQ(desk.program.gregorian.form.visible, visible) << line;
        EXPECT_EQ(desk.desktop.focused->name, focused) << line;
    }
}

TEST(DailyUse, ACommandTakesWhatWasTypedBefore) {
    struct {
        const char* line;
        double moment;
    } const rows[] = {
        {"press Up", 1001},
        {"press Space", 1001},
        {"press PageUp", 1007},
        {"press Enter", 1000},
        {"press Numeric5", 500},
        {"click TimeAstro.NextUp", 1001},
        {"menu SaveThisMoment", 1000},
        {"focus Monthly.Days", 1000},
        {"press Home", 8415},
        {"rightclick Monthly", 1000},
    };
    for (const auto& [line, moment] : rows) {
        Desk desk;
        ObeyAll(desk,
                {"set DisplayedMoment 500", "edit TimeAstro.FixedDayNum 10", "edit TimeAstro.FixedDayNum 1000", line});
        EXPECT_EQ(DisplayedMoment, moment) << line;
        EXPECT_TRUE(desk.desktop.asked.empty() || desk.desktop.asked.front() != "beep") << line;
    }
    Desk desk;
    ObeyAll(desk, {"edit TimeAstro.FixedDayNum 1000", "menu SaveThisMoment"});
    EXPECT_EQ(SavedMoment, 1000);
    ObeyAll(desk, {"edit Monthly.ThisYear 1999", "press Up"});
    EXPECT_EQ(desk.program.monthly.ThisYear.text, "2000");
}

TEST(DailyUse, EscapePutsTheOldTextBackAndThenGoesToday) {
    Desk desk;
    TextField& number = desk.program.timeAstro.FixedDayNum;
    ObeyAll(desk, {"set DisplayedMoment 500", "edit TimeAstro.FixedDayNum 10", "edit TimeAstro.FixedDayNum abc",
                   "press Esc"});
    EXPECT_EQ(number.text, "500");
    EXPECT_EQ(DisplayedMoment, 500);
    ObeyAll(desk, {"press Esc"});
    EXPECT_EQ(DisplayedMoment, Today());
    EXPECT_EQ(desk.Obey("asked"), "none");
}

/// What the program wrote into a field since is no text of the user's.
TEST(DailyUse, ATextOfTheProgramEndsTheEditing) {
    Desk desk;
    ObeyAll(desk, {"edit TimeAstro.FixedDayNum 10", "set DisplayedMoment 500", "press Up"});
    EXPECT_EQ(DisplayedMoment, 501);
}

TEST(DailyUse, ABeepTellsWhy) {
    struct {
        std::vector<std::string> lines;
        const char* told;
    } const rows[] = {
        {{"type Monthly.ThisYear abc"}, "abc is not a year"},
        {{"type Monthly.ThisYear"}, "an empty text is not a year"},
        {{"type TimeAstro.FixedDayNum 9e9"}, "the range ends at year 12000"},
        {{"type TimeAstro.FixedDayNum -9e9"}, "the range begins at year -6937"},
        {{"menu SetUserLoc", "menu PickBackColor"}, "User-Defined Locales has no colours of its own"},
        {{"menu JulianCal", "answer text 99", "menu JYRF"}, "the year must be "},
        {{"menu SetUserLoc", "type User.UDLnum 2.5"}, "2.5 is not the number of a locale"},
        {{"menu SetUserLoc", "type User.LatMin x"}, "x is not a number, as needed for Latitude, minutes"},
        {{"menu SetUserLoc", "type User.LatMin -5"}, "-5 is not possible as Latitude, minutes"},
        {{"menu SetUserLoc", "answer text 91", "click User.LatLabel"}, "91 is not a latitude in degrees"},
    };
    for (const auto& [lines, told] : rows) {
        Desk desk;
        ObeyAll(desk, lines);
        EXPECT_TRUE(desk.desktop.status.starts_with(told)) << desk.desktop.status;
        EXPECT_NE(desk.Obey("asked").find("beep"), std::string::npos) << told;
    }
}

TEST(DailyUse, TheMainDateOffersCopiesAndColours) {
    Desk desk;
    const std::string date = "Gregorian.GregorianDate";
    const std::string offer = R"(menu "Copy" "Copy All" "Text Colour..." "Background Colour..." )";
    ObeyAll(desk, {"rightclick " + date});
    EXPECT_EQ(desk.Obey("asked"), offer + "cancel");
    ObeyAll(desk, {"answer text Copy", "rightclick " + date});
    EXPECT_EQ(desk.Obey("asked"), offer + R"("Copy"; clipboard "Monday, January 15, 2024 ")");
    ObeyAll(desk, {"answer text Text Colour...", "answer color 255", "rightclick " + date});
    EXPECT_EQ(desk.program.gregorian.GregorianDate.colors->foreground.Number(), 255);
    ObeyAll(desk, {"answer text Background Colour...", "answer color 65280", "rightclick " + date});
    EXPECT_EQ(desk.program.gregorian.GregorianDate.colors->background.Number(), 65280);
}

/// Each value that a window shows stands in its menu, and what an item copies has all digits.
TEST(DailyUse, TheMenuOfAWindowReachesEveryValue) {
    Desk desk;
    desk.Obey("set DisplayedMoment 8415.123456789");
    struct {
        const char* form;
        const char* item;
        const char* copied;
    } const rows[] = {
        {"Gregorian", "Copy Dominical Letter(s) for this Gregorian Year: GF", "GF"},
        {"Gregorian", "Copy 24th year of 6th cycle AD",
         "Gregorian year 2024 (leap) = 24th year of 6th 400-year cycle AD"},
        {"TimeAstro", "Copy Sunrise: 07:57:28", "Sunrise: 07:57:28"},
        {"TimeAstro", "Copy Solar declination: 21.2° S", "Solar declination: 21.2"},
        {"Quartane", "Copy in Quarter, Month: 1", "in Quarter, Month: 1"},
        {"Monthly", "Copy Year: 2024", "Year: 2024"},
    };
    for (const auto& [form, item, copied] : rows) {
        desk.Obey("asked");
        ObeyAll(desk, {std::string("answer text ") + item, std::string("rightclick ") + form});
        const std::string asked = desk.Obey("asked");
        EXPECT_NE(asked.find(std::string("clipboard \"") + copied), std::string::npos) << asked;
    }
    ObeyAll(desk, {"answer text Copy All", "rightclick TimeAstro"});
    const std::string all = desk.Obey("asked");
    for (const char* value : {"Sunset: 16:21:", "Equation of Time", ": 8415.123457\\n"}) {
        EXPECT_NE(all.find(value, all.find("clipboard")), std::string::npos) << value;
    }
}

TEST(DailyUse, PlacesStandByNameEachWithAnAccessKey) {
    Desk desk;
    std::set<char> keys;
    std::string before;
    for (const MenuItem* item : desk.program.frame.LocaleMenu.items) {
        if (item->isSeparator()) continue;
        const std::size_t mark = item->caption.find('&');
        ASSERT_NE(mark, std::string::npos) << item->caption;
        EXPECT_TRUE(keys.insert(static_cast<char>(item->caption[mark + 1] | 0x20)).second) << item->caption;
        if (item->name == "UDLs") continue;
        EXPECT_LT(before, RemoveAmpersands(item->caption));
        before = RemoveAmpersands(item->caption);
    }
    EXPECT_EQ(keys.size(), 26u);
}

/// What merely holds the focus speaks for its window.
TEST(DailyUse, NothingIsSpokenByItsInnerName) {
    Desk desk;
    for (const Form* form : desk.program.Forms()) {
        for (const Control* control : form->controls) {
            EXPECT_NE(AccessibleName(*control), "Dummy") << form->name;
        }
    }
    EXPECT_EQ(AccessibleName(desk.program.gregorian.Dummy), desk.program.gregorian.form.text);
    const DayStrip& light = desk.program.timeAstro.fields.DayLight;
    EXPECT_EQ(AccessibleName(light), light.text);
}

}  // namespace
}  // namespace horvanta
