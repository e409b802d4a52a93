#include "app/event_searches.h"

#include "astro/sun.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/quartane_year_start.h"
#include "core/desktop.h"

#include <algorithm>
#include <initializer_list>

namespace horvanta {
namespace {

/// Two passages of one longitude that are found from different moments differ by less.
constexpr double sameEvent = 0.00002;  // days

constexpr double besselianLongitude = 280;

template <int Degrees>
Moment LongitudeAfter(Moment universal) {
    const Moment found = SolarLongitudeAfter(universal, Degrees);
    return found > universal + sameEvent ? found : SolarLongitudeAfter(universal + 1, Degrees);
}

/// The estimate may be off by hours.
template <int Degrees>
Moment LongitudeBefore(Moment universal) {
    const auto passageBefore = [](Moment x) {
        return SolarLongitudeAfter(EstimateSolarLongitudeBefore(x, Degrees) - 1, Degrees);
    };
    const Moment found = passageBefore(universal);
    return found < universal - sameEvent ? found : passageBefore(universal - 5);
}

Moment SolarEventAfter(Moment universal) {
    return std::min({LongitudeAfter<0>(universal), LongitudeAfter<90>(universal), LongitudeAfter<180>(universal),
                     LongitudeAfter<270>(universal)});
}

Moment SolarEventBefore(Moment universal) {
    return std::max({LongitudeBefore<0>(universal), LongitudeBefore<90>(universal), LongitudeBefore<180>(universal),
                     LongitudeBefore<270>(universal)});
}

Moment BesselianAfter(Moment universal) { return LongitudeAfter<static_cast<int>(besselianLongitude)>(universal); }

Moment BesselianBefore(Moment universal) {
    const std::int32_t year = FixedToGregorianYear(universal);
    const Moment found = SeasonMoment(year, -besselianLongitude);
    return Floor(universal) > Floor(found) ? found : SeasonMoment(year - 1, -besselianLongitude);
}

/// The date of years at a new year carries the noise of its conversion, up to some minutes.
double YearsRounded(double date) { return Round(date, 5); }

Moment RAYNewYearAfter(Moment x) { return RAYDateToMoment(Floor(YearsRounded(MomentToRAYDate(x))) + 1); }
Moment RAYNewYearBefore(Moment x) { return RAYDateToMoment(Ceiling(YearsRounded(MomentToRAYDate(x))) - 1); }
Moment OrbitalNewYearAfter(Moment x) { return OrbitalDateToMoment(Floor(YearsRounded(MomentToOrbitalDate(x))) + 1); }
Moment OrbitalNewYearBefore(Moment x) { return OrbitalDateToMoment(Ceiling(YearsRounded(MomentToOrbitalDate(x))) - 1); }

/// The anomaly runs so evenly that one step from its mean rate to its real one is enough.
Moment AnomalyNear(Moment mean, double degrees) {
    return mean - ModuloRange(MeanSolarAnomaly(mean) - degrees, -180, 180) / DailyMeanSolarAnomaly;
}

template <int Degrees>
Moment AnomalyAfter(Moment universal) {
    const double ahead = Modulo(Degrees - MeanSolarAnomaly(universal), 360);
    const Moment found = AnomalyNear(universal + ahead / DailyMeanSolarAnomaly, Degrees);
    return found > universal + sameEvent ? found : AnomalyAfter<Degrees>(universal + 1);
}

template <int Degrees>
Moment AnomalyBefore(Moment universal) {
    const double past = Modulo(MeanSolarAnomaly(universal) - Degrees, 360);
    const Moment found = AnomalyNear(universal - past / DailyMeanSolarAnomaly, Degrees);
    return found < universal - sameEvent ? found : AnomalyBefore<Degrees>(universal - 1);
}

/// A rule without a cycle has no such event.
template <int Direction>
Moment QuaCycle(Moment universal) {
    const Moment found = quartane::JumpQuaCycle(universal, Direction);
    if (isNever(found)) CurrentDesktop->Beep();
    return found;
}

template <Moment (*Jump)(Moment, int), int Direction>
Moment Jumping(Moment universal) {
    return Jump(universal, Direction);
}

constexpr EventSearch searches[] = {
    {"&Leap Week", Jumping<quartane::JumpLeapWeek, -1>, Jumping<quartane::JumpLeapWeek, 1>},
    {"Qua New Year Moment", Jumping<quartane::JumpNYmoment, -1>, Jumping<quartane::JumpNYmoment, 1>},
    {"Qua Leap Cycle", QuaCycle<-1>, QuaCycle<1>},
    {"Rotation-Adjusted New Year", RAYNewYearBefore, RAYNewYearAfter},
    {"&Mean Orbital New Year", OrbitalNewYearBefore, OrbitalNewYearAfter},
    {"&Besselian New Year", BesselianBefore, BesselianAfter},
    {"&Solar Event", SolarEventBefore, SolarEventAfter},
    {"Northward Equinox", LongitudeBefore<0>, LongitudeAfter<0>},
    {"North Solstice", LongitudeBefore<90>, LongitudeAfter<90>},
    {"Southward Equinox", LongitudeBefore<180>, LongitudeAfter<180>},
    {"South Solstice", LongitudeBefore<270>, LongitudeAfter<270>},
    {"Mean Peri&helion", AnomalyBefore<0>, AnomalyAfter<0>},
    {"Mean &Aphelion", AnomalyBefore<180>, AnomalyAfter<180>},
};

}  // namespace

const EventSearch* FindEventSearch(std::string_view caption) {
    const auto* found = std::ranges::find(searches, caption, &EventSearch::caption);
    return found == std::end(searches) ? nullptr : found;
}

}  // namespace horvanta
