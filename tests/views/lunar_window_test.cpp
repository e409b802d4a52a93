#include "views/lunar_window.h"

#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "desk_fixture.h"
#include "locale/presets.h"
#include "lunar/lunar_options.h"
#include "lunar/yerm_eras.h"
#include "views/lunar_events.h"
#include "views/moon_look.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace horvanta {
namespace {

using LunarWindowTest = DeskTest;

/// The Moon of 1992 April 12, 0h TD (Meeus, Astronomical Algorithms, example 47.a).
TEST_F(LunarWindowTest, ShowsThePublishedMoon) {
    Show(GregorianToFixed(1992, 4, 12) - 59.0 / 86400);
    const LunarWindow& window = desk.program.lunar;
    EXPECT_EQ(window.MoonLongitude.text, "133.2°");
    EXPECT_EQ(window.MoonLatitude.text, "3.2° S");
    EXPECT_EQ(window.MoonDeclination.text, "13.8° N");
    EXPECT_EQ(window.MoonDistance.text, "368410 km");
    EXPECT_EQ(window.MoonName.text, "Waxing gibbous Moon");
    EXPECT_EQ(window.MoonPhase.text, "+110.8°");
    EXPECT_NE(AskedBy("click Lunar.MoonDistance").find("from the centre of the Earth: 368409."), std::string::npos);
}

TEST_F(LunarWindowTest, PhasesRunAsTheUserWants) {
    const LunarWindow& window = desk.program.lunar;
    Show(PhaseAfter(GregorianToFixed(2024, 1, 1), 250));
    EXPECT_EQ(window.MoonPhase.text, "+250.0°");
    desk.Obey("menu LP180");
    EXPECT_EQ(window.MoonPhase.text, "-110.0°");
    Show(NewMoonAfter(GregorianToFixed(2024, 1, 1)));
    EXPECT_EQ(window.MoonPhase.text, "0.0°");
    EXPECT_EQ(window.MoonAge.text, "New");
    EXPECT_NE(Events("Lunar").find("New Moon, J2000 Lunation Number 297"), std::string::npos);
}

TEST_F(LunarWindowTest, TellsEachEventOnItsDay) {
    constexpr std::pair<const char*, int> rows[] = {
        {"New Moon", 12},     {"First Quarter", 12}, {"Full Moon", 12},   {"Last Quarter", 12},    {"new crescent", 12},
        {"old crescent", 12}, {"Mean Perigee", 13},  {"Mean Apogee", 13}, {"Local Moonrise", 342},
    };
    Locale = PresetLocale("Jerusalem");
    for (const double hour : {0.0, 0.4, 0.9}) {
        std::string told;
        for (int day = 0; day < 354; ++day) {
            for (const LunarEvent& event : LunarEventsOn(GregorianToFixed(2024, 1, 12) + day + hour))
                told += event.text;
        }
        for (const auto& [text, times] : rows) {
            int count = 0;
            for (std::size_t at = 0; (at = told.find(text, at)) != std::string::npos; ++at) ++count;
            EXPECT_EQ(count, times) << text << hour;
        }
    }
}

/// The quarters of a lunation bear one whole number in every numbering.
TEST_F(LunarWindowTest, QuartersOfALunationHaveOneNumber) {
    for (int convention = 1; convention <= 6; ++convention) {
        lunar::options.LunationOption = convention;
        const double first = ChosenLunationConvention().Offset + 310;
        for (double quarter = 0; quarter < 4; ++quarter) {
            const Moment moment = PhaseAfter(NthNewMoon(FirstNewMoonOf2000 + 310) - 0.1, quarter * 90);
            const std::string text = QuarterText(moment, quarter * 90);
            const std::string number = GeneralText(first + quarter / 4);
            EXPECT_TRUE(text.ends_with(std::string(ChosenLunationConvention().Name) + " Lunation Number " + number))
                << text;
        }
    }
}

/// The lit limb of the young Moon in the west points down to the Sun: to the lower right from the north, and to the
/// lower left from the south. At the full Moon all is lit.
TEST_F(LunarWindowTest, PictureIsTurnedToThePlace) {
    const Moment young = NewMoonAfter(GregorianToFixed(2024, 3, 1)) + 2.7;
    const Moment evening = Floor(young) + 0.75;
    const LocaleRecord north = MakeLocale("North", "", 40, 0, 0);
    const LocaleRecord south = MakeLocale("South", "", -40, 0, 0);
    const MoonPicture::Look seenFromNorth = LookOfMoon(evening, north);
    const MoonPicture::Look seenFromSouth = LookOfMoon(evening, south);
    EXPECT_LT(seenFromNorth.lit, 0.2);
    EXPECT_NEAR(seenFromNorth.turn, 225, 40);
    EXPECT_NEAR(seenFromSouth.turn, 135, 40);
    EXPECT_TRUE(seenFromNorth.up);
    EXPECT_GT(LookOfMoon(PhaseAfter(evening, 180), north).lit, 0.99);
    EXPECT_NE(MoonInWords(evening, north).find("above the horizon in the west"), std::string::npos);
    EXPECT_NE(MoonInWords(evening + 0.5, north).find("below the horizon"), std::string::npos);
}

TEST_F(LunarWindowTest, NamesPhases) {
    // clang-format off
    constexpr std::pair<double, const char*> rows[] = {
        {355, "New Moon"}, {-5, "New Moon"}, {7, "Waxing crescent Moon"}, {88, "First quarter Moon"},
        {100, "Waxing gibbous Moon"}, {180, "Full Moon"}, {270, "Last quarter Moon"}, {350, "Waning crescent Moon"},
    };
    // clang-format on
    for (const auto& [phase, name] : rows) EXPECT_EQ(PhaseName(phase), name) << phase;
}

TEST_F(LunarWindowTest, NumbersLunationsAsChosen) {
    desk.Obey("menu LunationOptMenu 2");
    EXPECT_EQ(desk.program.frame.LunationAtEpoch.caption, "Brown Lunation Epoch");
    EXPECT_EQ(desk.program.lunar.LunationConvention.text, "Brown Mean Lunation #");
    desk.Obey("menu LunationAtEpoch");
    EXPECT_NEAR(DisplayedMoment, GregorianToFixed(1923, 1, 17) + 0.1, 0.1);  // Brown's first
    Obey({"answer text 1250.5", "menu ArbitraryLunation"});
    EXPECT_NEAR(DisplayedMoment, GregorianToFixed(2024, 1, 25) + 17.9 / 24, 0.01);  // the full Moon of that month
    const Moment there = DisplayedMoment;
    for (const char* answer : {"text 9999999", "text none", "cancel"}) {
        Obey({std::string("answer ") + answer, "menu ArbitraryLunation"});
        EXPECT_EQ(DisplayedMoment, there) << answer;
    }
}

TEST_F(LunarWindowTest, StepsByLunarCycles) {
    desk.Obey("menu StepMenu 3");
    Show(NewMoonAfter(GregorianToFixed(2024, 5, 1)));
    const double phase = lunar::Phase(DisplayedMoment);
    const Moment from = DisplayedMoment;
    desk.Obey("press Up");
    EXPECT_NEAR(DisplayedMoment - from, 29.5, 0.4);
    desk.Obey("press PageUp");
    EXPECT_NEAR(DisplayedMoment - from, 13 * MeanSynodicMonth, 0.6);
    Obey({"answer text -0.5", "menu JumpBy"});
    EXPECT_NEAR(std::fabs(ModuloRange(lunar::Phase(DisplayedMoment) - phase, -180, 180)), 180, 0.001);
}

class YermList : public DeskTest {
  protected:
    void TearDown() override { std::filesystem::remove(path_); }

