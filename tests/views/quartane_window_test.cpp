#include "views/quartane_window.h"

#include "desk_fixture.h"

namespace horvanta {
namespace {

class QuartaneWindowTest : public DeskTest {
  protected:
    static void Show(std::int32_t year, std::int32_t month, std::int32_t day) {
        DeskTest::Show(quartane::QuaToFixed(year, month, day) + 0.5);
    }

    /// The texts of the table behind the name of a row.
    std::string Row(std::size_t row) const {
        std::string text;
        for (const std::string& cell : window_.QuaStatusGrid.rows[row]) text += cell + "|";
        return text;
    }

    QuartaneWindow& window_ = desk.program.quartane;
};

TEST_F(QuartaneWindowTest, ShowsTheDate) {
    Show(2009, 12, 35);
    EXPECT_EQ(window_.QuartaneDateBox.text, "Sunday, December 35, 2009 ");
    EXPECT_EQ(window_.QuaCycleInfo.text, "251st year of 7th 293-year cycle AD");
    EXPECT_EQ(Row(1), "in Year|4|12|53+0=53|371+0=371|");
    EXPECT_EQ(Row(2), "in Quarter||3|14+0=14|98+0=98|");
    EXPECT_EQ(Row(3), "in Month|||5+0=5|35+0=35|");
    EXPECT_TRUE(
        desk.Obey("events Quartane454")
            .starts_with(R"-("Quartane454" "Sunday, December 35, 2009" "Leap Week (Semaine de la Révolution)")-"));
    EXPECT_EQ(window_.LeapCheckbox.text, "Leap year");
    desk.Obey("click Quartane.Qua010");
    EXPECT_EQ(window_.QuartaneDateBox.text, "Sunday, Zovember 7, 2009 ");
    EXPECT_EQ(desk.program.frame.QuaCal.caption, "&Quartane010 Date");
    Show(1, 2, 16);
    EXPECT_EQ(Row(0), "|Quarter|Month|Week 3|Day|");
    EXPECT_EQ(Row(3), "in Month||||16+15=31|");
    EXPECT_EQ(desk.Obey("events Quartane010"), R"("Quartane010" "Thursday, February 16, 1" "1st Mid-Quarter Day")");
}

TEST_F(QuartaneWindowTest, CopiesWhatIsClicked) {
    Show(2009, 1, 1);
    constexpr std::pair<const char*, const char*> rows[] = {
        {"QuaCycleInfo", R"(clipboard "Quartane year 2009 (leap) = 251st year of 7th 293-year cycle AD")"},
        {"QuaStatusGrid 1 3", R"-(clipboard "1+52=53 (Week 1 of 4-week cycle)")-"},
        {"QuaStatusGrid 2 1", "none"},
        {"MeanYearLabel", R"(clipboard "0.242320819112628")"},
        {"FixedMeanYear", R"-(clipboard "mean year = 365+71/293 days = 365d 5h 48m 57s (52/293 leap cycle)")-"},
    };
    for (const auto& [control, copied] : rows) {
        EXPECT_EQ(AskedBy("click Quartane." + std::string(control)), copied) << control;
    }
}

TEST_F(QuartaneWindowTest, ExperimentsAndGoesBack) {
    EXPECT_EQ(desk.Obey("menu QuaLeapUseZov"), "error: not enabled: QuaLeapUseZov");
    desk.Obey("click Quartane.QuaMonths");
    EXPECT_TRUE(desk.Obey("asked").starts_with("box "));
    for (const char* line :
         {"click Quartane.QuaSoupMix", "menu QuaLeapUseZov", "click Quartane.QuaMonths", "menu MidNonLeapLeap",
          "choose Quartane.QuaStartOn 3", "choose Quartane.LeapChoice 1", "choose Quartane.LeapChoice 3"}) {
        EXPECT_EQ(desk.Obey(line), "ok") << line;
    }
    Show(2009, 1, 1);
    EXPECT_EQ(window_.QuartaneDateBox.text, "Wednesday, January 1, 2009 ");
    EXPECT_EQ(window_.QuartaneDateBox.tooltip, "Quartane454 (start Wednesday), Leap Week after December");
    EXPECT_TRUE(window_.FixedMeanYear.tooltip.ends_with("[New Year Offset = 261]"));
    EXPECT_EQ(window_.Qua454.tooltip, "4 + 4 + 5 weeks per quarter");
    EXPECT_FALSE(desk.program.frame.QuaLeapWeek.enabled);
    EXPECT_EQ(window_.LeapChoice.selected, 1);  // a separator was not taken
    EXPECT_EQ(desk.program.frame.NextMenu[17].caption, "Qua93/524 New &Year Moment");
    EXPECT_EQ(desk.program.monthly.Days.headings[0].tooltip, "Wednesday");
    Obey({"click Quartane.QuaSoupMix", "menu MidLeapNonLeap"});
    EXPECT_EQ(quartane::options.LeapRuleKey + quartane::options.QuarterStructure, "52/293SLS");
    EXPECT_EQ(window_.form.text, "Quartane454");
    EXPECT_FALSE(quartane::HasZovember());
}

TEST_F(QuartaneWindowTest, IsReachedByJumps) {
    Show(2010, 1, 1);
    desk.Obey("menu PrevMenu 16");
    EXPECT_EQ(window_.QuartaneDateBox.text, "Monday, December 29, 2009 ");
    desk.Obey("menu NextMenu 18");
    EXPECT_EQ(window_.QuaCycleInfo.text, "1st year of 8th 293-year cycle AD");
    Obey({"choose Quartane.LeapChoice 2", "asked"});
    const Moment before = DisplayedMoment;
    EXPECT_EQ(AskedBy("menu NextMenu 18"), "beep");
    EXPECT_EQ(DisplayedMoment, before);
}

TEST_F(QuartaneWindowTest, TakesItsMenuItemsAlong) {
    desk.Obey("close Quartane");
    for (const char* item : {"PrevMenu 16", "NextMenu 17", "NextMenu 18", "MidNonLeapLeap", "QuaLeapUseZov"}) {
        EXPECT_EQ(desk.Obey(std::string("menu ") + item), std::string("error: not enabled: ") + item);
    }
    desk.Obey("menu QuaCal");
    EXPECT_EQ(desk.Obey("menu NextMenu 17"), "ok");
    EXPECT_EQ(desk.Obey("menu MidNonLeapLeap"), "ok");
}

TEST_F(QuartaneWindowTest, IsAlwaysOpenAtStart) {
    desk.Obey("close Quartane");
    EXPECT_FALSE(window_.form.visible);
    desk.Obey("menu SavePreferences");
    const Desk next(desk.desktop.settings.values);
    EXPECT_TRUE(next.program.quartane.form.visible);
}

}  // namespace
}  // namespace horvanta
