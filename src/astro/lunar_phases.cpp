#include "astro/lunar_phases.h"

#include "astro/bisection.h"
#include "astro/lunar_phase_tables.h"
#include "astro/moon.h"
#include "astro/series.h"
#include "astro/timescales.h"
#include "core/memo.h"

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

constexpr auto newMoonSeries = series::MakeTable(newMoonTerms, [](const NewMoonTerm& row) {
    series::Term term{.angle = {row.m, row.mPrime, row.f, row.omega}, .coefficient = {}};
    term.coefficient[static_cast<std::size_t>(row.power)] = row.coefficient;
    return term;
});

constexpr auto planetarySeries = series::MakeTable(planetaryTerms, [](const PlanetaryTerm& row) {
    return series::Term{.angle = {row.addend, row.multiplier}, .coefficient = {row.coefficient}};
});

/// Terrestrial, of a lunation counted from the first new moon of 2000.
Moment TrueNewMoon(double k) {
    const double c = k / 1236.85;
    const double c2 = c * c;
    const double c3 = c2 * c;
    const double c4 = c3 * c;
    const Moment mean =
        GregorianEpoch + 730124.59765 + 36524.908831491 * c + 0.0001536 * c2 - 0.00000015 * c3 + 0.00000000073 * c4;
    const double e = 1 - 0.002516 * c - 0.0000074 * c2;
    const double m = 2.5534 + 35998.960422026496 * c - 0.0000218 * c2 - 0.00000011 * c3;
    const double mPrime = 201.5643 + 477197.67640106793 * c + 0.0107438 * c2 + 0.00001239 * c3 - 0.000000058 * c4;
    const double f = 160.7108 + 483200.81131396897 * c - 0.0016341 * c2 - 0.00000227 * c3 + 0.000000011 * c4;
    const double omega = 124.7746 - 1934.1313612299998 * c + 0.0020691 * c2 + 0.00000215 * c3;
    const double periodic = series::SumOfSines(newMoonSeries, {m, mPrime, f, omega}, {1, e, e * e});
    const double first = 0.000325 * SinDeg(299.77 + 132.8475848 * c - 0.009173 * c2);
    return periodic + mean + first + series::SumOfSines(planetarySeries, {1, k}, {1});
}

/// A numbered new moon, under the numbering of days and the Delta T of the time.
struct NewMoonKey {
    std::int64_t n;
    std::int64_t numbering;
    std::int64_t deltaT;

    bool operator==(const NewMoonKey&) const = default;
};

/// Numbers are off by two at most, but for moments past all reason, where nothing is in order.
constexpr int patience = 8;

constexpr AngleSearch phaseSearch{.daysPerDegree = MeanSynodicMonth / 360, .reach = 2, .width = 0.00001};

double PhaseOf(Moment universal) { return lunar::Phase(universal); }

}  // namespace

Moment NthNewMoon(std::int64_t n) {
    static Memo<4, NewMoonKey, Moment> memo;
    return memo.Of({n, NumberingSerial, DeltaTSerial},
                   [n] { return TerrestrialToUniversal(TrueNewMoon(static_cast<double>(n - FirstNewMoonOf2000))); });
}

Moment LunationZero() {
    static Memo<1, NewMoonKey, Moment> memo;
    return memo.Of({0, NumberingSerial, DeltaTSerial}, [] { return NthNewMoon(0); });
}

std::int64_t ApproxNthMoon(Moment universal) {
    const double months = Round((universal - LunationZero()) / MeanSynodicMonth - lunar::Phase(universal) / 360);
    return WholeNumber<std::int64_t>(std::clamp(months, -1e9, 1e9));
}

Moment NewMoonAfter(Moment universal) {
    std::int64_t n = ApproxNthMoon(universal);
    for (int tries = 0; tries < patience && NthNewMoon(n) > universal; ++tries) --n;
    for (int tries = 0; tries < patience && NthNewMoon(n) <= universal; ++tries) ++n;
    return NthNewMoon(n);
}

Moment NewMoonBefore(Moment universal) {
    std::int64_t n = ApproxNthMoon(universal);
    for (int tries = 0; tries < patience && NthNewMoon(n) < universal; ++tries) ++n;
    for (int tries = 0; tries < patience && NthNewMoon(n) >= universal; ++tries) --n;
    return NthNewMoon(n);
}

