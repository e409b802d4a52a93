#pragma once

#include "core/numerics.h"

/// When the Sun rises, sets and culminates at the current place. Dates and results are of the zone's standard time
/// unless a name says otherwise; of a date only the day counts. An event that does not take place is `NeverMoment`, and
/// so is every length of time that hangs on it. After Reingold and Dershowitz, Calendrical Calculations, chapter 14.
namespace horvanta {

/// a - b, `NeverMoment` if either is.
constexpr double MomentDifference(Moment a, Moment b) { return isNever(a) || isNever(b) ? NeverMoment : a - b; }

/// One of the equal parts of a length of time.
constexpr double PartOf(double days, int parts) { return isNever(days) ? NeverMoment : days / parts; }

/// Degrees by which the elevation of the current place lowers the horizon; 0 at or below sea level.
double HorizonDip();

/// Degrees of the Sun's centre below the horizon at sunrise and sunset: refraction and half the Sun's breadth, and the
/// dip of the horizon if the user has `UseElevation`.
double SunDepression();

/// The sine of the angle between the Sun's hour angle at a depression (degrees) and six o'clock; beyond 1 in size where
/// the Sun does not come to it. Universal moment.
double SineOffset(Moment universal, double depression);

/// Local mean moments at which the Sun's centre stands so many degrees below the horizon, in the morning or in the
/// evening of the day of `local`: a first guess with the Sun of that moment, and the guess repeated until it holds
/// within half a minute.
Moment ApproxMomentOfDepression(Moment local, double depression, bool morning);
Moment MomentOfDepression(Moment local, double depression, bool morning);

/// The Sun's centre at a depression (degrees).
Moment Dawn(Moment date, double depression);
Moment Dusk(Moment date, double depression);

Moment Sunrise(Moment date);
Moment Sunset(Moment date);

/// Local apparent noon, and the local apparent midnight that begins the date.
Moment SolarMidday(Moment date);
Moment SolarMidnight(Moment date);

// The twelfth parts of day and of the night that follows it, and the sixth parts of the quarters of day and night
// about noon and midnight. In days.
double DayTemporalHour(Moment date);
double NightTemporalHour(Moment date);
double MorningTemporalHour(Moment date);
double AfternoonTemporalHour(Moment date);
double EveningTemporalHour(Moment date);
double PreDawnTemporalHour(Moment date);

/// The moment at which temporal hours, of which 6 is sunrise and 18 sunset, have run to `hour` (0 to 24).
Moment SundialToStandard(Moment date, double hour);

/// The bearing in degrees clockwise from north at which the Sun rises or sets, with its centre on the true horizon if
/// `centre`, otherwise with its upper limb on the visible one.
double RiseSetAzimuth(Moment date, bool centre, bool rise);

}  // namespace horvanta
