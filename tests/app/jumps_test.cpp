#include "app/jumps.h"

#include "app/event_searches.h"
#include "app/options.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "calendars/quartane_options.h"
#include "desk_fixture.h"
#include "locale/presets.h"

#include <set>
#include <tuple>

namespace horvanta {
namespace {

/// Each search is strict, steps from event to event, and comes back the way it went, also from a moment just beside an
/// event. The rows have the period, and the days from the start of 2024 to the first event.
TEST(Events, AreWalkedThereAndBack) {
    // clang-format off
    constexpr std::tuple<MenuEvent, double, double> rows[] = {
        {MenuEvent::RotationAdjustedNewYear, 365.2425, 0.08}, {MenuEvent::MeanOrbitalNewYear, 365.2422, 365.2},
        {MenuEvent::BesselianNewYear, 365.2422, 365.2},       {MenuEvent::SolarEvent, 91.3, 79.1},
        {MenuEvent::NorthwardEquinox, 365.2424, 79.1},        {MenuEvent::NorthSolstice, 365.2416, 171.9},
        {MenuEvent::SouthwardEquinox, 365.242, 265.5},        {MenuEvent::SouthSolstice, 365.2427, 355.4},
        {MenuEvent::MeanPerihelion, 365.2596, 3.2},           {MenuEvent::MeanAphelion, 365.2596, 185.9},
        {MenuEvent::NewMoon, 29.530589, 10.5},                {MenuEvent::FirstQuarterMoon, 29.530589, 17.16},
        {MenuEvent::FullMoon, 29.530589, 24.75},              {MenuEvent::LastQuarterMoon, 29.530589, 3.15},
        {MenuEvent::FirstNewCrescent, 29.530589, 11.6},       {MenuEvent::LastOldCrescent, 29.530589, 9.2},
        {MenuEvent::MeanNewMoon, 29.530589, 10.18},           {MenuEvent::MeanPerigee, 27.55455, 14.07},
        {MenuEvent::MeanApogee, 27.55455, 0.29},              {MenuEvent::VedicTithi, 0.984353, 0.37},
        {MenuEvent::MoladMoment, 29.530594, 10.25},
    };
    // clang-format on
    Locale = PresetLocale("Jerusalem");
    const FixedDay year = GregorianToFixed(2024, 1, 1);
    for (const auto& [event, days, first2024] : rows) {
        const auto jump = FindEventSearch(event)->jump;
        SCOPED_TRACE(static_cast<int>(event));
        EXPECT_NEAR(jump(year, 1) - year, first2024, 0.1);
        for (const Moment start : {-2'000'000.3, 700'000.0, 739'000.0, 4'000'000.7}) {
            const Moment first = jump(start, 1);
            EXPECT_GT(first, start);
            EXPECT_NEAR(jump(first - 0.01, 1), first, 0.002) << start;
            Moment x = first;
            for (int i = 0; i < 100; ++i) x = jump(x, 1);
            EXPECT_NEAR(x - first, 100 * days, 3) << start;
            for (int i = 0; i < 100; ++i) x = jump(x, -1);
            EXPECT_NEAR(x, first, 0.002) << start;
            EXPECT_LT(jump(start, -1), start);
        }
    }
}

/// The event just passed is the previous one, on whichever side of a year's first day it fell.
TEST(Events, GoBackToTheOneJustPassed) {
    quartane::options = {.LeapRuleKey = "NE80", .QuaSoupMix = true};
    for (const MenuEvent event : {MenuEvent::BesselianNewYear, MenuEvent::QuaNewYearMoment}) {
        const auto jump = FindEventSearch(event)->jump;
        for (std::int32_t year = 1990; year < 2050; ++year) {
            const Moment found = jump(GregorianToFixed(year, 6, 1), 1);
            for (const double later : {0.3, 1.0, 3.0, 200.0}) {
                EXPECT_NEAR(jump(found + later, -1), found, 1e-4) << year << " " << later;
            }
        }
    }
}

TEST_F(DeskTest, AgainRepeatsTheLastEvent) {
    EXPECT_EQ(desk.Obey("menu JumpAgain"), "error: not enabled: JumpAgain");
    desk.Obey("menu NextMenu 24");
    EXPECT_EQ(desk.program.frame.JumpAgain.caption, "Again (Next Northward Equinox)");
    const Moment first = DisplayedMoment;
    EXPECT_EQ(FixedToGregorianString(first), "Wednesday, March 20, 2024");
    desk.Obey("click TimeAstro.JumpAgainButton");
    EXPECT_EQ(FixedToGregorianString(DisplayedMoment), "Thursday, March 20, 2025");
    desk.Obey("menu PrevMenu 24");
    EXPECT_EQ(desk.program.timeAstro.JumpAgainButton.tooltip,
              "Again invoke the \"Previous Northward Equinox\" command");
    EXPECT_NEAR(DisplayedMoment, first, 1e-4);
}

TEST(Numbering, KeepsEveryDate) {
    constexpr std::tuple<std::int32_t, const char*, double> rows[] = {
        {1, "Thursday, July 4, 2024", 1},      {2, "Monday, January 1, 1", 1},
        {3, "Sunday, December 31, 1899", 61},  {4, "Monday, January 1, 2001", 1},
        {5, "Monday, January 1, 1968", 1},     {6, "Tuesday, November 25, -4713", 0.5},
        {7, "Thursday, November 18, 1858", 0}, {8, "Saturday, May 25, 1968", 0},
        {9, "Monday, January 1, 1601", 1},     {10, "Friday, March 22, 622", 1},
        {11, "Monday, February 18, -2696", 1}, {12, "Monday, September 7, -3760", 1},
    };
    for (const auto& [index, dayOne, epochValue] : rows) {
        Desk desk;
        ObeyAll(desk, {"set DisplayedMoment " + ExactText(GregorianToFixed(2024, 7, 4) + 0.375),
                       "menu SetEpochOptMenu " + std::to_string(index)});
        EXPECT_EQ(FixedToGregorianString(1), dayOne);
        EXPECT_EQ(desk.program.gregorian.GregorianDate.text, "Thursday, July 4, 2024 ");
        EXPECT_EQ(desk.program.timeAstro.TimeOfDay.text, "09:00:00");
        EXPECT_EQ(FixedToGregorianString(SavedMoment), "Monday, January 15, 2024");
        EXPECT_EQ(DayOfWeek(DisplayedMoment), 4);
        EXPECT_TRUE(desk.program.frame.SetEpochOptMenu[static_cast<std::size_t>(index)].isTicked());
        EXPECT_EQ(MomentToMJD(DisplayedMoment), 60495.375);
        const double mjd = MomentToMJD(DisplayedMoment);
        EXPECT_TRUE(index != 6 || DisplayedMoment == MomentToJD(DisplayedMoment) + 0.5);
        EXPECT_TRUE(index != 7 || DisplayedMoment == mjd);
        EXPECT_TRUE(index != 8 || DisplayedMoment == mjd - 40000);
        desk.Obey("menu SetEpochOptMenu 4");
        EXPECT_EQ(DisplayedMoment, 8586.375);
        ObeyAll(desk, {"menu SetEpochOptMenu " + std::to_string(index), "menu FixedDayEpoch"});
        EXPECT_EQ(DisplayedMoment, epochValue);
        EXPECT_TRUE(desk.desktop.asked.empty());
    }
}

TEST(JumpBy, TakesNumbersAndNothingElse) {
    // clang-format off
    constexpr std::tuple<const char*, const char*, double, const char*> rows[] = {
        {"1", "answer text 2.5", 1002.5, ""}, {"2", "answer text —3", 979, ""},
        {"1", "answer text 1e9", 3652060, "beep"}, {"1", "answer text two", 1000, ""}, {"1", "answer text", 1000, ""},
        {"1", "answer cancel", 1000, ""}, {"1", "answer text 0", 1000, ""}, {"5", "answer text 0.1", 1365.2, ""},
    };
    // clang-format on
    Desk desk;
    for (const auto& [step, answer, moment, beep] : rows) {
        ObeyAll(desk, {std::string("menu StepMenu ") + step, "set DisplayedMoment 1000", answer,
                       "click TimeAstro.IncrementDisplay"});
        EXPECT_NEAR(DisplayedMoment, moment, 0.1) << answer;
        EXPECT_EQ(desk.Obey("asked").find("beep") != std::string::npos, *beep != 0) << answer;
    }
    EXPECT_EQ(desk.program.frame.JumpBy.caption, "Jump By Solar Decades...");
}

TEST_F(DeskTest, ColorsAreChangedFromTheMenuAndUndone) {
    const Control& date = desk.program.gregorian.GregorianDate;
    const ColorPair before = *date.colors;
    EXPECT_EQ(desk.Obey("menu UndoLastColorChange"), "error: not enabled: UndoLastColorChange");
    Obey({"focus Gregorian.InfoGreg", "answer color 255", "menu PickForeColor"});
    EXPECT_EQ(date.colors->foreground.Number(), 255);
    EXPECT_EQ(desk.program.timeAstro.TimeOfDay.colors->foreground.Number(), 0);
    desk.Obey("menu UndoLastColorChange");
    EXPECT_EQ(date.colors, before);
    desk.Obey("menu UndoLastColorChange");
    EXPECT_EQ(date.colors->foreground.Number(), 255);
}

/// In the menu bar, and among the places, which stand by name.
TEST_F(DeskTest, MenusAreReachedByKeysOfTheirOwn) {
    for (const auto* menu :
         std::initializer_list<const MenuItem*>{&desk.program.frame.menuBar, &desk.program.frame.LocaleMenu}) {
        const bool byName = menu == &desk.program.frame.LocaleMenu;
        std::set<char> keys;
        std::string before;
        for (const MenuItem* item : menu->items) {
            if (!item->isShown() || item->isSeparator()) continue;
            const std::size_t mark = item->caption.find('&');
            ASSERT_NE(mark, std::string::npos) << item->caption;
            EXPECT_TRUE(keys.insert(static_cast<char>(item->caption[mark + 1] | 0x20)).second) << item->caption;
            if (!byName || item->name == "UDLs") continue;
            EXPECT_LT(before, RemoveAmpersands(item->caption));
            before = RemoveAmpersands(item->caption);
        }
    }
    desk.Obey("menu MenuJumpToNow");
    EXPECT_EQ(desk.program.timeAstro.TimeOfDay.text, "10:30:00");
}

}  // namespace
}  // namespace horvanta
