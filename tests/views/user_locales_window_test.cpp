#include "views/user_locales_window.h"

#include "desk_fixture.h"
#include "locale/distances.h"
#include "locale/presets.h"

#include <tuple>

namespace horvanta {
namespace {

/// A desk with the window open on slot 1, and nothing asked so far.
class UserLocalesWindowTest : public DeskTest {
  protected:
    UserLocalesWindowTest() { Obey({"menu SetUserLoc", "asked"}); }

    void Enter(const std::string& field, const std::string& text) { Obey({"type User." + field + " " + text}); }
    bool hasAsked(const std::string& title) {
        return desk.Obey("asked").find("\"" + title + "\"") != std::string::npos;
    }

    UserLocalesWindow& window = desk.program.userLocales;
};

TEST_F(UserLocalesWindowTest, KeepAnAppliedPlaceInTheMenuAndOverARestart) {
    Obey({"type User.UDLnum 30", "type User.LocName  Fish & Chips ", "type User.LatDeg 33", "type User.LatMin 51",
          "type User.LatSec 30.25", "type User.LongDeg 151", "type User.TimeZone 10.5", "type User.Elevation 100",
          "click User.LatHemi", "click User.DisableDST", "click User.OK"});
    EXPECT_EQ(Locale, MakeLocale("Fish & Chips", "", DegMinSec(-33, 51, 30.25), 151, 100, 10.5, true));
    EXPECT_FALSE(window.form.visible);
    EXPECT_EQ(desk.program.frame.UserLoc[30].caption, "Fish && Chips");
    Obey({"menu SetMecca", "menu UserLoc 30", "menu MenuExit"});
    const LocaleRecord applied = Locale;

    Desk again(desk.desktop.settings.flushed);
    EXPECT_EQ(Locale, applied);
    EXPECT_EQ(again.program.userLocales.UDLnum.text, "30");
    again.Obey("menu SetUserLoc");
    again.Obey("click User.ElevScroll100 up");
    again.Obey("click User.ApplyLoc");
    EXPECT_EQ(Locale.Elevation, 200);
    again.Obey("menu ResetPrefsAndQuit");
    const Desk reset(again.desktop.settings.flushed);
    EXPECT_EQ(UserLocales[30].Elevation, 200);
}

TEST_F(UserLocalesWindowTest, DoubtAZoneFarFromItsLongitude) {
    constexpr std::tuple<const char*, const char*, bool> rows[] = {
        {"30", "4.9", false}, {"30", "5", true}, {"30", "-1", true}, {"45", "", false}};
    for (const auto& [longitude, zone, doubted] : rows) {
        Enter("LongDeg", longitude);
        Enter("TimeZone", zone);
        const LocaleRecord before = Locale;
        Obey({"asked", "answer no", "click User.ApplyLoc"});
        EXPECT_EQ(hasAsked("Check Time Zone"), doubted) << longitude << " " << zone;
        EXPECT_EQ(Locale == before, doubted);
        desk.desktop.answers.clear();
    }
    Enter("TimeZone", "6.25");
    Obey({"answer yes", "asked"});
    EXPECT_NE(AskedBy("click User.ApplyLoc").find("differs by 3.25 hours from ideal 3 based on Longitude.\\n"),
              std::string::npos);
    EXPECT_EQ(Locale.Zone, 6.25);
    Obey({"click User.LongHemi", "click User.GuessZone"});
    EXPECT_EQ(window.TimeZone.text, "-3");
}

TEST_F(UserLocalesWindowTest, TakeNumbersWithinTheirEndsAndGiveGarbageBack) {
    constexpr std::tuple<const char*, const char*, const char*, bool> rows[] = {
        {"LatDeg", "95", "90", false},    {"LatDeg", "12x", "7", true},       {"LatDeg", "-5", "7", true},
        {"LongDeg", "200", "180", false}, {"LatSec", "60", "59.9999", false}, {"Elevation", "-430.5", "-430.5", false},
        {"TimeZone", "99", "24", false},  {"LatMin", " ", "", false},         {"UDLnum", "x", "7", true}};
    for (const auto& [field, typed, taken, beeps] : rows) {
        desk.desktop.answers.assign(3, {BoxAnswer::no, {}, ""});
        Enter(field, "7");
        Obey({"asked"});
        Enter(field, typed);
        EXPECT_EQ(window.form.Find(field)->text, taken) << field << typed;
        EXPECT_EQ(desk.Obey("asked").find("beep") != std::string::npos, beeps) << field << typed;
    }
}

TEST_F(UserLocalesWindowTest, StepByKeysAndArrows) {
    // clang-format off
    constexpr std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"LatDeg", "89", "press PageUp", "90 0 0"}, {"LatDeg", "0", "press Minus", "0 0 0"},
        {"LatMin", "59", "press Plus", "1 0 0"}, {"LatSec", "0", "press Up shift", "0 0 0.1"},
        {"LatSec", "5", "click User.LatSecUpDown down", "0 0 4"},
    };
    // clang-format on
    for (const auto& [field, typed, act, shown] : rows) {
        for (const char* other : {"LatDeg", "LatMin", "LatSec"}) Enter(other, "");
        Enter(field, typed);
        Obey({act});
        EXPECT_EQ(window.LatDeg.text + " " + window.LatMin.text + " " + window.LatSec.text, shown) << field << act;
    }
    Obey({"focus User.Elevation", "press PageUp ctrl", "press Down", "press Minus"});
    EXPECT_EQ(window.Elevation.text, "999");
    Obey({"focus User.TimeZone", "press Down", "press Down shift", "click User.ZoneUpDown down"});
    EXPECT_EQ(window.TimeZone.text, "-2.25");
}

