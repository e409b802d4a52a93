#include "clock/moon_clock.h"

#include "astro/local_time.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "clock/zone_time.h"

namespace horvanta {

Moment MoonriseDST(Moment date, const LocaleRecord& place) { return StandardToDaylight(Moonrise(date, place), place); }
Moment MoonsetDST(Moment date, const LocaleRecord& place) { return StandardToDaylight(Moonset(date, place), place); }

double lunar::Azimuth(Moment clockTime, const LocaleRecord& place) {
    return Bearing(StandardToUniversal(DaylightToStandard(clockTime, place), place), place);
}

}  // namespace horvanta
