#include "views/gregorian_window.h"

#include "desk_fixture.h"

#include <algorithm>
#include <tuple>

namespace horvanta {
namespace {

class GregorianWindowTest : public DeskTest {
  protected:
    GregorianWindow& window_ = desk.program.gregorian;
};

TEST_F(GregorianWindowTest, ShowsTheDateInBothCalendars) {
    // clang-format off
    constexpr std::tuple<int, int, int, const char*> rows[] = {
        {2024, 1, 15, "Monday, January 15, 2024 |Gregorian day 15+351=366|GF|24th year of 6th cycle AD|2024-W03-1 |ISO day 15+349=364"},
        {2000, 12, 31, "Sunday, December 31, 2000 |Gregorian day 366+0=366|BA|400th year of 5th cycle AD|2000-W52-7 |ISO day 364+0=364"},
        {2021, 1, 3, "Sunday, January 3, 2021 |Gregorian day 3+362=365|C|21st year of 6th cycle AD|2020-W53-7 |ISO day 371+0=371"},
        {-400, 1, 1, "Saturday, January 1, -400 |Gregorian day 1+365=366|BA|400th year of 2nd cycle BC|-401-W52-6 |ISO day 363+1=364"},
        {112, 1, 1, "Friday, January 1, 112 |Gregorian day 1+365=366|CB|112nd year of 1st cycle AD|111-W53-5 |ISO day 369+2=371"},
    };
    // clang-format on
    for (const auto& [year, month, day, text] : rows) {
        Show(year, month, day);
        EXPECT_EQ(window_.GregorianDate.text + "|" + window_.DayNumInGregYear.text + "|" + window_.Dominical.text +
                      "|" + window_.GregCycleInfo.text + "|" + window_.TheISOdate.text + "|" +
                      window_.isoOrdinalDay.text,
                  text);
    }
}

TEST_F(GregorianWindowTest, PostsTheISOEvents) {
    Show(2024, 1, 1);
    EXPECT_EQ(desk.Obey("events ISO"), R"("ISO" "2024-W01-1" "Begin ISO Year 2024")");
    Show(2020, 12, 28);
    EXPECT_EQ(desk.Obey("events ISO"), R"("ISO" "2020-W53-1" "ISO Standard Leap Week")");
    const auto& events = day_events::List();
    const auto iso = std::ranges::find(events, "ISO", &day_events::Event::calendar);
    EXPECT_EQ(iso->colors, window_.TheISOdate.colors);
    Show(2024, 6, 1);
    EXPECT_EQ(desk.Obey("events ISO"), "none");
}

}  // namespace
}  // namespace horvanta
