#include "astro/moon_events.h"

#include "astro/bisection.h"
#include "astro/local_time.h"
#include "astro/moon.h"
#include "astro/sidereal.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "core/memo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <tuple>

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

/// The Moon at a moment: its declination and its hour angle at Greenwich in degrees, its distance in kilometres.
struct Sight {
    double hourAngle, declination, distance;
};

/// The searches of a day, of its neighbours and at all places meet at the same moments.
const Sight& SightAt(Moment universal) {
    using Key = std::tuple<Moment, std::int64_t, std::int64_t>;
    static Memo<16, Key, Sight> memo;
    return memo.Of(Key(universal, NumberingSerial, DeltaTSerial), [=] {
        return Sight{ApparentSiderealDegrees(universal) - lunar::RightAscension(universal),
                     lunar::Declination(universal), lunar::Distance(universal)};
    });
}

/// The Moon over the day about a passage, interpolated between half days by cubics through the four about a moment.
class MoonOverADay {
  public:
    MoonOverADay(Moment passage, const LocaleRecord& place)
        : sinLatitude_(std::sin(place.LatRad)),
          cosLatitude_(std::cos(place.LatRad)),
          eastLongitude_(place.Longitude),
          zero_(HorizonDipInUse(place) + lunar::HorizonLift(passage)),
          first_(Floor(2 * passage - 1) / 2) {
        for (std::size_t i = 0; i < sights_.size(); ++i) {
            sights_[i] = SightAt(first_ + (static_cast<double>(i) - 1) / 2);
            if (i > 0) sights_[i].hourAngle = Unwound(sights_[i].hourAngle, sights_[i - 1].hourAngle);
        }
    }

    /// In degrees, within 0.001.
    double ObservedAltitude(Moment x) const {
        const Sight moon = At(x);
        const double hourAngle = (moon.hourAngle + eastLongitude_) * RadiansPerDegree;
        const double declination = moon.declination * RadiansPerDegree;
        const double sine =
            sinLatitude_ * std::sin(declination) + cosLatitude_ * std::cos(declination) * std::cos(hourAngle);
        const double cosine = std::sqrt(std::max(0.0, 1 - sine * sine));
        return RadToDeg(std::atan2(sine, cosine) - EquatorialRadius * cosine / moon.distance) + zero_;
    }

  private:
    static constexpr std::size_t intervals = 3;  // half days that a day can touch

    Sight At(Moment x) const {
        const double halfDays = 2 * (x - first_);
        const auto i = std::min(intervals - 1, WholeNumber<std::size_t>(halfDays));
        const double t = halfDays - static_cast<double>(i);
        const double weights[] = {t * (t - 1) * (2 - t) / 6, (t + 1) * (t - 1) * (t - 2) / 2, (t + 1) * t * (2 - t) / 2,
                                  (t + 1) * t * (t - 1) / 6};
        Sight sum{};
        for (std::size_t k = 0; k < std::size(weights); ++k) {
            sum.hourAngle += weights[k] * sights_[i + k].hourAngle;
            sum.declination += weights[k] * sights_[i + k].declination;
            sum.distance += weights[k] * sights_[i + k].distance;
        }
        return sum;
    }

    /// An hour angle, wound to half a day after another one.
    static double Unwound(double hourAngle, double before) {
        constexpr double turn = degreesPerDay / 2;
        return before + turn + ModuloRange(hourAngle - before - turn, -180, 180);
    }

    double sinLatitude_;
    double cosLatitude_;
    double eastLongitude_;
    double zero_;   ///< What the observed altitude has above the Moon's own.
    Moment first_;  ///< The half day in which the day begins; the sights begin one before.
    std::array<Sight, intervals + 3> sights_;
};

/// By how many degrees an interpolated altitude can be off that was mended so many days from there: more than twice
/// what was ever seen.
double DoubtAt(double days) {
    constexpr double greatest = 0.002;
    constexpr double least = 0.0002;
    constexpr double driftPerDay = 0.05;
    return std::min(greatest, least + driftPerDay * std::fabs(days));
}

/// The universal moment within half a day of a passage at which the observed altitude crosses 0.
Moment CrossingNear(Moment passage, Horizon horizon, const LocaleRecord& place) {
    constexpr double oneSecond = 1.1574074074074073e-05;
    const MoonOverADay moon(passage, place);
    const double sign = horizon == Horizon::Rise ? 1 : -1;
    Moment mendedAt = std::numeric_limits<Moment>::infinity();
    double error = 0;
    const auto guess = [&](Moment x) { return sign * (moon.ObservedAltitude(x) - error) / DoubtAt(x - mendedAt); };
    const auto reached = [&](Moment x) {
        const double exact = lunar::ObservedAltitude(x, place);
        error = moon.ObservedAltitude(x) - exact;
        mendedAt = x;
        return (exact > 0) == (horizon == Horizon::Rise);
    };
    const Moment found = Halve({passage - 0.5, passage + 0.5}, oneSecond, 1, guess, reached);
    return Round(moon.ObservedAltitude(found)) == 0 ? found : NeverMoment;
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
