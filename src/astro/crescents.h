#pragma once

#include "core/locale.h"
#include "core/numerics.h"

/// When the thin Moon can be seen: the new crescent at dusk, the old one at dawn, with the Sun 4.5° below the horizon.
/// Dates and results are of the zone's standard time. The criterion is the arc of light, the angle between Moon and
/// Sun: at least 10.6° with the Moon more than 4.1° high.
namespace horvanta {

/// The arc of light in degrees if the crescent can be seen at the dusk or the dawn of a date, else 0; `NeverMoment`
/// where there is no such dusk or dawn.
double VisibleCrescent(Moment date, const LocaleRecord& place = Locale);
double VisibleOldCrescent(Moment date, const LocaleRecord& place = Locale);

/// The first dusk (dawn) of the next five dates, from date + step on in steps of `step` days, at which the crescent can
/// be seen; `NeverMoment` if there is none.
Moment VisibleCrescentSearch(Moment date, int step, const LocaleRecord& place = Locale);
Moment VisibleOldCrescentSearch(Moment date, int step, const LocaleRecord& place = Locale);

/// The first dusk of a lunation at which the new crescent can be seen: of the lunation under way, if it can be seen on
/// the day of `standardTime`, else of the last or the next one whose first dusk is before or after that moment.
/// `NeverMoment` where five evenings from the new moon bring none.
Moment VisibleCrescentBefore(Moment standardTime, const LocaleRecord& place = Locale);
Moment VisibleCrescentAfter(Moment standardTime, const LocaleRecord& place = Locale);

/// The last dawn of a lunation at which the old crescent can be seen, the mirror image of those.
Moment VisibleOldCrescentBefore(Moment standardTime, const LocaleRecord& place = Locale);
Moment VisibleOldCrescentAfter(Moment standardTime, const LocaleRecord& place = Locale);

/// The first new (last old) crescent strictly after a universal moment (direction 1) or strictly before it (-1), as a
/// universal moment. Lunations without one are passed over; `NeverMoment` if 14 have none.
Moment CrescentPassage(Moment universal, int direction, const LocaleRecord& place = Locale);
Moment OldCrescentPassage(Moment universal, int direction, const LocaleRecord& place = Locale);

}  // namespace horvanta
