#include "desk_fixture.h"

#include <tuple>

namespace horvanta {
namespace {

TEST(DailyUse, AnItemRaisesItsWindowAndHidesItOnlyInFront) {
    const std::tuple<const char*, bool, const char*> rows[] = {
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
    // clang-format off
    const std::tuple<const char*, double> rows[] = {
        {"press Up", 1001}, {"press Space", 1001}, {"press PageUp", 1007}, {"press Enter", 1000},
        {"press Numeric5", 500}, {"click TimeAstro.NextUp", 1001}, {"menu SaveThisMoment", 1000},
        {"focus Monthly.Days", 1000}, {"press Home", 8415}, {"rightclick Monthly", 1000},
    };
    // clang-format on
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

/// What the program wrote into a field since is no text of the user's.
TEST_F(DeskTest, ATextOfTheProgramEndsTheEditing) {
    Obey({"edit TimeAstro.FixedDayNum 10", "set DisplayedMoment 500", "press Up"});
    EXPECT_EQ(DisplayedMoment, 501);
}

TEST(DailyUse, ABeepTellsWhy) {
    const std::tuple<std::vector<std::string>, const char*> rows[] = {
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

TEST_F(DeskTest, TheMainDateOffersCopiesAndColours) {
    const std::string offer = R"(menu "Copy" "Copy All" "Text Colour..." "Background Colour..." )";
    EXPECT_EQ(AskedBy("rightclick Gregorian.GregorianDate"), offer + "cancel");
    desk.Obey("answer text Copy");
    EXPECT_EQ(AskedBy("rightclick Gregorian.GregorianDate"),
              offer + R"("Copy"; clipboard "Monday, January 15, 2024 ")");
    Obey({"answer text Background Colour...", "answer color 65280", "rightclick Gregorian.GregorianDate"});
    const ColorPair green{{0, 255, 0}, {0, 0, 0}};
    EXPECT_EQ(desk.program.gregorian.GregorianDate.colors, green);
    EXPECT_EQ(desk.program.gregorian.GregCycleInfo.colors, green);
    EXPECT_EQ(desk.program.gregorian.TheISOdate.colors, (ColorPair{{48, 207, 48}, {48, 48, 48}}));
}

/// Each value that a window shows stands in its menu, and what an item copies has all digits.
TEST_F(DeskTest, TheMenuOfAWindowReachesEveryValue) {
    desk.Obey("set DisplayedMoment 8415.123456789");
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"Gregorian", "Copy Dominical Letter(s) for this Gregorian Year: GF", "GF"},
        {"Gregorian", "Copy 24th year of 6th cycle AD",
         "Gregorian year 2024 (leap) = 24th year of 6th 400-year cycle AD"},
        {"TimeAstro", "Copy Sunrise: 07:57:28", "Sunrise: 07:57:28"},
        {"TimeAstro", "Copy Solar declination: 21.2° S", "Solar declination: 21.2"},
        {"Quartane", "Copy in Quarter, Month: 1", "in Quarter, Month: 1"},
        {"Monthly", "Copy Year: 2024", "Year: 2024"},
        {"Hebrew", "Copy Dusk VG: 16:48:30", "Dusk VG"},
        {"Lunar", "Copy Lunar longitude: 344.4°", "Lunar longitude: 344.4"},
    };
    for (const auto& [form, item, copied] : rows) {
        desk.Obey("asked");
        Obey({std::string("answer text ") + item, std::string("rightclick ") + form});
        const std::string asked = desk.Obey("asked");
        EXPECT_NE(asked.find(std::string("clipboard \"") + copied), std::string::npos) << asked;
    }
    Obey({"answer text Copy All", "rightclick TimeAstro"});
    const std::string all = desk.Obey("asked");
    for (const char* value : {"Sunset: 16:21:", "Equation of Time", ": 8415.123457\\n"}) {
        EXPECT_NE(all.find(value, all.find("clipboard")), std::string::npos) << value;
    }
}

}  // namespace
}  // namespace horvanta
