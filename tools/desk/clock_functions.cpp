#include "clock/moon_clock.h"
#include "clock/zone_time.h"
#include "desk_rows.h"

namespace horvanta {

std::vector<DeskFunction> ClockFunctions() {
    return {
        PlaceRow("isDaylightTime", isDaylightTime),
        PlaceRow("DaylightStart", DaylightStart),
        PlaceRow("DaylightEnd", DaylightEnd),
        PlaceRow("StandardToDaylight", StandardToDaylight),
        PlaceRow("DaylightToStandard", DaylightToStandard),
        Row("DaylightSwitchText", DaylightSwitchText),
        PlaceRow("MoonriseDST", MoonriseDST),
        PlaceRow("MoonsetDST", MoonsetDST),
        PlaceRow("lunar::Azimuth", lunar::Azimuth),
    };
}

std::vector<DeskVariable> ClockVariables() {
    return {
        Variable("AdjustDST", zone_time::options.AdjustDST),
    };
}

}  // namespace horvanta
