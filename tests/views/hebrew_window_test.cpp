#include "views/hebrew_window.h"

#include "desk_fixture.h"
#include "locale/presets.h"

#include <algorithm>

namespace horvanta {
namespace {

class HebrewWindowTest : public DeskTest {
  protected:
    using DeskTest::Show;
    static void Show(const char* place, FixedDay day) {
        Locale = PresetLocale(place);
        Show(day + 0.5);
    }

    static std::string Events() { return DeskTest::Events("Hebrew"); }

    /// What a bar's panel of that name shows.
    std::string Time(std::string_view key) {
        return std::ranges::find(window_.DawnDusk.panels, key, &StatusBar::Panel::key)->text;
    }

    HebrewWindow& window_ = desk.program.hebrew;
};

TEST_F(HebrewWindowTest, ShowsDateYearAndDay) {
    Show("Jerusalem", GregorianToFixed(2024, 4, 27));
    EXPECT_EQ(window_.HebrewDate.text, "Yom Shabbat, 19 Nisan, 5784 ");
    EXPECT_EQ(window_.HebrewCycleInfo.text, "7D3* leap year 8/19, day 225+158=383, month 71534");
    EXPECT_EQ(Events(), "Chol Hamoed Pesach; 4th day of the Omer; Shabbat Chol Hamoed; ");
}

/// Portions of a Sabbath, one and two; eves; what is not told twice.
TEST_F(HebrewWindowTest, TellsPortionsAndEves) {
    Show("Times Square", GregorianToFixed(2023, 7, 15));
    EXPECT_NE(Events().find("Torah portions are Mattot-Masei; "), std::string::npos) << Events();
    EXPECT_NE(Events().find("Molad of Av = "), std::string::npos);
    Show("Times Square", GregorianToFixed(2024, 5, 11));
    EXPECT_NE(Events().find("Torah portion is Kedoshim; "), std::string::npos) << Events();
    Show("Times Square", GregorianToFixed(2024, 4, 22));
    EXPECT_EQ(Events(), "Ta'anit Bechorot (Fast of Firstborn); Erev Passover 1; ");
    Show("Times Square", GregorianToFixed(2024, 10, 11));
    EXPECT_NE(Events().find("Erev Yom Kippur (Atonement); "), std::string::npos);
    EXPECT_EQ(Events().find("Erev Yom Kippur"), Events().rfind("Erev Yom Kippur"));
    Show("Jerusalem", GregorianToFixed(2024, 12, 26));
    EXPECT_EQ(Events(), "Chanukah 1; Erev Chanukah 2; ");
}

TEST_F(HebrewWindowTest, CopiesTimes) {
    Show("Jerusalem", GregorianToFixed(2024, 12, 27));
    const std::string candles = Time("Candles");
    EXPECT_EQ(candles.front(), '<');
    EXPECT_EQ(AskedBy("click Hebrew.DawnDuskLegends 9"),
              "clipboard \"Light Candles before " + candles.substr(1) + "\"");
    EXPECT_EQ(AskedBy("click Hebrew.DawnDusk 1"), "clipboard \"Dawn (Maimonides) = " + Time("Dawn") + "\"");
    desk.Obey("menu SetCandles40");
    EXPECT_NE(Time("Candles"), candles);
    Show("Jerusalem", GregorianToFixed(2024, 12, 24));
    EXPECT_EQ(Time("Candles"), "---");
    EXPECT_EQ(AskedBy("click Hebrew.DawnDusk 9"), "beep");
    desk.Obey("click TimeAstro.ShowDawnDusk");
    EXPECT_FALSE(window_.DawnDusk.visible || window_.DawnDuskLegends.visible);
}

/// Before the calendar's first day the window tells nothing but a date.
TEST_F(HebrewWindowTest, WaitsForTheFirstDay) {
    Show("Jerusalem", HebrewEpoch - 1);
    EXPECT_FALSE(window_.HebrewCycleInfo.enabled);
    EXPECT_EQ(window_.HebrewCycleInfo.text, "Before the calendar's first year");
    EXPECT_EQ(Events(), "");
    Show("Jerusalem", HebrewEpoch);
    EXPECT_TRUE(window_.HebrewCycleInfo.enabled);
    EXPECT_NE(Events().find("Molad Tohu"), std::string::npos);
}

TEST_F(HebrewWindowTest, JumpsToFestivals) {
    const auto jump = [&](EventMenu& menu, MenuEvent event) {
        desk.Obey("menu " + ItemOf(menu, event).name);
        return FixedToGregorianString(DisplayedMoment);
    };
    HorvantaMDI& frame = desk.program.frame;
    Show("Jerusalem", GregorianToFixed(2024, 4, 23));
    EXPECT_EQ(jump(frame.NextMenu, MenuEvent::Passover), "Sunday, April 13, 2025");
    EXPECT_EQ(jump(frame.PrevMenu, MenuEvent::Passover), "Tuesday, April 23, 2024");
    EXPECT_EQ(jump(frame.NextMenu, MenuEvent::RoshHashanah), "Thursday, October 3, 2024");
    EXPECT_EQ(jump(frame.PrevMenu, MenuEvent::RoshHashanah), "Saturday, September 16, 2023");
}

TEST_F(HebrewWindowTest, TellsTheMoladAsChosen) {
    Show("Jerusalem", GregorianToFixed(2024, 5, 4));
    EXPECT_NE(Events().find("Molad of Iyar = Yom Rivii at 17h 41m 8p"), std::string::npos);
    desk.Obey("menu MoladHoursParts");
    EXPECT_NE(Events().find("Molad of Iyar = Yom Rivii at 17:746"), std::string::npos) << Events();
}

TEST_F(HebrewWindowTest, ExplainsTheYear) {
    Show("Jerusalem", GregorianToFixed(2024, 3, 24));
    const std::string told = AskedBy("click Hebrew.HebrewCycleInfo");
    for (const char* part :
         {"for the 14th of Adar Sheini:", "...for the 14th of Adar or Adar Sheini:", "postponed from Yom 6 to Shabbat",
          "191st day of 383-day year, in 8th year of 19-year cycle.", "Rosh Hashanah on Yom 7 (Shabbat);",
          "Passover on Yom 3 (Shlishi)."}) {
        EXPECT_NE(told.find(part), std::string::npos) << part << "\n" << told;
    }
}

}  // namespace
}  // namespace horvanta
