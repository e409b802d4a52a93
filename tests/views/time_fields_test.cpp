#include "views/time_fields.h"

#include "astro/sun.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "clock/zone_time.h"
#include "desk_fixture.h"

#include <optional>
#include <tuple>
#include <utility>

namespace horvanta {
namespace {

/// A desk under rata die numbering at a place of the menu.
class TimeFieldsTest : public DeskTest {
  protected:
    TimeFieldsTest() { desk.Obey("menu SetEpochOptMenu 2"); }

    TimeFields& fields = desk.program.timeAstro.fields;
};

TEST_F(TimeFieldsTest, SwitchDeltaTOffAndOnAtTheSameInstant) {
    for (const Moment moment : {-2533803.0, -1.25, 500'000.0, 730120.5, 739000.0, 1'500'000.0, 4'000'000.0}) {
        Show(moment);
        desk.Obey("asked");
        const Moment saved = SavedMoment;
        desk.Obey("click TimeAstro.UseDeltaT");
        EXPECT_NE(DisplayedMoment, moment);
        EXPECT_NEAR(SavedMoment, saved + 75.0 / 86400, 3.0 / 86400);
        EXPECT_EQ(DeltaT(moment, 1), 0);
        EXPECT_EQ(fields.DeltaTdisp.text, "0.0 s");
        EXPECT_FALSE(fields.DeltaTdisp.enabled);
        EXPECT_EQ(desk.program.timeAstro.UT.text, "Atomic Time");
        EXPECT_EQ(desk.Obey("asked").substr(0, 28), "box \"Delta T Disabled\" \"WARN") << moment;
        const Moment atomic = DisplayedMoment;
        desk.Obey("click TimeAstro.UseDeltaT");
        EXPECT_EQ(DisplayedMoment, moment);
        EXPECT_EQ(SavedMoment, saved);
        EXPECT_EQ(UniversalToTerrestrial(moment), atomic);

        ObeyAll(desk, {"click TimeAstro.UseDeltaT", "call JumpDate 1 false", "click TimeAstro.UseDeltaT"});
        EXPECT_NEAR(DisplayedMoment, moment + 1, 1e-4) << moment;
    }
}

/// The other scale may leave no room for a moment at an end of the range; the saved one is kept all the same.
TEST(TimeFields, SwitchDeltaTAtTheEndsOfTheRange) {
    for (const char* end : {"-9e9", "9e9"}) {
        for (const bool savedWithout : {false, true}) {
            std::optional<Desk> desk(std::in_place);
            if (savedWithout) desk->Obey("click TimeAstro.UseDeltaT");
            desk->Obey(std::string("type TimeAstro.FixedDayNum ") + end);
            desk->Obey("menu SaveThisMoment");
            const Moment shown = DisplayedMoment;
            for (int times = 0; times < 2; ++times) desk->Obey("click TimeAstro.UseDeltaT");
            EXPECT_TRUE(savedWithout || DisplayedMoment == shown) << ExactText(DisplayedMoment);
            desk->Obey("click TimeAstro.UseDeltaT");
            const Moment saved = SavedMoment;
            EXPECT_NEAR(saved, shown, 5);
            desk->Obey("menu MenuExit");
            const StoredSettings left = desk->desktop.settings.flushed;
            desk.reset();
            desk.emplace(left);
            EXPECT_EQ(SavedMoment, saved);
            desk->Obey("click TimeAstro.UseDeltaT");
            EXPECT_NEAR(SavedMoment, shown, 1e-4);
        }
    }
}

TEST_F(TimeFieldsTest, TellDaylightSavingTime) {
    constexpr std::tuple<const char*, Moment, bool, int, const char*> rows[] = {
        {"SetJerusalem", 738900, true, 16711680, "Standard Time applied for the displayed moment"},
        {"SetJerusalem", 739080, true, 255, "Daylight Saving Time applied for the displayed moment"},
        {"SetMelbourne", 738900, true, 255, "Daylight Saving Time applied for the displayed moment"},
        {"SetMelbourne", 739080, true, 16711680, "Standard Time applied for the displayed moment"},
        {"SetMelbourne", 738900, false, -1, "Daylight Saving Time disabled"},
        {"SetTehran", 739080, true, -1, "Daylight Saving Time disabled"},
    };
    for (const auto& [place, moment, on, color, tooltip] : rows) {
        if ((zone_time::options.AdjustDST == 1) != on) fields.AdjustDST_Click();
        desk.Obey(std::string("menu ") + place);
        Show(moment);
        EXPECT_EQ(fields.AdjustDST.tooltip, tooltip) << place << moment;
        EXPECT_EQ(fields.AdjustDST.tint ? fields.AdjustDST.tint->Number() : -1, color) << place;
        EXPECT_EQ(fields.AdjustDST.enabled, std::string(place) != "SetTehran");
    }
    zone_time::options.AdjustDST = Undecided;
    fields.AdjustDST_Click();
    EXPECT_EQ(zone_time::options.AdjustDST, Unchecked);
}

/// Each clock time follows the rule of its own moment: in the night of a switch the bar shows both.
TEST_F(TimeFieldsTest, ShowTheSunInTheTimeOfTheClock) {
    desk.Obey("menu SetTimesSquare");
    Show(GregorianToFixed(2024, 3, 10));
    const std::vector<StatusBar::Panel>& panels = fields.DawnDusk.panels;
    EXPECT_EQ(panels[2].text.substr(0, 5), "00:06");
    EXPECT_EQ(panels[4].text.substr(0, 5), "07:14");
    EXPECT_EQ(panels[8].text.substr(0, 5), "18:58");
    desk.Obey("click TimeAstro.DawnDusk 5");
    EXPECT_EQ(desk.program.timeAstro.ClipBoardStatus.text, "Sunrise: " + panels[4].text);
    EXPECT_EQ(panels[4].tooltip, "Solar Depression 1°01'52.9\" (elevation adjusted)");
}

TEST_F(TimeFieldsTest, StepByYears) {
    constexpr std::tuple<const char*, const char*, double> rows[] = {
        {"4", "press Up", 1},          {"4", "press Down", -1},
        {"4", "press PageUp", 10},     {"5", "press Up", 10},
        {"5", "press PageDown", -100}, {"6", "press Down", -100},
        {"6", "press PageUp", 1000},   {"4", "call JumpDate 2.25 false", 2.25}};
    for (const auto& [step, line, years] : rows) {
        desk.Obey(std::string("menu StepMenu ") + step);
        for (const Moment moment : {500'000.25, 739000.0}) {
            desk.Obey("menu StepBySolarYear");
            Show(moment);
            desk.Obey(line);
            EXPECT_NEAR(DisplayedMoment, moment + years * MeanTropicalYear, 3) << line;
            const double turned = SolarLongitude(DisplayedMoment) - SolarLongitude(moment) - 360 * years;
            EXPECT_NEAR(Modulo(turned + 180, 360), 180, 2e-5) << line;

            desk.Obey("menu StepByOrbitalYear");
            Show(moment);
            desk.Obey(line);
            EXPECT_NEAR(MomentToRAYDate(DisplayedMoment), MomentToRAYDate(moment) + years, 1e-6) << line;
        }
    }
    EXPECT_EQ(desk.program.timeAstro.IncrementDisplay.text, "Step by Orbital Years");
}

/// Of the date that is shown, and without the seconds of the time.
std::string AstronomyEvents() {
    std::string texts;
    for (const day_events::Event& event : day_events::List()) {
        if (event.calendar == "Astronomy") texts += event.date.substr(0, 5) + " " + event.text + ";";
    }
    return texts;
}

TEST_F(TimeFieldsTest, PostTheSolarEventsOfTheWholeDay) {
    const std::pair<Moment, const char*> rows[] = {
        {GregorianToFixed(2024, 3, 19) + 0.99, ""},
        {GregorianToFixed(2024, 3, 20), "03:05 Northward Equinox (Solar Longitude 0°);"},
        {GregorianToFixed(2024, 3, 20) + 0.99, "03:05 Northward Equinox (Solar Longitude 0°);"},
        {GregorianToFixed(2024, 3, 21), ""},
        {GregorianToFixed(2024, 6, 20) + 0.5, "20:50 North Solstice (Solar Longitude 90°);"},
        {GregorianToFixed(2024, 1, 4), "05:41 Mean Perihelion of Earth-Moon Barycenter;"},
        {GregorianToFixed(2023, 12, 31) + 0.9,
         "22:58 Mean Orbital New Year;23:04 Besselian New Year (Solar Longitude 280°);"},
    };
    for (const auto& [moment, events] : rows) {
        Show(moment);
        EXPECT_EQ(AstronomyEvents(), events) << moment;
    }
    desk.Obey("click TimeAstro.Orbital_RAY_Toggle");
    for (const int days : {0, 2}) {
        Show(Floor(RAYDateToMoment(2024)) + days);
        EXPECT_EQ(AstronomyEvents().find("Rotation-Adjusted New Year") != std::string::npos, days == 0);
    }
}

TEST_F(TimeFieldsTest, ShowWhatAPersonReadsAndCopyAllDigits) {
    Show(739000.123456789);
    const std::pair<const Control*, const char*> shown[] = {
        {&desk.program.timeAstro.FixedDayNum, "739000.123457"},
        {&fields.JD_MJD, "2460424.62346"},
        {&fields.Orbital_RAY_Date, "2024.312576"},
        {&fields.EoT, "+1m 52.9s"},
        {&fields.DeltaTdisp, "74.1 s"},
    };
    for (const auto& [control, text] : shown) EXPECT_EQ(control->text, text) << control->name;
    desk.Obey("click TimeAstro.EoT");
    EXPECT_EQ(desk.program.timeAstro.ClipBoardStatus.text.substr(0, 56),
              "Equation of Time = apparent – mean solar time: +1.8814");
    desk.Obey("press Enter");  // a number that was only looked at keeps its digits
    EXPECT_EQ(DisplayedMoment, 739000.123456789);
}

TEST_F(TimeFieldsTest, CopyWhatIsClicked) {
    constexpr std::pair<const char*, const char*> rows[] = {
        {"TimeAstro.TimeOfDay", "Universal Time 06:00:00, DST 09:00:00, Local Mean 08:20:56, Local Apparent 08:15:00"},
        {"TimeAstro.DeltaTdisp", "Delta T: 74.188s = 00:01:14"},
        {"TimeAstro.SavedDiffBox", "181.25 days after saved date. = 181 days 06:00:00"},
        {"TimeAstro.FixedDayNumLabel",
         "Universal Days relative to day 1 on Monday, January 1, 1 (Gregorian) at Midnight: 739081.25"},
    };
    desk.Obey("menu SetJerusalem");
    Show(738900);
    desk.Obey("menu SaveThisMoment");
    Show(739081.25);
    for (const auto& [control, copied] : rows) {
        EXPECT_EQ(desk.Obey(std::string("click ") + control), "ok");
        EXPECT_EQ(desk.program.timeAstro.ClipBoardStatus.text, copied);
    }
}

}  // namespace
}  // namespace horvanta
