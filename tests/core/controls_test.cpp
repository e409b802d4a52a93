#include "core/controls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

double Luminance(Color color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red / 255.0) + 0.7152 * linear(color.green / 255.0) +
           0.0722 * linear(color.blue / 255.0);
}

TEST(InkOf, CanBeReadOnAnyGround) {
    for (int number = 0; number < 0x1000000; number += 0x0f0d07) {
        const Color ground = Color::FromNumber(number);
        for (const Mark mark : {Mark::Warm, Mark::Cool}) {
            const double a = Luminance(ground) + 0.05;
            const double b = Luminance(InkOf(mark, ground, {})) + 0.05;
            EXPECT_GE(std::max(a / b, b / a), 4.5) << number;
        }
        EXPECT_EQ(InkOf(Mark::None, ground, ground), ground);
    }
}

TEST(AccessibleName, SaysWhatASignDoesNot) {
    Form form("Form", "Gregorian");
    EXPECT_EQ(AccessibleName(Button(form, "Info", Caption("&Info"), Tip("Click here"))), "Info");
    EXPECT_EQ(AccessibleName(Button(form, "Back", Caption("<<"), Tip("Back a week"))), "Back a week");
    EXPECT_EQ(AccessibleName(Label(form, "Date", Caption("May 1"), Tip("The date"))), "The date: May 1");
    EXPECT_EQ(AccessibleName(Label(form, "Cycle", Caption("1st year"), Tip("Click to copy"))), "1st year");
    EXPECT_EQ(AccessibleName(TextField(form, "Day", Caption("739000"), Tip("Days since"))), "Days since");
}

}  // namespace
}  // namespace horvanta
