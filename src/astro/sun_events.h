#pragma once

#include "core/locale.h"
#include "core/numerics.h"

/// When the Sun rises, sets and culminates at a place. Dates and results are of the zone's standard time
/// unless a name says otherwise; of a date only the day counts. An event that does not take place is `NeverMoment`, and
/// so is every length of time that hangs on it. After Reingold and Dershowitz, Calendrical Calculations, chapter 14.
namespace horvanta {

/// How the horizon is taken.
namespace horizon {
struct Options {
    bool UseElevation = true;  ///< A place's elevation lowers it, for the Sun and for the Moon.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace horizon

/// a - b, `NeverMoment` if either is.
constexpr double MomentDifference(Moment a, Moment b) { return isNever(a) || isNever(b) ? NeverMoment : a - b; }

/// One of the equal parts of a length of time.
constexpr double PartOf(double days, int parts) { return isNever(days) ? NeverMoment : days / parts; }

/// Degrees by which the elevation of a place lowers the horizon; 0 at or below sea level.
double HorizonDip(const LocaleRecord& place = Locale);

/// The same if the user has `UseElevation`, else 0.
double HorizonDipInUse(const LocaleRecord& place = Locale);

/// Degrees of the Sun's centre below the horizon at sunrise and sunset: refraction and half the Sun's breadth, and the
/// dip of the horizon in use.
double SunDepression(const LocaleRecord& place = Locale);

/// The sine of the angle between the Sun's hour angle at a depression (degrees) and six o'clock; beyond 1 in size where
/// the Sun does not come to it. Universal moment.
double SineOffset(Moment universal, double depression, const LocaleRecord& place = Locale);

/// Local mean moments at which the Sun's centre stands so many degrees below the horizon, in the morning or in the
/// evening of the day of `local`: a first guess with the Sun of that moment, and the guess repeated until it holds
/// within half a minute.
Moment ApproxMomentOfDepression(Moment local, double depression, bool morning, const LocaleRecord& place = Locale);
Moment MomentOfDepression(Moment local, double depression, bool morning, const LocaleRecord& place = Locale);

/// The Sun's centre at a depression (degrees).
Moment Dawn(Moment date, double depression, const LocaleRecord& place = Locale);
Moment Dusk(Moment date, double depression, const LocaleRecord& place = Locale);

Moment Sunrise(Moment date, const LocaleRecord& place = Locale);
Moment Sunset(Moment date, const LocaleRecord& place = Locale);

/// Local apparent noon, and the local apparent midnight that begins the date.
Moment SolarMidday(Moment date, const LocaleRecord& place = Locale);
Moment SolarMidnight(Moment date, const LocaleRecord& place = Locale);

// The twelfth parts of day and of the night that follows it, and the sixth parts of the quarters of day and night
// about noon and midnight. In days.
double DayTemporalHour(Moment date, const LocaleRecord& place = Locale);
double NightTemporalHour(Moment date, const LocaleRecord& place = Locale);
double MorningTemporalHour(Moment date, const LocaleRecord& place = Locale);
double AfternoonTemporalHour(Moment date, const LocaleRecord& place = Locale);
double EveningTemporalHour(Moment date, const LocaleRecord& place = Locale);
double PreDawnTemporalHour(Moment date, const LocaleRecord& place = Locale);

/// The moment at which temporal hours, of which 6 is sunrise and 18 sunset, have run to `hour` (0 to 24).
Moment SundialToStandard(Moment date, double hour, const LocaleRecord& place = Locale);

/// The bearing in degrees clockwise from north at which the Sun rises or sets, with its centre on the true horizon if
/// `centre`, otherwise with its upper limb on the visible one.
double RiseSetAzimuth(Moment date, bool centre, bool rise, const LocaleRecord& place = Locale);

}  // namespace horvanta
