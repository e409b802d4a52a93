#include "core/controls.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

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

}  // namespace
}  // namespace horvanta
