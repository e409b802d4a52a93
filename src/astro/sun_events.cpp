#include "astro/sun_events.h"

#include "astro/sun.h"
#include "astro/timescales.h"
#include "locale/locale.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace horvanta {
namespace {

/// The Sun's declination in radians, signed.
double DeclinationInRadians(Moment universal) {
    return ArcSinRad(SinDeg(SolarLongitude(universal)) * SinDeg(Obliquity(universal)));
}

}  // namespace

double HorizonDip() {
    constexpr double earthRadius = 6367000;  // metres
    return Locale.Elevation <= 0 ? 0 : ArcCosDeg(earthRadius / (earthRadius + Locale.Elevation));
}

double SunDepression() { return DegMinSec(0, 50, 29) + (UseElevation ? HorizonDip() : 0); }

double SineOffset(Moment universal, double depression) {
    const double declination = DeclinationInRadians(universal);
    return std::tan(Locale.LatRad) * std::tan(declination) +
           SinDeg(depression) / (std::cos(declination) * std::cos(Locale.LatRad));
}

Moment ApproxMomentOfDepression(Moment local, double depression, bool morning) {
    const FixedDay date = Floor(local);
    const Moment alternative = depression < 0 ? date + 0.5 : morning ? date : date + 1;
    double value = SineOffset(local, depression);
    if (std::fabs(value) > 1) value = SineOffset(alternative, depression);
    if (!(std::fabs(value) <= 1)) return NeverMoment;
    const double offset = Modulo(ArcSinDeg(value) / 360 + 0.5, 1) - 0.25;
    return ApparentToLocal(date + 0.5 + (morning ? -offset : offset));
}

/// Near the poles the moments may run in a circle for ever; the later of two then stands.
Moment MomentOfDepression(Moment local, double depression, bool morning) {
    constexpr double halfMinute = 1.0 / 2880;
    constexpr int patience = 100;
    Moment before = local;
    Moment moment = ApproxMomentOfDepression(before, depression, morning);
    for (int repeats = 0; !isNever(moment) && std::fabs(before - moment) >= halfMinute; ++repeats) {
        if (repeats == patience) return std::max(before, moment);
        before = std::exchange(moment, ApproxMomentOfDepression(moment, depression, morning));
    }
    return moment;
}

Moment Dawn(Moment date, double depression) {
    const FixedDay day = Floor(date);
    const Moment first = MomentOfDepression(day + 0.25, depression, true);
    if (isNever(first)) return NeverMoment;
    const Moment second = MomentOfDepression(first >= day ? first : day, depression, true);
    return isNever(second) ? NeverMoment : LocalToStandard(second);
}

/// The second search stays in the date: a first moment past midnight sends it to the date's last hundredth.
Moment Dusk(Moment date, double depression) {
    const FixedDay day = Floor(date);
    const Moment first = MomentOfDepression(day + 0.75, depression, false);
    if (isNever(first)) return NeverMoment;
    const Moment second = MomentOfDepression(first >= day + 1 ? day + 0.99 : first, depression, false);
    return isNever(second) ? NeverMoment : LocalToStandard(second);
}

Moment Sunrise(Moment date) { return Dawn(date, SunDepression()); }
Moment Sunset(Moment date) { return Dusk(date, SunDepression()); }

Moment SolarMidday(Moment date) { return UniversalToStandard(ApparentToUniversal(Floor(date) + 0.5)); }
Moment SolarMidnight(Moment date) { return UniversalToStandard(ApparentToUniversal(Floor(date))); }

double DayTemporalHour(Moment date) { return PartOf(MomentDifference(Sunset(date), Sunrise(date)), 12); }
double NightTemporalHour(Moment date) { return PartOf(MomentDifference(Sunrise(date + 1), Sunset(date)), 12); }
double MorningTemporalHour(Moment date) { return PartOf(MomentDifference(SolarMidday(date), Sunrise(date)), 6); }
double AfternoonTemporalHour(Moment date) { return PartOf(MomentDifference(Sunset(date), SolarMidday(date)), 6); }
double EveningTemporalHour(Moment date) { return PartOf(MomentDifference(SolarMidnight(date + 1), Sunset(date)), 6); }
double PreDawnTemporalHour(Moment date) { return PartOf(MomentDifference(Sunrise(date), SolarMidnight(date)), 6); }

Moment SundialToStandard(Moment date, double hour) {
    const bool beforeSunrise = hour < 6;
    const bool byDay = !beforeSunrise && hour <= 18;
    const FixedDay day = beforeSunrise ? date - 1 : date;
    const Moment base = byDay ? Sunrise(day) : Sunset(day);
    const double temporalHour = byDay ? DayTemporalHour(day) : NightTemporalHour(day);
    const double count = beforeSunrise ? hour + 6 : byDay ? hour - 6 : hour - 18;
    if (isNever(base) || isNever(temporalHour)) return NeverMoment;
    return base + count * temporalHour;
}

double RiseSetAzimuth(Moment date, bool centre, bool rise) {
    constexpr double refraction = 0.5746480877314717;  // degrees, at the horizon
    const double depression = centre ? HorizonDip() + refraction : SunDepression();
    const Moment standardTime = rise ? Dawn(date, depression) : Dusk(date, depression);
    if (isNever(standardTime)) return NeverMoment;
    const double declination = DeclinationInRadians(StandardToUniversal(standardTime));
    const double value = -std::tan(Locale.LatRad) * std::tan(declination);
    if (!(value < 1)) return NeverMoment;
    const double sine = std::sqrt(std::max(0.0, 1 - value * value));
    const double x = std::sin(Locale.LatRad) * value - std::cos(Locale.LatRad) * std::tan(declination);
    const double angle = ArcTan2Deg(sine, x) - 90;
    return rise ? 90 - angle : angle + 270;
}

}  // namespace horvanta
