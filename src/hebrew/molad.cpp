#include "hebrew/molad.h"

#include "astro/lunar_phases.h"
#include "astro/timescales.h"
#include "core/numbering.h"
#include "hebrew/hebrew_arithmetic.h"
#include "hebrew/hebrew_modes.h"

#include <cmath>

namespace horvanta {
namespace {

constexpr double partsPerDay = 25920;
constexpr double secondsPerDay = 86400;
constexpr double fromMidnightTo6pm = 0.25;
constexpr double leastAdjustment = 0.018055555555555554;  // 26 minutes

// Longitudes as parts of a day.
constexpr double jerusalem = 0.09791666666666667;             // 35.25°
constexpr double nileEuphrates = 0.10902777777777778;         // 39.25°
constexpr double moladLongitude = 0.11388888888888889;        // 41°
constexpr double traditionalLongitude = 0.11597222222222223;  // 41.75°

/// The mean month as a straight line over the lunations.
constexpr double monthAtFirstMolad = 29.530610201157714;
constexpr double monthSlope = -3.160387390931634e-10;

constexpr double vertexLunation = 50834;
constexpr Epoch vertexMoladEpoch{127730.420447531};

Moment MoladEpochAlt() { return MoladEpochEve() - 10.0 / 24 - 14.0 / 1440; }

/// What moves a moment of the present numbering to the one in which January 1 of year 1 is day 1.
double NumberingShift() { return GregorianEpoch - 1; }

double WholeParts(double days) { return Floor(days * partsPerDay + 0.5) / partsPerDay; }

double Parabola(double lunations, double width, bool rounded) {
    const double adjustment = lunations * lunations / width + leastAdjustment;
    return rounded ? WholeParts(adjustment) : adjustment;
}

}  // namespace

Moment ProgressiveMolad(double n) {
    return MeanNewMoonUT(n - HebrewLunationOfJ2000) + nileEuphrates + fromMidnightTo6pm;
}

Moment MidNileEuphratesLCmolad(double n) { return ProgressiveMolad(n); }

Moment JerusalemLCmolad(double n) { return MeanNewMoonUT(n - HebrewLunationOfJ2000) + jerusalem + fromMidnightTo6pm; }

Moment NewProgressiveMolad(double n) { return TraditionalMolad(n) - NewMoladAdjustment(n, true); }

Moment AltProgressiveMolad(double n) { return (n * monthSlope / 2 + monthAtFirstMolad) * n + MoladEpochAlt(); }

Moment VertexProgressiveMolad(double n) {
    const double k = Round(n - vertexLunation);
    return (k * monthSlope / 2 + 29.53059413564445) * k + vertexMoladEpoch;
}

Moment TTmolad(double n) { return (n - HebrewLunationOfJ2000) * 29.53058883101852 + 5.097731481481482 + J2000; }
Moment UTmolad(double n) { return (n - HebrewLunationOfJ2000) * 29.530587705761317 + 5.096215277777778 + J2000; }
Moment TTmeanNewMoon(double n) { return TTmolad(n) + TTmoladAdjustment(n); }
Moment UTmeanNewMoon(double n) { return UTmolad(n) - UTmoladAdjustment(n); }

double MoladAdjustment(double n, bool rounded) { return Parabola(n - vertexLunation, 6328338120, rounded); }
double NewMoladAdjustment(double n, bool rounded) { return Parabola(n - 50863, 6315458599, rounded); }

double AverageMoladAdjust(double n, bool withLeast) {
    constexpr double least = 0.005931712962962963;
    const double meanMonth = (n + 50934) * -3.1674785008560803e-10 / 2 + 29.530609628447113;
    return (MoladInterval - meanMonth) * (n - 50934) + (withLeast ? least : 0);
}

double UTmoladAdjustment(double n) {
    const double x = n - HebrewLunationOfJ2000;
    return 7.7996159936469e-17 * x * x * x - 3.59787441707859e-22 * x * x * x * x + 1.45376673104446e-10 * x * x -
           1.23748939712528e-9 * x + 9.0925813724177e-6;
}

double TTmoladAdjustment(double n) {
    const double x = n - HebrewLunationOfJ2000;
    return 3.59624328373419e-22 * x * x * x * x - 7.7991026404289e-17 * x * x * x + 1.00511461418006e-10 * x * x +
           2.86701024542566e-8 * x + 8.94568672922258e-5;
}

double AtomicMoladAdjustment(double n) {
    return 3.59395143622855e-22 * n * n * n * n - 1.802531154188e-16 * n * n * n + 1.2808664712062e-10 * n * n -
           2.13009371439569e-5 * n + 0.49284777216178;
}

Moment RAPmolad(double n, bool rounded) {
    const Moment terrestrial = AtomicMoladAdjustment(n) + TraditionalMolad(n);
    const Moment x = terrestrial - DeltaT(terrestrial, secondsPerDay) + jerusalem + fromMidnightTo6pm;
    return rounded ? Floor(x) + WholeParts(Modulo(x, 1)) : x;
}

FixedDay RAPmoladDay(double n) { return Floor(RAPmolad(n, true) + 0.25); }

double LunationToMSM(double n) { return n * monthSlope + monthAtFirstMolad; }
double MSMtoLunation(double days) { return (days - monthAtFirstMolad) / monthSlope; }
double MoladIntervalDiff(double n) { return (MoladInterval - LunationToMSM(n)) * secondsPerDay; }
double RectifiedMeanYear(double n) { return LunationToMSM(n) * 4366 / 353; }

namespace {

/// The seconds of the month beyond 29 days 12 hours 44 minutes as a polynomial of the third degree, and the leading
/// coefficients of its derivative, which has the linear one in common.
struct MonthModel {
    double cubic, square, linear, constant;
    double rateSquare, rateLinear;