    const std::string& File(const std::string& text) {
        std::ofstream(path_) << text;
        return path_;
    }

  private:
    std::string path_ = std::filesystem::temp_directory_path() / ("lunar_window_test_" + std::to_string(getpid()));
};

TEST_F(YermList, IsOpenedAndRemembered) {
    const std::string path = File("Two eras\n108000\n1\n-17889\n201853.5\n226954.5\n252055.5\n");
    Show(GregorianEpoch + 201859);
    Obey({"answer text " + path, "menu OpenYermEras"});
    EXPECT_EQ(desk.program.lunar.YLCera.text, "Era 1 = 52 yerms");
    EXPECT_EQ(desk.program.lunar.YLCdate.text, "1+1(1(7");
    Show(GregorianEpoch + 201000);
    EXPECT_EQ(desk.program.lunar.YLCdate.text, "–");
    EXPECT_NE(AskedBy("click Lunar.InfoYLC").find("Two eras"), std::string::npos);
    desk.Obey("menu SavePreferences");
    const StoredSettings settings = desk.desktop.settings.values;
    RevertToFixedYermCycle();
    {
        Desk again(settings);
        EXPECT_TRUE(PresentYermForm().Progressive);
        again.Obey("menu RevertYerm52");
        EXPECT_FALSE(PresentYermForm().Progressive);
    }
    File("no list");
    Desk later(settings);
    EXPECT_FALSE(PresentYermForm().Progressive);
    EXPECT_EQ(later.Obey("asked"), "none");  // silent at the start
    later.Obey("menu SavePreferences");
    EXPECT_EQ(later.desktop.settings.values["Horvanta-UDLs"]["YLC"]["YP"], path);  // it may be readable again
    later.Obey("answer text " + path);
    later.Obey("menu OpenYermEras");
    EXPECT_NE(later.Obey("asked").find("box \"Open Yerm Era List\""), std::string::npos);
}

}  // namespace
}  // namespace horvanta
