#include "core/controls.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

TEST(Color, KeepsBlueInTheHighByte) {
    constexpr Color cream = Color::FromNumber(12642289);
    EXPECT_EQ(cream, (Color{0xF1, 0xE7, 0xC0}));
    EXPECT_EQ(cream.Number(), 12642289);
}

TEST(Shade, MovesAwayFromTheNearerEnd) {
    EXPECT_EQ(Shade({0, 127, 128}, 48), (Color{48, 175, 80}));
    EXPECT_EQ(Shade({255, 10, 200}, 300), (Color{0, 255, 0}));
}

TEST(AccessibleName, SaysWhatASignDoesNot) {
    Form form("Form", "");
    const Button info(form, "Info", Caption("&Info"), Tip("Click here"));
    const Button back(form, "Back", Caption("<<"), Tip("Back a week"));
    const Label date(form, "Date", Caption("January 1"), Tip("Gregorian date"));
    const Label plain(form, "Plain", Caption("Clipboard:"));
    const Label bare(form, "Bare");
    const TextField day(form, "Day", Caption("739000"), Tip("Days since"));
    EXPECT_EQ(AccessibleName(info), "Info");
    EXPECT_EQ(AccessibleName(back), "Back a week");
    EXPECT_EQ(AccessibleName(date), "Gregorian date: January 1");
    EXPECT_EQ(AccessibleName(plain), "Clipboard:");
    EXPECT_EQ(AccessibleName(bare), "Bare");
    EXPECT_EQ(AccessibleName(day), "Days since");
}

TEST(MenuItem, IsShownForItsHandlerOrThatOfAnItemBelow) {
    MenuItem bar;
    MenuItem file(bar, "File", "&File");
    MenuItem jump(file, "Jump", "&Jump");
    MenuItem today(jump, "Today", "&Today");
    EXPECT_FALSE(file.isShown());
    today.Click = [] {};
    EXPECT_TRUE(file.isShown());
    EXPECT_EQ(bar.Find("Today"), &today);
    EXPECT_EQ(bar.Find("Tomorrow"), nullptr);

    std::int32_t step = 1;
    today.Shows(step, 2);
    EXPECT_FALSE(today.isTicked());
    step = 2;
    EXPECT_TRUE(today.isTicked());
}

}  // namespace
}  // namespace horvanta