Moment NewMoonNearest(Moment universal) {
    const Moment before = NewMoonBefore(universal);
    const Moment after = NewMoonAfter(universal);
    return universal - before < after - universal ? before : after;
}

Moment PhaseAfter(Moment universal, double degrees) { return ArrivalAfter(universal, degrees, phaseSearch, PhaseOf); }
Moment PhaseBefore(Moment universal, double degrees) { return ArrivalBefore(universal, degrees, phaseSearch, PhaseOf); }

Moment NewMoonEstimateTT(double L) { return J2000 + 5.097731481481482 + 29.53058883101852 * L; }

double NewMoonAdjustTT(double L) {
    return 0.0000894568672922258 + 0.0000000286701024542566 * L + 0.000000000100511461418006 * L * L -
           0.000000000000000077991026404289 * L * L * L + 0.000000000000000000000359624328373419 * L * L * L * L;
}

Moment MeanNewMoonTT(double L) { return NewMoonEstimateTT(L) + NewMoonAdjustTT(L); }

Moment NewMoonEstimateUT(double L) { return J2000 + 5.096215277777778 + 29.530587705761317 * L; }

double NewMoonAdjustUT(double L) {
    return 0.0000090925813724177 - 0.00000000123748939712528 * L + 0.000000000145376673104446 * L * L +
           0.000000000000000077996159936469 * L * L * L - 0.000000000000000000000359787441707859 * L * L * L * L;
}

Moment MeanNewMoonUT(double L) { return TerrestrialToUniversal(MeanNewMoonTT(L)); }

double MSM_Atomic(double L) { return (MeanNewMoonTT(L + 1) - MeanNewMoonTT(L - 1)) / 2; }
double MSM_Solar(double L) { return (MeanNewMoonUT(L + 1) - MeanNewMoonUT(L - 1)) / 2; }

double TTmomentToLunation(Moment terrestrial) {
    const double y = (terrestrial - J2000) / 365.2421875;
    return -0.172522031152115 + 12.3682665144699 * y - 0.000000000536794608763103 * y * y;
}

double UTmomentToLunation(Moment universal) { return TTmomentToLunation(UniversalToTerrestrial(universal)); }

double MomentToLunation(Moment universal) {
    return DeltaTDisabled ? TTmomentToLunation(universal) : UTmomentToLunation(universal);
}

double MomentToMeanSynodicMonth(Moment x) {
    const Moment rataDie = x - (GregorianEpoch - 1);
    return 29.530595186866936 - 0.00000000001084689700000392 * rataDie;
}

namespace {

double SecondsAboveShortMonth(double lengthOrSeconds) {
    constexpr double shortMonth = 29.530555555555555;  // 29 days 12 hours 44 minutes
    return lengthOrSeconds > 29 ? (lengthOrSeconds - shortMonth) * 86400 : lengthOrSeconds;
}

}  // namespace

double MSM_AtomicToLunation(double lengthOrSeconds) {
    const double s = SecondsAboveShortMonth(lengthOrSeconds);
    return Round(-849.947187920566 * s * s * s + 10174.368817107 * s * s + 20156.6200431086 * s - 121610.898627114);
}

double MSM_SolarToLunation(double lengthOrSeconds) {
    const double s = SecondsAboveShortMonth(lengthOrSeconds);
    return Round(-413.762293381587 * s * s * s + 1822.00418894735 * s * s - 40469.2457400443 * s + 107460.748889606);
}

Moment JumpMeanNewMoon(Moment universal, int direction) {
    const auto meanNewMoon = DeltaTDisabled ? MeanNewMoonTT : MeanNewMoonUT;
    const double about = Floor(Round(MomentToLunation(universal), 4));
    const double first = direction > 0 ? about - 1 : about + 2;
    Moment found = meanNewMoon(first);
    for (int step = 1; step < 4 && Sign(Round(found - universal, 3)) != direction; ++step) {
        found = meanNewMoon(first + direction * step);
    }
    return found;
}

Moment NumberedLunation(double number, const LunationConvention& convention) {
    const double whole = std::clamp(Floor(number), -1e9, 1e9);
    const Moment newMoon = NthNewMoon(WholeNumber<std::int64_t>(whole) + FirstNewMoonOf2000 - convention.Offset);
    return whole == number ? newMoon : PhaseAfter(newMoon, (number - whole) * 360);
}

}  // namespace horvanta
