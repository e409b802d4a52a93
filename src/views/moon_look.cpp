#include "views/moon_look.h"

#include "astro/moon.h"
#include "core/text.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace horvanta {
namespace {

constexpr double meanDistance = 385000.56;  // km

constexpr std::array<std::string_view, 8> quarterNames{"New",  "Waxing crescent", "First quarter", "Waxing gibbous",
                                                       "Full", "Waning gibbous",  "Last quarter",  "Waning crescent"};

constexpr std::array<std::string_view, 8> directions{"north", "north-east", "east", "south-east",
                                                     "south", "south-west", "west", "north-west"};

std::string_view DirectionOf(double bearing) {
    return directions[WholeNumber<std::size_t>(Round(Degrees(bearing) / 45)) % directions.size()];
}

}  // namespace

MoonPicture::Look LookOfMoon(Moment universal, const LocaleRecord& place) {
    return {.lit = lunar::LitFraction(universal),
            .turn = Degrees(lunar::BrightLimbAngle(universal) - lunar::ParallacticAngle(universal, place)),
            .size = meanDistance / lunar::Distance(universal),
            .up = lunar::ObservedAltitude(universal, place) > 0};
}

std::string PhaseName(double phase) {
    constexpr double tolerance = 6;  // degrees
    const double degrees = Degrees(phase + tolerance);
    const bool isQuarter = Modulo(degrees, 90) <= 2 * tolerance;
    const auto quarter = WholeNumber<std::size_t>(Quotient(degrees, 90)) * 2 % quarterNames.size();
    return std::string(quarterNames[quarter + (isQuarter ? 0 : 1)]) + " Moon";
}

std::string MoonInWords(Moment universal, const LocaleRecord& place) {
    const double altitude = lunar::TopocentricAltitude(universal, place);
    const bool up = lunar::ObservedAltitude(universal, place) > 0;
    return PhaseName(lunar::Phase(universal)) + ", " + FormatNumber(lunar::LitFraction(universal) * 100, "0") +
           " % lit, " + FormatNumber(std::fabs(altitude), "0") + "° " + (up ? "above" : "below") +
           " the horizon in the " + std::string(DirectionOf(lunar::Bearing(universal, place)));
}

}  // namespace horvanta
