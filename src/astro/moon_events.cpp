#include "astro/moon_events.h"

#include "astro/bisection.h"
#include "astro/local_time.h"
#include "astro/moon.h"
#include "astro/sun_events.h"

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

constexpr double degreesPerDay = 347.81;  // of the Moon's hour angle

enum class Horizon { Rise, Set };

/// The next moment at which the Moon stands six hours from the meridian on its way up or down: an estimate and two
/// corrections.
Moment PassageAfter(Moment universal, Horizon horizon, const LocaleRecord& place) {
    const double hourAngle = horizon == Horizon::Rise ? 270 : 90;
    Moment x = universal + Degrees(hourAngle - lunar::HourAngle(universal, place)) / degreesPerDay;
    for (int corrections = 0; corrections < 2; ++corrections) {
        x -= ModuloRange(lunar::HourAngle(x, place) - hourAngle, -180, 180) / degreesPerDay;
    }
    return x;
}

/// At most so many days lie between such a passage and the Moon's rise or set.
double DaysFromPassage(const LocaleRecord& place) {
    constexpr double greatestDeclination = 29;
    const double highestZero = 2 + HorizonDip(place);  // degrees, where the parallax is largest
    const double sine = std::fabs(std::tan(place.LatRad)) * TanDeg(greatestDeclination) +
                        SinDeg(highestZero) / (std::cos(place.LatRad) * CosDeg(greatestDeclination));
    constexpr double margin = 0.02;  // days, for what the declination changes
    return sine < 1 ? std::min(0.5, ArcSinDeg(sine) / degreesPerDay + margin) : 0.5;
}

/// The Moon at a moment: degrees, and the distance in kilometres.
struct Sight {
    double hourAngle, declination, distance;
};

Sight SightAt(Moment universal, const LocaleRecord& place) {
    return {lunar::HourAngle(universal, place), lunar::Declination(universal), lunar::Distance(universal)};
}

/// The Moon over the day about a passage, interpolated by parabolas between beginning, middle and end.
class MoonOverADay {
  public:
    MoonOverADay(Moment middle, const LocaleRecord& place)
        : middle_(middle),
          sinLatitude_(std::sin(place.LatRad)),
          cosLatitude_(std::cos(place.LatRad)),
          before_(SightAt(middle - 0.5, place)),
          after_(SightAt(middle + 0.5, place)),
          now_(SightAt(middle, place)),
          zero_(lunar::ObservedAltitude(middle, place) - lunar::TopocentricAltitude(middle, place)) {
        before_.hourAngle = Unwound(before_.hourAngle, -degreesPerDay / 2);
        after_.hourAngle = Unwound(after_.hourAngle, degreesPerDay / 2);
    }

    /// In degrees, within 0.005.
    double ObservedAltitude(Moment x) const {
        const double hourAngle = At(x, &Sight::hourAngle) * RadiansPerDegree;
        const double declination = At(x, &Sight::declination) * RadiansPerDegree;
        const double sine =
            sinLatitude_ * std::sin(declination) + cosLatitude_ * std::cos(declination) * std::cos(hourAngle);
        const double cosine = std::sqrt(std::max(0.0, 1 - sine * sine));
        const double parallax = EquatorialRadius * cosine / At(x, &Sight::distance);
        return RadToDeg(std::atan2(sine, cosine) - parallax) + zero_;
    }

  private:
    double At(Moment x, double Sight::*field) const {
        const double days = x - middle_;
        const double curve = before_.*field + after_.*field - 2 * now_.*field;
        return now_.*field + days * (after_.*field - before_.*field + 2 * days * curve);
    }

    /// An hour angle, wound to about so far from the middle one.
    double Unwound(double hourAngle, double about) const {
        return now_.hourAngle + about + ModuloRange(hourAngle - now_.hourAngle - about, -180, 180);
    }

    Moment middle_;
    double sinLatitude_;
    double cosLatitude_;
    Sight before_;
    Sight after_;
    Sight now_;
    double zero_;  ///< What the observed altitude has above the Moon's own.
};

/// The universal moment within half a day of a passage at which the observed altitude crosses 0.
Moment CrossingNear(Moment passage, Horizon horizon, const LocaleRecord& place) {
    constexpr double oneSecond = 1.1574074074074073e-05;
    constexpr double doubt = 0.01;  // degrees, more than twice what interpolation is off
    const MoonOverADay moon(passage, place);
    const double sign = horizon == Horizon::Rise ? 1 : -1;
    const Moment found = Halve(
        {passage - 0.5, passage + 0.5}, oneSecond, doubt, [&](Moment x) { return sign * moon.ObservedAltitude(x); },
        [&](Moment x) { return (lunar::ObservedAltitude(x, place) > 0) == (horizon == Horizon::Rise); });
    return Round(lunar::ObservedAltitude(found, place)) == 0 ? found : NeverMoment;
}

/// Looks at all passages whose crossing may fall into the date.
Moment EventOf(Moment date, Horizon horizon, const LocaleRecord& place) {
    const FixedDay day = Floor(date);
    const double reach = DaysFromPassage(place);
    const Moment end = StandardToUniversal(day + 1, place) + reach;
    Moment passage = PassageAfter(StandardToUniversal(day, place) - reach, horizon, place);
    for (; passage < end; passage = PassageAfter(passage + 0.5, horizon, place)) {
        const Moment standardTime = UniversalToStandard(CrossingNear(passage, horizon, place), place);
        if (Floor(standardTime) == day) return standardTime;
    }
    return NeverMoment;
}

}  // namespace

Moment Moonrise(Moment date, const LocaleRecord& place) { return EventOf(date, Horizon::Rise, place); }
Moment Moonset(Moment date, const LocaleRecord& place) { return EventOf(date, Horizon::Set, place); }

}  // namespace horvanta
