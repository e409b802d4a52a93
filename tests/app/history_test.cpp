#include "app/history.h"

#include "desk_fixture.h"

#include <tuple>

namespace horvanta {
namespace {

TEST_F(DeskTest, WalksBackAndForwardThroughWhatWasDisplayed) {
    EXPECT_EQ(desk.Obey("menu Back"), "error: not enabled: Back");
    const Moment start = DisplayedMoment;
    for (const char* line : {"type TimeAstro.FixedDayNum 1000", "menu SetParis", "press Up", "press Up held",
                             "press Up held", "menu SetEpochOptMenu 2", "press PageUp"}) {
        EXPECT_EQ(desk.Obey(line), "ok");
    }
    // The days are those from January 1, 2001, which was day 1.
    constexpr std::tuple<const char*, double, const char*> steps[] = {{"Back", 1003, "Paris"},
                                                                      {"Back", 1000, "Paris"},
                                                                      {"Back", 1000, "Greenwich"},
                                                                      {"Forward", 1000, "Paris"},
                                                                      {"Forward", 1003, "Paris"}};
    for (const auto& [item, day, place] : steps) {
        EXPECT_EQ(desk.Obey(std::string("menu ") + item), "ok");
        EXPECT_EQ(DisplayedMoment - Epoch2001 + 1, day) << item;
        EXPECT_EQ(Locale.Name, place) << item << day;
    }
    EXPECT_EQ(desk.Obey("asked").find("box"), 0U);  // the move to Paris was reported, and none of the others
    desk.Obey("press Down");                        // what lay ahead is given up
    EXPECT_EQ(desk.Obey("menu Forward"), "error: not enabled: Forward");
    for (const char* item : {"Back", "Back", "Back", "Back"}) EXPECT_EQ(desk.Obey(std::string("menu ") + item), "ok");
    EXPECT_EQ(DisplayedMoment - Epoch2001 + 1, start);
    EXPECT_EQ(desk.Obey("menu Back"), "error: not enabled: Back");
}

TEST_F(DeskTest, WalksBackToTheSameMomentWithoutDeltaT) {
    const Moment start = DisplayedMoment;
    Obey({"press Up", "click TimeAstro.UseDeltaT", "menu Back", "click TimeAstro.UseDeltaT"});
    EXPECT_NEAR(DisplayedMoment, start, 1e-9);
    EXPECT_EQ(desk.Obey("menu Back"), "error: not enabled: Back");
    EXPECT_EQ(desk.Obey("menu Forward"), "ok");
    EXPECT_EQ(DisplayedMoment, start + 1);
}

}  // namespace
}  // namespace horvanta
