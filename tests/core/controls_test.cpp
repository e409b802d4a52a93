#include "core/controls.h"

#include <gtest/gtest.h>

namespace horvanta {
namespace {

TEST(Shade, MovesAwayFromTheNearerEnd) {
    EXPECT_EQ(Shade({0, 127, 128}, 48), (Color{48, 175, 80}));
    EXPECT_EQ(Shade({255, 10, 200}, 300), (Color{0, 255, 0}));
}

/// Blue on white stays as it is; on dark grey it is as light as it must be, but still blue.
TEST(ReadableOn, ShadesAsFarAsItTakes) {
    EXPECT_EQ(ReadableOn({255, 255, 255}, {0, 0, 255}), (Color{0, 0, 255}));
    for (const Color background : {Color{0, 0, 0}, {45, 45, 48}, {119, 119, 119}, {239, 239, 239}, {255, 255, 255}}) {
        const bool lightens = background.red < 119;
        for (const Color color : {Color{0, 0, 255}, {255, 0, 0}, {128, 128, 128}, {255, 255, 0}}) {
            const Color shown = ReadableOn(background, color);
            EXPECT_TRUE(lightens ? shown.green >= color.green && shown.red >= color.red
                                 : shown.green <= color.green && shown.red <= color.red);
            EXPECT_EQ(ReadableOn(background, shown), shown);  // enough once is enough
        }
    }
    EXPECT_EQ(ReadableOn({45, 45, 48}, {0, 0, 255}), (Color{135, 135, 255}));
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
