#include "astro/earth_axis.h"

#include "astro/sun_tables.h"
#include "core/memo.h"
#include "core/numerics.h"

#include <algorithm>
#include <array>
#include <cmath>

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

constexpr std::size_t termCount = std::size(nutationTerms);

/// One field of all terms, side by side for the loop that goes over them several at once.
constexpr std::array<double, termCount> Column(double NutationTerm::*field) {
    std::array<double, termCount> column{};
    for (std::size_t i = 0; i < termCount; ++i) column[i] = nutationTerms[i].*field;
    return column;
}

constexpr auto timesD = Column(&NutationTerm::d);
constexpr auto timesM = Column(&NutationTerm::m);
constexpr auto timesMPrime = Column(&NutationTerm::mPrime);
constexpr auto timesF = Column(&NutationTerm::f);
constexpr auto timesOmega = Column(&NutationTerm::omega);

double SumOfTerms(double c) {
    const Arguments at = ArgumentsAt(c);
    std::array<double, termCount> angles;
    for (std::size_t i = 0; i < termCount; ++i) {
        angles[i] = timesM[i] * at.m + timesD[i] * at.d + timesMPrime[i] * at.mPrime + timesF[i] * at.f +
                    timesOmega[i] * at.omega;
    }
    ToRadians(angles);
    double sum = 0;
    for (std::size_t i = 0; i < termCount; ++i) {
        sum += (nutationTerms[i].coefficient + nutationTerms[i].perCentury * c) * std::sin(angles[i]);
    }
    return sum / 10000 / 3600;
}

}  // namespace

double ObliquityAt(double c) { return (((0.001813 * c - 0.00059) * c - 46.815) * c + 84381.448) / 3600; }

double NutationAt(double centuries) {
    static Memo<1, double, double> memo;
    return memo.Of(centuries, [=] { return SumOfTerms(centuries); });
}

double MeanSolarAnomalyAt(double c) { return 357.5291 + 35999.0503 * c - 0.0001559 * c * c - 0.00000048 * c * c * c; }

}  // namespace horvanta
