#include "hebrew/tekufot.h"

#include "core/numerics.h"
#include "core/text.h"
#include "hebrew/hebrew_arithmetic.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace horvanta {
namespace {

/// A longitude that grows evenly.
struct MeanMotion {
    double degreesPerDay;
    double atEpoch;

    double At(Moment universal) const { return Modulo((universal - RMBM_Epoch) * degreesPerDay + atEpoch, 360); }
};

constexpr MeanMotion sun{0.985647222222222, 7.058888888888889};
constexpr MeanMotion apogee{0.0000416666666666667, 86.7522222222222};
constexpr MeanMotion lunarPath{13.064980555555556, 84.47833333333334};
constexpr MeanMotion moon{13.176397222222223, 31.245277777777776};
constexpr MeanMotion node{0.05295277777777778, 180.95777777777778};

/// Minutes of arc at each tenth degree of a course, 0 to 180; the other half circle mirrors it.
using Table = std::array<std::int16_t, 19>;
constexpr Table solarCorrection{0, 20, 40, 58, 75, 89, 101, 111, 117, 119, 118, 113, 105, 93, 79, 61, 42, 21, 0};
constexpr Table lunarCorrection{0, 50, 98, 144, 186, 224, 256, 281, 300, 305, 308, 299, 280, 251, 213, 168, 116, 59, 0};
constexpr Table lunarLatitude{0, 52, 103, 150, 193, 230, 260, 282, 295, 300, 295, 282, 260, 230, 193, 150, 103, 52, 0};

/// A course folded into 0 to 180.
constexpr double Folded(double course) { return course <= 180 ? course : 360 - course; }

/// Degrees, with proportional parts between the entries.
double FromTable(const Table& table, double course) {
    const double y = Folded(course);
    const double i = Floor(y / 10);
    const auto place = static_cast<std::size_t>(i);
    const double a = table[place];
    if (y == 10 * i) return a / 60;
    const double b = table[place + 1];
    return (a + (y - 10 * i) * (b - a) / 10) / 60;
}

double LunarLongitudeAdjust(double course, bool useTable) {
    const double y = Folded(course);
    const double adjustment =
        useTable ? FromTable(lunarCorrection, course)
                 : (((0.00000001535666 * y - 0.00000638865) * y + 0.0002209192) * y + 0.07737659) * y + 0.02513695;
    return course < 180 ? -adjustment : adjustment;
}

/// What the seasons add to the Moon's mean longitude by the Sun's, since sunset is earlier or later than 18:00, in
/// minutes of arc from each longitude on.
struct FromLongitude {
    double longitude;
    double minutes;
};
constexpr FromLongitude seasonal[] = {{345, 0},  {300, -15}, {240, -30}, {195, -15}, {165, 0},
                                      {120, 15}, {60, 30},   {15, 15},   {0, 0}};

double SeasonalMinutes(double meanSun) {
    return std::ranges::find_if(seasonal, [&](const FromLongitude& row) { return meanSun >= row.longitude; })->minutes;
}

/// Degrees added to the Moon's course by its double elongation in whole degrees: the class is the number of bounds that
/// it has reached. Beyond the last nothing is added; the Moon is not sighted there.
double CourseClass(double doubleElongation) {
    constexpr std::int32_t bounds[] = {6, 12, 19, 25, 32, 39, 46, 52, 60, 64};
    const auto reached = std::ranges::count_if(bounds, [&](std::int32_t bound) { return doubleElongation >= bound; });
    return reached == std::ssize(bounds) ? 0 : static_cast<double>(reached);
}

Moment TekufahMoment(Moment start, double fraction, double longitude, std::int32_t year) {
    const double n = (year - 1.0) * 4 + Floor(longitude / 90) - (longitude > 90 ? 4 : 0);
    return start + n * 91 + n * fraction;
}

/// 9 hours 642 parts: the first Tekufah of Nisan came so long before the molad, by Rav Adda, and by Shmuel 7 days more.
constexpr double sinceTekufah = 9.0 / 24;
constexpr double partsSinceTekufah = 642.0 / 25920;

}  // namespace

