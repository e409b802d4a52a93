#include "astro/earth_axis.h"

#include "astro/series.h"
#include "astro/sun_tables.h"
#include "core/memo.h"

namespace horvanta {
namespace {

/// What the nutation depends on, in degrees: the Moon's elongation, the mean anomalies of Sun and Moon, the Moon's
/// argument of latitude and the longitude of its node.
struct Arguments {
    double d;
    double m;
    double mPrime;
    double f;
    double omega;
};

Arguments ArgumentsAt(double c) {
    return {.d = 297.85036 + 445267.11148 * c - 0.0019142 * c * c + c * c * c / 189474,
            .m = 357.52772 + 35999.05034 * c - 0.0001603 * c * c - c * c * c / 300000,
            .mPrime = 134.96298 + 477198.867398 * c + 0.0086972 * c * c + c * c * c / 56250,
            .f = 93.27191 + 483202.017538 * c - 0.0036825 * c * c + c * c * c / 327270,
            .omega = 125.04452 - 1934.136261 * c + 0.0020708 * c * c + c * c * c / 450000};
}

constexpr auto nutationSeries = series::MakeTable(nutationTerms, [](const NutationTerm& term) {
    return series::Term{.angle = {term.m, term.d, term.mPrime, term.f, term.omega},
                        .coefficient = {term.coefficient, term.perCentury}};
});

double SumOfTerms(double c) {
    const Arguments at = ArgumentsAt(c);
    return series::SumOfSines(nutationSeries, {at.m, at.d, at.mPrime, at.f, at.omega}, {1, c}) / 10000 / 3600;
}

}  // namespace

double ObliquityAt(double c) { return (((0.001813 * c - 0.00059) * c - 46.815) * c + 84381.448) / 3600; }

double NutationAt(double centuries) {
    static Memo<8, double, double> memo;
    return memo.Of(centuries, [=] { return SumOfTerms(centuries); });
}

double MeanSolarAnomalyAt(double c) { return 357.5291 + 35999.0503 * c - 0.0001559 * c * c - 0.00000048 * c * c * c; }

}  // namespace horvanta
