#include "astro/sun.h"

#include "astro/bisection.h"
#include "astro/earth_axis.h"
#include "astro/ephemeris_files.h"
#include "astro/local_time.h"
#include "astro/series.h"
#include "astro/sun_tables.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "core/memo.h"

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

constexpr double daysPerDegree = MeanTropicalYear / 360;

double CenturiesOf(double x, bool isCenturies) { return isCenturies ? x : JulianCenturies(x); }

double AberrationAt(double c) { return 0.0000974 * CosDeg(177.63 + 35999.01848 * c) - 0.005575; }

constexpr double meanDegreesPerCentury = 36000.76953744;

double MeanLongitudeAt(double c) { return 282.7771834 + meanDegreesPerCentury * c; }

constexpr auto longitudeSeries = series::MakeTable(solarTerms, [](const SolarTerm& term) {
    return series::Term{.angle = {term.addend, term.multiplier}, .coefficient = {term.coefficient}};
});

double LongitudeAt(double c) {
    const double sum = series::SumOfSines(longitudeSeries, {1, c}, {1});
    return MeanLongitudeAt(c) + 0.00000572957795130823 * sum + AberrationAt(c) + NutationAt(c);
}

/// How far the Sun is past a longitude at a moment, in [-180, 180).
double DegreesPast(Moment x, double degrees) { return ModuloRange(SolarLongitude(x) - degrees, -180, 180); }

}  // namespace

double SolarLongitude(Moment universal, bool normalise, bool isCenturies) {
    static Memo<16, double, double> memo;  // the twilights of a day begin their searches at the same two moments
    const double centuries = CenturiesOf(universal, isCenturies);
    const double degrees = memo.Of(centuries, [=] { return LongitudeAt(centuries); });
    return normalise ? Degrees(degrees) : degrees;
}

double Aberration(Moment universal, bool isCenturies) { return AberrationAt(CenturiesOf(universal, isCenturies)); }
double Nutation(Moment universal, bool isCenturies) { return NutationAt(CenturiesOf(universal, isCenturies)); }
double Obliquity(Moment universal) { return ObliquityAt(JulianCenturies(universal)); }

double MeanSolarAnomaly(Moment universal) { return MeanSolarAnomalyAt(JulianCenturies(universal)); }

double SolarDeclination(Moment universal) {
    return ArcSinDeg(SinDeg(SolarLongitude(universal)) * SinDeg(Obliquity(universal)));
}

double SolarAltitude(Moment apparent, const LocaleRecord& place) {
    const double declination = Radians(SolarDeclination(ApparentToUniversal(apparent, place)));
    const double hourAngle = SolarHourAngle(apparent);
    return ArcSinDeg(std::cos(place.LatRad) * std::cos(declination) * CosDeg(hourAngle) +
                     std::sin(place.LatRad) * std::sin(declination));
}

double SolarHourAngle(Moment apparent) { return (0.5 - Modulo(apparent, 1)) * 360; }

Moment SolarLongitudeAfter(Moment universal, double degrees) {
    constexpr AngleSearch search{.daysPerDegree = daysPerDegree, .reach = 5, .width = 0.00001};
    return ArrivalAfter(universal, degrees, search, [](Moment x) { return SolarLongitude(x); });
}

Moment EstimateSolarLongitudeBefore(Moment universal, double degrees) {
    const Moment mean = universal - daysPerDegree * Modulo(SolarLongitude(universal) - degrees, 360);
    return std::min(universal, mean - daysPerDegree * DegreesPast(mean, degrees));
}

namespace {

/// A request for a season, under the numbering and the Delta T of the time.
struct SeasonKey {
    std::int32_t year;
    double degrees;
    std::int64_t numbering;
    std::int64_t deltaT;

    bool operator==(const SeasonKey&) const = default;
};

/// About when the year's mean passage of a longitude is.
Moment AboutSeason(double year, double longitude) {
    return RAYDateToMoment(year + Modulo(longitude * 0.00277777777777 + 0.2, 1));
}

/// The search begins two days before that.
Moment FindSeason(std::int32_t year, double degrees) {
    const double longitude = std::fabs(degrees);
    return SolarLongitudeAfter(AboutSeason(degrees < 0 ? year - 1.0 : year, longitude) - 2, Degrees(longitude));
}

}  // namespace

/// The last two are remembered: the calendars ask for the seasons of neighbouring years by turns.
Moment SeasonMoment(std::int32_t year, double degrees, double offset) {
    if (Modulo(degrees, 90) == 0) {
        const auto listed = ephemeris::ListedSeason(degrees < 0 ? year - 1LL : year, std::fabs(degrees));
        if (listed) return *listed + offset;
    }
    static Memo<2, SeasonKey, Moment> memo;
    return memo.Of({year, degrees, NumberingSerial, DeltaTSerial}, [=] { return FindSeason(year, degrees); }) + offset;
}

/// The mean longitude is a straight line but for the slow growth of Delta T, so that a second step hits it.
Moment MeanSeasonMoment(std::int32_t year, double degrees) {
    Moment x = AboutSeason(year, degrees);
    for (int step = 0; step < 2; ++step) {
        const double past = ModuloRange(MeanLongitudeAt(JulianCenturies(x)) - degrees, -180, 180);
        x -= past * 36525 / meanDegreesPerCentury;
    }
    return x;
}

Moment SameLongitudeYearsLater(Moment universal, double years) {
    const double size = std::fabs(years);
    const double fraction = size - Floor(size);
    double longitude = SolarLongitude(universal);
    if (fraction != 0) longitude = Degrees(longitude + 360 * Sign(years) * fraction);
    const Moment begin = std::clamp<Moment>(universal + MeanTropicalYear * years - 30, MinFixedDay, MaxFixedDay);
    return SolarLongitudeAfter(begin, longitude);
}

Moment SolarLongitudePassage(Moment universal, double degrees, int direction) {
    if (direction > 0) {
        const Moment found = SolarLongitudeAfter(universal, degrees);
        return found > universal + SameEvent ? found : SolarLongitudeAfter(universal + 1, degrees);
    }
    const auto passageBefore = [degrees](Moment x) {  // the estimate may be off by hours
        return SolarLongitudeAfter(EstimateSolarLongitudeBefore(x, degrees) - 1, degrees);
    };
    const Moment found = passageBefore(universal);
    return found < universal - SameEvent ? found : passageBefore(universal - 5);
}

Moment SolarAnomalyPassage(Moment universal, double degrees, int direction) {
    return EvenPassage(universal, degrees, direction, DailyMeanSolarAnomaly, MeanSolarAnomaly);
}

}  // namespace horvanta
