#include "clock/zone_time.h"

#include "calendars/gregorian.h"
#include "core/text.h"
#include "hebrew/hebrew_arithmetic.h"

namespace horvanta {
namespace {

constexpr int sunday = 0;
constexpr int friday = 5;
constexpr double switchHour = 0.08333333333333333;  // 2:00
constexpr double daylightOffset = HoursToDays(1);

FixedDay StartDay(std::int32_t year, const LocaleRecord& place) {
    if (place.Diaspora) {
        return year < 2007 ? FirstKDay(sunday, GregorianToFixed(year, 4, 1))
                           : NthKDay(2, sunday, GregorianToFixed(year, 3, 1));
    }
    return year < 2013 ? KDayBefore(friday, GregorianToFixed(year, 4, 2))
                       : LastKDay(sunday, GregorianToFixed(year, 3, 31)) - 2;
}

/// The Sunday before the Day of Atonement of the Hebrew year that is running at the end of a Gregorian year.
FixedDay SundayBeforeYomKippur(std::int32_t year) {
    const std::int32_t hebrewYear = FixedToHebrewYear(GregorianYearEnd(year));
    return KDayBefore(sunday, HebrewToFixed(hebrewYear, 7, 10));
}

FixedDay EndDay(std::int32_t year, const LocaleRecord& place) {
    if (place.Diaspora && year >= 2007) return FirstKDay(sunday, GregorianToFixed(year, 11, 1));
    if (!place.Diaspora && year < 2013) return SundayBeforeYomKippur(year);
    return LastKDay(sunday, GregorianToFixed(year, 10, 31));
}

}  // namespace

bool isDaylightTime(Moment standardTime, const LocaleRecord& place) {
    if (zone_time::options.AdjustDST != 1 || place.NoDST) return false;
    const std::int32_t year = FixedToGregorianYear(standardTime);
    const Moment asked = standardTime == Floor(standardTime) ? standardTime + 0.5 : standardTime;
    const bool started = DaylightStart(year, place) <= asked;
    const bool ended = DaylightEnd(year, place) <= asked;
    return place.North ? started && !ended : ended || !started;
}

Moment DaylightStart(std::int32_t year, const LocaleRecord& place) { return StartDay(year, place) + switchHour; }
Moment DaylightEnd(std::int32_t year, const LocaleRecord& place) { return EndDay(year, place) + switchHour; }

Moment StandardToDaylight(Moment standardTime, const LocaleRecord& place) {
    if (isNever(standardTime)) return standardTime;
    return isDaylightTime(standardTime, place) ? standardTime + daylightOffset : standardTime;
}

Moment DaylightToStandard(Moment clockTime, const LocaleRecord& place) {
    if (isNever(clockTime)) return clockTime;
    return isDaylightTime(clockTime, place) ? clockTime - daylightOffset : clockTime;
}

std::string DaylightSwitchText(Moment x, bool toDaylight) {
    return std::string("Switch to ") + (toDaylight ? "Daylight Saving" : "Standard") + " Time on " +
           FixedToGregorianString(x) + " at " + FormatTime(x, 2) + " h";
}

}  // namespace horvanta
