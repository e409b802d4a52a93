#pragma once

#include "core/locale.h"
#include "core/numerics.h"

#include <cstdint>
#include <string>

/// Daylight saving time of a place, by one rule for Israel and one for the rest of the world: that of North
/// America, whose dates serve both hemispheres and all years.
namespace horvanta {

namespace zone_time {
struct Options {
    std::int32_t AdjustDST = 1;  ///< 0 is off, 1 on, 2 undecided. Daylight time applies only while it is on.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace zone_time

/// True if daylight time applies. Of a whole day it is asked at its noon.
bool isDaylightTime(Moment standardTime, const LocaleRecord& place = Locale);

/// The moments at which daylight time begins and ends in a Gregorian year, 2:00 on the day: in the southern hemisphere
/// it ends and begins at them.
Moment DaylightStart(std::int32_t year, const LocaleRecord& place = Locale);
Moment DaylightEnd(std::int32_t year, const LocaleRecord& place = Locale);

/// The time on the clock from standard time, and back. The way back asks the rule with the clock's time. `NeverMoment`
/// passes.
Moment StandardToDaylight(Moment standardTime, const LocaleRecord& place = Locale);
Moment DaylightToStandard(Moment clockTime, const LocaleRecord& place = Locale);

/// What the day's events say of a switch.
std::string DaylightSwitchText(Moment x, bool toDaylight);

}  // namespace horvanta