TEST_F(UserLocalesWindowTest, ShowTheSameHeightInBothUnits) {
    Obey({"click User.ElevFeet"});
    Enter("Elevation", "153.83");
    Obey({"click User.ElevMeters"});
    EXPECT_EQ(window.Elevation.text, "46.8874");
    Obey({"click User.ElevFeet", "click User.ApplyLoc"});
    EXPECT_EQ(window.Elevation.text, "153.83");
}

TEST_F(UserLocalesWindowTest, AskBeforeChangesAreLeftBehind) {
    for (const char* leaving : {"click User.UDLupDown up", "close User", "menu SetUserLoc", "menu MenuExit"}) {
        Enter("LocName", "Ur");
        Obey({leaving});
        EXPECT_TRUE(hasAsked("User-Defined Locales")) << leaving;
        EXPECT_TRUE(window.form.visible && window.slot == 1 && window.LocName.text == "Ur") << leaving;
    }
    Obey({"answer no", "close User", "menu SetUserLoc"});
    EXPECT_EQ(window.LocName.text, "");
    EXPECT_TRUE(UserLocalesWindow::isClear(1));
    Enter("LocName", "Ur");
    Obey({"answer yes", "click User.UDLupDown up"});
    EXPECT_EQ(UserLocales[1].Name, "Ur");
    EXPECT_EQ(window.UDLnum.text + window.LocName.text, "2");
    Obey({"type User.TimeZone 12", "answer yes", "answer no", "close User"});  // to apply, but not with that zone
    EXPECT_TRUE(window.form.visible && UserLocalesWindow::isClear(2));
    Obey({"press Escape", "asked"});
    EXPECT_FALSE(window.form.visible);
}

TEST_F(UserLocalesWindowTest, KeepMinutesWhereDegreesEnd) {
    Obey({"type User.LatDeg 1", "type User.LatMin 30", "click User.LatDegUpDown down", "click User.LatDegUpDown down"});
    EXPECT_EQ(window.LatDeg.text + " " + window.LatMin.text, "0 30");
    Obey({"click User.UseLMT", "type User.TimeZone 12", "asked", "click User.ApplyLoc"});
    EXPECT_EQ(desk.Obey("asked").find("Check Time Zone"), std::string::npos);
}

TEST_F(UserLocalesWindowTest, ClearASlotForGood) {
    Enter("LocName", "Ur");
    Obey({"click User.ApplyLoc", "click User.ClearLoc", "asked", "menu SetUserLoc"});
    EXPECT_EQ(Locale.Name, "Ur");  // the current place stays
    EXPECT_FALSE(desk.program.frame.UserLoc[1].isShown());
    EXPECT_EQ(desk.Obey("asked"), "none");
    Desk again(LeftBy(desk));
    EXPECT_EQ(again.program.userLocales.LocName.text + again.program.userLocales.LatDeg.text, "");
    EXPECT_FALSE(again.program.frame.UserLoc[1].isShown());
}

TEST_F(UserLocalesWindowTest, CopyPlacesAsTheyAre) {
    for (const LocaleRecord& place : Locales().first(MenuLocaleCount)) {
        desk.program.places.SelectLocale(desk.program.frame.Presets[0], place);
        Obey({"click User.CopyLoc", "answer yes", "click User.ApplyLoc"});
        EXPECT_NEAR(SphericalDistance(Locale, place), 0, 1e-5) << place.Name;
        EXPECT_NEAR(Locale.Zone, place.Zone, 2e-3);
        EXPECT_EQ(std::tuple(Locale.Diaspora, Locale.NoDST), std::tuple(place.Diaspora, place.NoDST)) << place.Name;
    }
    for (const char* name : {"Haifa, ISRAEL", "isRael!"}) {
        Enter("LocName", name);
        Obey({"click User.ApplyLoc"});
        EXPECT_FALSE(Locale.Diaspora) << name;
    }
}

TEST_F(UserLocalesWindowTest, TakeDegreesWithADecimalPoint) {
    const char* const south = "33 51 29.88 South";
    const char* const north = "60 0 0 North";
    for (const auto& [typed, shown] :
         {std::pair("-33.8583", south), {"90.1", south}, {"59.99999999", north}, {"x", north}}) {
        Obey({std::string("answer text ") + typed, "click User.LatLabel"});
        EXPECT_EQ(window.LatDeg.text + " " + window.LatMin.text + " " + window.LatSec.text + " " + window.LatHemi.text,
                  shown);
    }
}

}  // namespace
}  // namespace horvanta
