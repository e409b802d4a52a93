#pragma once

#include "core/controls.h"

namespace horvanta {

/// The face of the World calendar and the calendar of 13 months, for which no arithmetic stands behind it yet: it is
/// neither loaded nor offered.
struct WorldWindow {
    // clang-format off
    Form form{"World", "World and 13-Month"};
    Label Dummy{form, "Dummy", Named("World and 13-Month")};
    Label WorldDateBox{form, "WorldDateBox", Widest("Wednesday, September 30, 10000 ")};
    Label WorldQuarterWeekDay{form, "WorldQuarterWeekDay", Tip("Quarter-Week-Day of World year"), Widest("Q4-W13-7")};
    Label ThirteenDate{form, "ThirteenDate", Widest("Wednesday, September 28, 10000 ")};
    GroupBox LeapRuleFrame{form, "LeapRuleFrame", Caption("Leap Rule Variant")};
    OptionButton WorldLeapWeekAtEnd{form, "WorldLeapWeekAtEnd", Caption("Leap Week at End of Year (LWEY)"), Tip("Leap Week after December if Quartane year has 53 weeks")};
    OptionButton WorldLeapAtEnd{form, "WorldLeapAtEnd", Caption("Leap Day at End of Year (LDEY)"), Tip("Leap Day is the 366th Day of the Year")};
    OptionButton WorldOriginal{form, "WorldOriginal", Caption("Leap Day at end of June (original)"), Tip("Leap Day at end of June, Worldsday or Year Day after December")};
    Button Info{form, "Info", Caption("Info"), Named("World and 13-Month info"), Tip("Click here for information about the World Calendar and the 13-Month Calendar")};
    // clang-format on
};

}  // namespace horvanta