double RMBM_SolarMeanLongitude(Moment universal) { return sun.At(universal); }
double RMBM_ApogeeLongitude(Moment universal) { return apogee.At(universal); }
double RMBM_LunarPathMeanLongitude(Moment universal) { return lunarPath.At(universal); }

double RMBM_LunarMeanLongitude(Moment universal) {
    return Modulo(moon.At(universal) + SeasonalMinutes(RMBM_SolarMeanLongitude(universal)) / 60, 360);
}

double RMBM_LunarRoshLongitude(Moment universal) {
    return Modulo(360 - ((universal - RMBM_Epoch) * node.degreesPerDay + node.atEpoch), 360);
}

double RMBM_LunarZanavLongitude(Moment universal) { return Modulo(RMBM_LunarRoshLongitude(universal) + 180, 360); }

double RMBM_SolarLongitudeAdjust(double course, bool useTable) {
    const double y = Folded(course);
    const double adjustment = useTable ? FromTable(solarCorrection, course)
                                       : (0.000000401298964 * y * y * y * y - 0.000151883113 * y * y * y +
                                          0.00355765642 * y * y + 1.93640482 * y + 0.350322446) /
                                             60;
    return course > 180 ? -adjustment : adjustment;
}

double RMBM_SolarTrueLongitude(Moment universal) {
    const double mean = RMBM_SolarMeanLongitude(universal);
    const double course = Modulo(mean - RMBM_ApogeeLongitude(universal), 360);
    return Modulo(mean - RMBM_SolarLongitudeAdjust(course, true), 360);
}

Moment RMBM_SolarLongitudeAfter(Moment universal, double degrees) {
    const Moment near = universal + Modulo(degrees - RMBM_SolarTrueLongitude(universal), 360) / sun.degreesPerDay;
    Moment lower = std::max(universal, near - 5);
    Moment upper = near + 5;
    Moment middle = near;
    for (int step = 0; step < 60 && upper - lower >= 0.000001; ++step) {
        middle = (lower + upper) / 2;
        const bool past = Modulo(RMBM_SolarTrueLongitude(middle) - degrees, 360) < 180;
        (past ? upper : lower) = middle;
    }
    return middle;
}

double RMBM_DoubleElongation(Moment universal) {
    return Modulo(2 * (RMBM_LunarMeanLongitude(universal) - RMBM_SolarMeanLongitude(universal)), 360);
}

double RMBM_LunarTrueLongitude(Moment universal, bool useTable) {
    const double added = CourseClass(Round(RMBM_DoubleElongation(universal)));
    const double course = Modulo(RMBM_LunarPathMeanLongitude(universal) + added, 360);
    return Modulo(RMBM_LunarMeanLongitude(universal) + LunarLongitudeAdjust(course, useTable), 360);
}

double RMBM_LunarLatitude(Moment universal, bool useTable) {
    const double fromHead = Modulo(RMBM_LunarTrueLongitude(universal, true) - RMBM_LunarRoshLongitude(universal), 360);
    if (!useTable) return 5 * SinDeg(fromHead);
    const double latitude = FromTable(lunarLatitude, fromHead);
    return fromHead > 180 ? -latitude : latitude;
}

std::string RMBM_DegreesInConstellation(double longitude) {
    constexpr std::string_view signs[] = {"Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
                                          "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
    const double sign = Floor(longitude / 30);
    return FormatNumber(longitude - 30 * sign, "0.0") + "° " +
           std::string(signs[static_cast<std::size_t>(FloorModulo(WholeNumber(sign), std::ssize(signs)))]);
}

Moment RMBM_TekufatShmuel(double longitude, std::int32_t year) {
    return TekufahMoment(molad(1, 1) - 7 - sinceTekufah - partsSinceTekufah, 0.3125, longitude, year);
}

Moment RMBM_TekufatAdda(double longitude, std::int32_t year) {
    return TekufahMoment(molad(1, 1) - sinceTekufah - partsSinceTekufah, 0.31170555149447693, longitude, year);
}

Moment RMBM_TekufatTesselby(double longitude, std::int32_t year) {
    return TekufahMoment(HebrewEpoch + 195 + 7.0 / 24 + 37.0 / 1440 + 0.6, 0.310580204778157, longitude, year);
}

}  // namespace horvanta
