#include "astro/timescales.h"

#include <algorithm>
#include <array>
#include <limits>

namespace horvanta {
namespace {

constexpr double secondsPerDay = 86400;
constexpr double daysPerCentury = 36525;

/// Delta T in seconds up to the year `until`: a polynomial in (year - origin) / unit, and for the last stretch a share
/// of what the year lacks to 2150.
struct DeltaTRow {
    double until;
    double origin;
    double unit;
    std::array<double, 8> coefficients;
    double perYearBefore2150 = 0;
};

constexpr double forever = std::numeric_limits<double>::infinity();

// clang-format off
constexpr DeltaTRow deltaTRows[] = {
    {-500, 1820, 100, {-20, 0, 32}},
    {500, 0, 100, {10583.6, -1014.41, 33.78311, -5.952053, -0.1798452, 0.022174192, 0.0090316521}},
    {1600, 1000, 100, {1574.2, -556.01, 71.23472, 0.319781, -0.8503463, -0.005050998, 0.0083572073}},
    {1700, 1600, 1, {120, -0.9808, -0.01532, 1 / 7129.0}},
    {1800, 1700, 1, {8.83, 0.1603, -0.0059285, 0.00013336, -1 / 1174000.0}},
    {1860, 1800, 1, {13.72, -0.332447, 0.0068612, 0.0041116, -0.00037436, 0.0000121272, -0.0000001699, 0.000000000875}},
    {1900, 1860, 1, {7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1 / 233174.0}},
    {1920, 1900, 1, {-2.79, 1.494119, -0.0598939, 0.0061966, -0.000197}},
    {1941, 1920, 1, {21.2, 0.84493, -0.0761, 0.0020936}},
    {1961, 1950, 1, {29.07, 0.407, -1 / 233.0, 1 / 2547.0}},
    {1986, 1975, 1, {45.45, 1.067, -1 / 260.0, -1 / 718.0}},
    {2005, 2000, 1, {63.86, 0.3345, -0.060374, 0.0017275, 0.000651814, 0.00002373599}},
    {2050, 2000, 1, {62.92, 0.32217, 0.005589}},
    {2150, 1820, 100, {-20, 0, 32}, 0.5628},
    {forever, 1820, 100, {-20, 0, 32}},
};
// clang-format on

double DeltaTSeconds(double year) {
    const DeltaTRow* row = std::ranges::find_if(deltaTRows, [year](const DeltaTRow& r) { return year < r.until; });
    if (row == std::end(deltaTRows)) --row;
    const double t = (year - row->origin) / row->unit;
    auto c = row->coefficients.rbegin();
    while (*c == 0) ++c;
    double seconds = *c;
    while (++c != row->coefficients.rend()) seconds = seconds * t + *c;
    return seconds - row->perYearBefore2150 * (2150 - year);
}

}  // namespace

void SetDeltaTDisabled(bool disabled) {
    DeltaTDisabled = disabled;
    ++DeltaTSerial;
}

double DeltaT(Moment x, double unit) {
    if (DeltaTDisabled) return 0;
    const double seconds = DeltaTSeconds((x - J2000) / 365.2421875 + 2000);
    return unit == 1 ? seconds : seconds / unit;
}

Moment UniversalToTerrestrial(Moment universal) { return universal + DeltaT(universal, secondsPerDay); }
Moment TerrestrialToUniversal(Moment terrestrial) { return terrestrial - DeltaT(terrestrial, secondsPerDay); }

double JulianCenturies(Moment universal) { return (UniversalToTerrestrial(universal) - J2000) / daysPerCentury; }
double JulianMillennia(Moment universal) { return (UniversalToTerrestrial(universal) - J2000) / (10 * daysPerCentury); }

double MomentToJD(Moment x) { return x - JDEpoch; }
Moment JDToMoment(double julianDay) { return julianDay + JDEpoch; }
double MomentToMJD(Moment x) { return x - MJDEpoch; }
Moment MJDToMoment(double modifiedJulianDay) { return modifiedJulianDay + MJDEpoch; }

}  // namespace horvanta
