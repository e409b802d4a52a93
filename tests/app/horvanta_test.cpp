#include "app/horvanta.h"

#include "core/preferences.h"
#include "desk_fixture.h"

#include <tuple>

namespace horvanta {
namespace {

TEST_F(DeskTest, ChoosesAndSavesTodayInAFirstRun) {
    EXPECT_EQ(DisplayedMoment, 8415);
    EXPECT_EQ(SavedMoment, 8415);
    EXPECT_EQ(BusyCount, 0);
    EXPECT_EQ(desk.program.gregorian.GregorianDate.text, "Monday, January 15, 2024 ");
    EXPECT_EQ(desk.program.timeAstro.SavedToFrom.text, "days after saved date.");
    EXPECT_EQ(desk.desktop.focused, &desk.program.timeAstro.FixedDayNum);
    EXPECT_EQ(desk.desktop.settings.flushed["Horvanta"]["Prog"]["Launch"], "OK");
    EXPECT_TRUE(desk.desktop.asked.empty());
}

TEST(Start, FindsWhatTheLastRunSaved) {
    for (const double moment : {1000.123456789, 0.0}) {  // day 0 is a day like others
        StoredSettings left;
        {
            Desk desk;
            ObeyAll(desk, {"menu AlwaysToday", "type TimeAstro.FixedDayNum 2000", "menu SaveThisMoment",
                           "type TimeAstro.FixedDayNum " + ExactText(moment), "close Gregorian", "menu MenuExit"});
            EXPECT_TRUE(desk.desktop.ended);
            EXPECT_EQ(desk.Obey("press Up"), "error: the program has ended");
            left = desk.desktop.settings.flushed;
        }
        const Desk desk(left);
        EXPECT_EQ(DisplayedMoment, moment);
        EXPECT_EQ(SavedMoment, 2000);
        EXPECT_FALSE(stepping::options.AlwaysToday);
        EXPECT_FALSE(desk.program.gregorian.form.visible);
        EXPECT_TRUE(desk.program.timeAstro.form.visible);
    }
}

/// A start that is killed leaves the mark empty, and whatever it choked on is gone at the next.
TEST(Start, ClearsTheSettingsAfterAStartThatDidNotFinish) {
    struct KilledDesktop : RecordingDesktop {
        void LetEventsRun() override { throw 1; }
    } killed;
    killed.settings.values = {{"Horvanta", {{"Item", {{"RD", "1000"}}}, {"TimeAstro", {{"Chk", "False"}}}}},
                              {"Horvanta-UDLs", {{"User 1", {{"Name", "Home"}}}}}};
    CurrentDesktop = &killed;
    {
        Horvanta program;
        EXPECT_THROW(program.Start(), int);
    }
    StoredSettings left = killed.settings.flushed;
    EXPECT_EQ(left["Horvanta"]["Prog"].at("Launch"), "");
    EXPECT_EQ(left["Horvanta"]["Item"]["RD"], "1000");

    Desk desk(left);
    EXPECT_EQ(DisplayedMoment, 8415);
    EXPECT_TRUE(stepping::options.AlwaysToday);
    EXPECT_EQ(desk.desktop.settings.values["Horvanta-UDLs"]["User 1"]["Name"], "Home");
    EXPECT_EQ(desk.desktop.settings.kept["Horvanta"]["Item"]["RD"], "1000");
    EXPECT_EQ(desk.Obey("status"), "\"The former settings are kept.\"");
}

TEST(End, HasFourWays) {
    constexpr std::tuple<const char*, const char*, const char*> rows[] = {
        {"MenuExit", "8416", "255"},
        {"QuitWithoutSavePrefs", "none", "none"},
        {"ResetPrefsAndQuit", "none", "none"},
        {"ResetColorsAndQuit", "8416", "none"},
    };
    for (const auto& [item, moment, foreground] : rows) {
        Desk desk;
        ObeyAll(desk, {"answer text Text Colour...", "answer color 255", "rightclick TimeAstro.TimeOfDay", "press Plus",
                       std::string("menu ") + item});
        EXPECT_TRUE(desk.desktop.ended);
        desk.desktop.settings.values = desk.desktop.settings.flushed;
        EXPECT_EQ(desk.desktop.settings.Read(ProgramSettings, "Item", "RD").value_or("none"), moment) << item;
        EXPECT_EQ(desk.desktop.settings.Read(ProgramSettings, "Color", "AFC").value_or("none"), foreground) << item;
    }
}

/// The user hears of it in three ways, and may stay to make room; nothing that was on the disk goes.
TEST(End, TellsThatTheSettingsCouldNotBeSaved) {
    for (const char* item : {"MenuExit", "ResetPrefsAndQuit", "ResetColorsAndQuit"}) {
        Desk desk;
        desk.Obey("menu SavePreferences");
        EXPECT_EQ(desk.Obey("status"), "\"The settings are saved.\"");
        const StoredSettings before = desk.desktop.settings.flushed;
        desk.desktop.settings.refusal = "The disk is full.";
        desk.Obey("menu SavePreferences");
        EXPECT_EQ(desk.Obey("asked"), "beep; box \"Save Preferences\" \"The disk is full.\"");
        EXPECT_EQ(desk.Obey("status"), "\"The disk is full.\"");
        ObeyAll(desk, {"answer no", std::string("menu ") + item});
        EXPECT_FALSE(desk.desktop.ended) << item;
        EXPECT_TRUE(desk.program.timeAstro.form.visible);
        EXPECT_EQ(desk.Obey("asked"), "beep; box \"Quit\" \"The disk is full.\\n\\nQuit all the same?\" no");
        EXPECT_EQ(desk.desktop.settings.flushed, before) << item;
        desk.desktop.settings.refusal.clear();
        desk.Obey("menu SavePreferences");
        EXPECT_EQ(desk.desktop.settings.flushed["Horvanta"]["Item"], before.at("Horvanta").at("Item")) << item;
        desk.desktop.settings.refusal = "The disk is full.";
        ObeyAll(desk, {"answer yes", std::string("menu ") + item});
        EXPECT_TRUE(desk.desktop.ended) << item;
    }
}

/// What is being entered and was not applied is neither saved nor asked about.
TEST_F(DeskTest, OfTheSessionSavesWithoutAQuestion) {
    Obey({"menu SetUserLoc", "type User.LocName Home", "click User.ApplyLoc", "type User.LocName Away", "press Plus",
          "asked"});
    desk.program.EndSession();
    EXPECT_TRUE(desk.desktop.ended);
    EXPECT_EQ(desk.Obey("asked"), "none");
    EXPECT_EQ(desk.desktop.settings.flushed["Horvanta-UDLs"]["User 1"]["Name"], "Home");
}

TEST(Keys, MoveTheMoment) {
    // clang-format off
    constexpr std::tuple<const char*, const char*, double, double> rows[] = {
        {"1", "press Space", 1000.25, 1001},  {"1", "press Space shift", 1000.25, 999},  {"1", "press Space ctrl", 1000, 999},
        {"1", "press Plus", 1000.25, 1001},   {"1", "press Minus", 1000, 999},           {"2", "press Plus", 1000, 1001},
        {"1", "press Up", 1000, 1001},        {"1", "press Down", 1000, 999},            {"2", "press Up", 1000, 1007},
        {"1", "press PageUp", 1000, 1007},    {"1", "press PageDown", 1000, 993},        {"2", "press PageDown", 1000, 972},
        {"1", "press Home", 1000, 8415},    {"1", "press Escape", 1000, 8415},       {"1", "press Pause", 1000, 8415},
        {"1", "press Left", 1000.25, 1000.25}, {"1", "press Shift shift", 1000.25, 1000.25},
        {"1", "click TimeAstro.NextUp", 1000, 1001}, {"1", "click TimeAstro.JumpToPast", 1000, 993},
        {"2", "click TimeAstro.NextDown", 1000, 993}, {"2", "click TimeAstro.JumpToFuture", 1000, 1028},
        {"2", "click TimeAstro.DayDown", 1000, 999}, {"2", "click TimeAstro.DayUp", 1000, 1001},
    };
    // clang-format on
    Desk desk;
    for (const auto& [step, line, from, to] : rows) {
        desk.Obey(std::string("menu StepMenu ") + step);
        desk.program.timeAstro.TakeFocus();
        desk.desktop.Settle();
        desk.Obey("set DisplayedMoment " + std::to_string(from));
        EXPECT_EQ(desk.Obey(line), "ok") << line;
        EXPECT_EQ(DisplayedMoment, to) << line;
        EXPECT_EQ(stepping::options.StepIndex == 2 ? 7 : 1, Increment) << line;
        EXPECT_EQ(desk.program.timeAstro.FixedDayNum.text, GeneralText(to)) << line;
    }
    EXPECT_EQ(desk.Obey("asked"), "none");
}

TEST(FixedDayNum, TakesNumbersAndGivesTheOldOneBackForAnythingElse) {
    const std::string digits(5000, '7');
    const std::tuple<std::string, double, const char*> rows[] = {
        {"1000.5", 1000.5, "none"},     {" 2000 ", 2000, "none"},
        {"—1000", -1000, "none"},       {"-0", 0, "none"},
        {"12x", 739000.25, "beep"},     {"", 739000.25, "beep"},
        {"—", 739000.25, "beep"},       {"1e400", 739000.25, "beep"},
        {"nan", 739000.25, "beep"},     {"inf", 739000.25, "beep"},
        {digits, 739000.25, "beep"},    {"1e300", 3652060, "beep"},
        {"-9999999", -3264288, "beep"}, {"739000.250", 739000.25, "none"}};
    Desk desk;
    for (const auto& [typed, moment, asked] : rows) {
        ObeyAll(desk, {"set DisplayedMoment 739000.25", "type TimeAstro.FixedDayNum " + typed});
        EXPECT_EQ(DisplayedMoment, moment) << typed;
        EXPECT_EQ(desk.program.timeAstro.FixedDayNum.text, GeneralText(moment)) << typed;
        EXPECT_EQ(desk.Obey("asked"), asked) << typed;
    }
}

TEST(SavedMoment, IsToldByItsDistance) {
    constexpr std::tuple<double, const char*, const char*> rows[] = {
        {8415, "0", "days after saved date."},
        {8416, "1", "day after saved date."},
        {8414.5, "0.5", "days before saved date."},
        {8415.0004, "0", "days after saved date."},
    };
    Desk desk;
    for (const auto& [moment, distance, words] : rows) {
        desk.Obey("set DisplayedMoment " + GeneralText(moment));
        EXPECT_EQ(desk.program.timeAstro.SavedDiffBox.text, distance) << moment;
        EXPECT_EQ(desk.program.timeAstro.SavedToFrom.text, words) << moment;
    }
    ObeyAll(desk, {"set DisplayedMoment 1000", "menu JumpToSaved"});
    EXPECT_EQ(DisplayedMoment, 8415);
}

}  // namespace
}  // namespace horvanta