    double Seconds(double k) const { return cubic * k * k * k + square * k * k + linear * k + constant; }
    double Rate(double k) const { return (rateSquare * k * k + rateLinear * k + linear) * 1e6; }
};

/// The same polynomial about the first lunation of 2000 and about the first molad.
struct MonthModels {
    MonthModel aboutJ2000;
    MonthModel aboutFirstMolad;

    const MonthModel& Of(bool j2000) const { return j2000 ? aboutJ2000 : aboutFirstMolad; }
};

// clang-format off
constexpr MonthModels solarMonth{
    {1.2434253715776e-16, -2.02167910974353e-11, -2.51203947086355e-5, 2.77786071944175, 3.7302761147328e-16, -4.04335821948706e-11},
    {1.24485967975002e-16, -4.67002355982301e-11, -2.03665160887937e-5, 4.4202923554708, 3.73457903925006e-16, -9.34004711964602e-11},
};
constexpr MonthModels atomicMonth{
    {1.24286167115881e-16, -2.02154603990978e-11, 1.73690746202658e-5, 2.8774318772099, 3.72858501347643e-16, -4.04309207981956e-11},
    {1.2420696071355e-16, -4.67217935117438e-11, 2.21340927541924e-5, 1.49283685753612, 3.7262088214065e-16, -9.34435870234876e-11},
};
// clang-format on

double ArgumentOf(double n, bool fromMolad) { return fromMolad ? n - HebrewLunationOfJ2000 : n; }

double MonthOf(const MonthModels& models, double n, bool fromMolad, bool secondsOnly) {
    const double seconds = models.Of(fromMolad).Seconds(ArgumentOf(n, fromMolad));
    return secondsOnly ? seconds : seconds / secondsPerDay + 29.530555555555555;
}

double MonthRateOf(const MonthModels& models, double n, bool fromMolad) {
    return models.Of(fromMolad).Rate(ArgumentOf(n, fromMolad));
}

}  // namespace

double LunationToMSM_Solar(double n, bool fromMolad, bool secondsOnly) {
    return MonthOf(solarMonth, n, fromMolad, secondsOnly);
}

double LunationToMSM_Atomic(double n, bool fromMolad, bool secondsOnly) {
    return MonthOf(atomicMonth, n, fromMolad, secondsOnly);
}

double LunationToMSMrate_Solar(double n, bool fromMolad) { return MonthRateOf(solarMonth, n, fromMolad); }
double LunationToMSMrate_Atomic(double n, bool fromMolad) { return MonthRateOf(atomicMonth, n, fromMolad); }

double MomentToLunarAcceleration(Moment universal) {
    constexpr double century = 36524.21875;
    const MonthModel& model = atomicMonth.aboutJ2000;
    const double now = MomentToLunation(universal);
    const double then = MomentToLunation(universal - century);
    const double month = LunationToMSM_Atomic(then + HebrewLunationOfJ2000, true, false);
    return ((then * then * then - now * now * now) * model.cubic + (then * then - now * now) * model.square +
            (then - now) * model.linear) *
           century / month;
}

double ProgressiveMomentToLunation(Moment x) {
    const double days = x - NumberingShift();
    const double traditional =
        days * days * 1.81093877203213e-13 + days - days * 4.61771815655947e-8 + 0.0209992384936072;
    return TraditionalMomentToLunation(traditional + NumberingShift());
}

double VertexProgressiveMomentToLunation(Moment x) {
    const double root = std::sqrt((x - vertexMoladEpoch) * -6.320774781863268e-10 + 872.0559900041584);
    return (root - 29.53059413564445) / monthSlope + vertexLunation;
}

Moment AdjustedMolad(std::int32_t year, std::int32_t month, bool withLeast) {
    const double n = ElapsedMonths353(year, month);
    return n * MoladInterval + MoladEpoch() - AverageMoladAdjust(n, withLeast);
}

Moment AdjustedMoladBefore(Moment x) {
    constexpr Epoch adjustmentEpoch{324078.9950248756};
    const double month = (MomentToMeanSynodicMonth(x) + MomentToMeanSynodicMonth(adjustmentEpoch)) / 2;
    return Floor((x - adjustmentEpoch) / month) * month + adjustmentEpoch;
}

Moment AdjustedMoladAfter(Moment x) { return x + MomentToMeanSynodicMonth(x); }

Moment MoladToUniversal(Moment x) { return x - moladLongitude; }
Moment TraditionalMoladToUniversal(Moment x) { return x - traditionalLongitude - fromMidnightTo6pm; }
Moment ProgressiveMoladToUniversal(Moment x) { return x - jerusalem - fromMidnightTo6pm; }

namespace {

/// A difference between moments, where less than about a minute counts as none.
double ToMinutes(double days) { return Round(days, 3); }

}  // namespace

Moment JumpMolad(Moment universal, int direction) {
    const HebrewDateRecord date = FixedToHebrewDate(universal);
    Moment last = TraditionalMoladToUniversal(TraditionalMolad(ElapsedMonths19(date.Year, date.Month)));
    if (ToMinutes(last - universal) > 0) last -= MoladInterval;
    if (ToMinutes(universal - last - MoladInterval) >= 0) last += MoladInterval;
    if (direction > 0) return last + MoladInterval;
    return ToMinutes(universal - last) > 0 ? last : last - MoladInterval;
}

Moment JumpProgressiveMolad(Moment universal, int direction) {
    const auto moladOf = [](double n) { return ProgressiveMoladToUniversal(ProgressiveMolad(n)); };
    const double n = Round(ProgressiveMomentToLunation(universal + jerusalem + fromMidnightTo6pm));
    const Moment nearest = moladOf(n);
    const auto side = Sign(ToMinutes(universal - nearest));
    return side == 0 || side == direction ? moladOf(n + direction) : nearest;
}

}  // namespace horvanta
