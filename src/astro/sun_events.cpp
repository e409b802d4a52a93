#include "astro/sun_events.h"

#include "astro/earth_axis.h"
#include "astro/local_time.h"
#include "astro/sun.h"
#include "astro/timescales.h"
#include "core/memo.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace horvanta {
namespace {

double SineOfDeclination(Moment universal) {
    const double centuries = JulianCenturies(universal);
    return SinDeg(SolarLongitude(centuries, true, true)) * SinDeg(ObliquityAt(centuries));
}

/// Of a sine whose angle lies within a quarter circle.
double CosineTo(double sine) { return std::sqrt(1 - sine * sine); }

}  // namespace

double HorizonDip(const LocaleRecord& place) {
    constexpr double earthRadius = 6367000;  // metres
    return place.Elevation <= 0 ? 0 : ArcCosDeg(earthRadius / (earthRadius + place.Elevation));
}

double HorizonDipInUse(const LocaleRecord& place) { return horizon::options.UseElevation ? HorizonDip(place) : 0; }

double SunDepression(const LocaleRecord& place) { return DegMinSec(0, 50, 29) + HorizonDipInUse(place); }

double SineOffset(Moment universal, double depression, const LocaleRecord& place) {
    const double sine = SineOfDeclination(universal);
    return (std::sin(place.LatRad) * sine + SinDeg(depression)) / (std::cos(place.LatRad) * CosineTo(sine));
}

Moment ApproxMomentOfDepression(Moment local, double depression, bool morning, const LocaleRecord& place) {
    const FixedDay date = Floor(local);
    const Moment alternative = depression < 0 ? date + 0.5 : morning ? date : date + 1;
    double value = SineOffset(local, depression, place);
    if (std::fabs(value) > 1) value = SineOffset(alternative, depression, place);
    if (!(std::fabs(value) <= 1)) return NeverMoment;
    const double offset = Modulo(ArcSinDeg(value) / 360 + 0.5, 1) - 0.25;
    return ApparentToLocal(date + 0.5 + (morning ? -offset : offset), place);
}

/// Near the poles the moments may run in a circle for ever; the later of two then stands.
Moment MomentOfDepression(Moment local, double depression, bool morning, const LocaleRecord& place) {
    constexpr double halfMinute = 1.0 / 2880;
    constexpr int patience = 100;
    Moment before = local;
    Moment moment = ApproxMomentOfDepression(before, depression, morning, place);
    for (int repeats = 0; !isNever(moment) && std::fabs(before - moment) >= halfMinute; ++repeats) {
        if (repeats == patience) return std::max(before, moment);
        before = std::exchange(moment, ApproxMomentOfDepression(moment, depression, morning, place));
    }
    return moment;
}

namespace {

/// A request for a dawn or a dusk, with all that it depends on.
struct TwilightKey {
    FixedDay day;
    double depression;
    bool morning;
    std::int64_t numbering;
    std::int64_t deltaT;
    double latitude;
    double longitude;
    double zone;

    bool operator==(const TwilightKey&) const = default;
};

Moment FindDawn(FixedDay day, double depression, const LocaleRecord& place) {
    const Moment first = MomentOfDepression(day + 0.25, depression, true, place);
    if (isNever(first)) return NeverMoment;
    const Moment second = MomentOfDepression(first >= day ? first : day, depression, true, place);
    return isNever(second) ? NeverMoment : LocalToStandard(second, place);
}

/// The second search stays in the date: a first moment past midnight sends it to the date's last hundredth.
Moment FindDusk(FixedDay day, double depression, const LocaleRecord& place) {
    const Moment first = MomentOfDepression(day + 0.75, depression, false, place);
    if (isNever(first)) return NeverMoment;
    const Moment second = MomentOfDepression(first >= day + 1 ? day + 0.99 : first, depression, false, place);
    return isNever(second) ? NeverMoment : LocalToStandard(second, place);
}

/// Several windows ask for those of a day and of its neighbours.
Moment Twilight(Moment date, double depression, bool morning, const LocaleRecord& place) {
    static Memo<16, TwilightKey, Moment> memo;
    const FixedDay day = Floor(date);
    return memo.Of({day, depression, morning, NumberingSerial, DeltaTSerial, place.LatRad, place.Longitude, place.Zone},
                   [&] { return (morning ? FindDawn : FindDusk)(day, depression, place); });
}

}  // namespace

Moment Dawn(Moment date, double depression, const LocaleRecord& place) {
    return Twilight(date, depression, true, place);
}
Moment Dusk(Moment date, double depression, const LocaleRecord& place) {
    return Twilight(date, depression, false, place);
}

Moment Sunrise(Moment date, const LocaleRecord& place) { return Dawn(date, SunDepression(place), place); }
Moment Sunset(Moment date, const LocaleRecord& place) { return Dusk(date, SunDepression(place), place); }

Moment SolarMidday(Moment date, const LocaleRecord& place) {
    return UniversalToStandard(ApparentToUniversal(Floor(date) + 0.5, place), place);
}
Moment SolarMidnight(Moment date, const LocaleRecord& place) {
    return UniversalToStandard(ApparentToUniversal(Floor(date), place), place);
}

double DayTemporalHour(Moment date, const LocaleRecord& place) {
    return PartOf(MomentDifference(Sunset(date, place), Sunrise(date, place)), 12);
}
double NightTemporalHour(Moment date, const LocaleRecord& place) {
    return PartOf(MomentDifference(Sunrise(date + 1, place), Sunset(date, place)), 12);
}
double MorningTemporalHour(Moment date, const LocaleRecord& place) {
    return PartOf(MomentDifference(SolarMidday(date, place), Sunrise(date, place)), 6);
}
double AfternoonTemporalHour(Moment date, const LocaleRecord& place) {
    return PartOf(MomentDifference(Sunset(date, place), SolarMidday(date, place)), 6);
}
double EveningTemporalHour(Moment date, const LocaleRecord& place) {
    return PartOf(MomentDifference(SolarMidnight(date + 1, place), Sunset(date, place)), 6);
}
double PreDawnTemporalHour(Moment date, const LocaleRecord& place) {
    return PartOf(MomentDifference(Sunrise(date, place), SolarMidnight(date, place)), 6);
}

Moment SundialToStandard(Moment date, double hour, const LocaleRecord& place) {
    const bool beforeSunrise = hour < 6;
    const bool byDay = !beforeSunrise && hour <= 18;
    const FixedDay day = beforeSunrise ? date - 1 : date;
    const Moment base = byDay ? Sunrise(day, place) : Sunset(day, place);
    const double temporalHour = byDay ? DayTemporalHour(day, place) : NightTemporalHour(day, place);
    const double count = beforeSunrise ? hour + 6 : byDay ? hour - 6 : hour - 18;
    if (isNever(base) || isNever(temporalHour)) return NeverMoment;
    return base + count * temporalHour;
}

double RiseSetAzimuth(Moment date, bool centre, bool rise, const LocaleRecord& place) {
    constexpr double refraction = 0.5746480877314717;  // degrees, at the horizon
    const double depression = centre ? HorizonDip(place) + refraction : SunDepression(place);
    const Moment standardTime = rise ? Dawn(date, depression, place) : Dusk(date, depression, place);
    if (isNever(standardTime)) return NeverMoment;
    const double sineOfDeclination = SineOfDeclination(StandardToUniversal(standardTime, place));
    const double tangent = sineOfDeclination / CosineTo(sineOfDeclination);
    const double value = -std::tan(place.LatRad) * tangent;
    if (!(value < 1)) return NeverMoment;
    const double sine = std::sqrt(std::max(0.0, 1 - value * value));
    const double x = std::sin(place.LatRad) * value - std::cos(place.LatRad) * tangent;
    const double angle = ArcTan2Deg(sine, x) - 90;
    return rise ? 90 - angle : angle + 270;
}

}  // namespace horvanta
