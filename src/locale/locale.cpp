#include "locale/locale.h"

#include "core/numerics.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <utility>

namespace horvanta {
namespace {

constexpr double equatorialRadius = 6378.137;  // kilometres
constexpr double eccentricitySquared = 0.0066943799901413165;
constexpr double flattening = 0.0033528106647474805;
constexpr double sphereRadius = 6367000;  // metres

double Squared(double x) { return x * x; }

bool isInIsrael(std::string_view location) {
    constexpr std::string_view israel = "israel";
    return !std::ranges::search(location, israel, {}, [](unsigned char c) { return std::tolower(c); }).empty();
}

std::string FirstFilled(std::string_view text, std::string_view other, std::string_view otherwise) {
    return std::string(!text.empty() ? text : !other.empty() ? other : otherwise);
}

void SetPosition(LocaleRecord& place, double latitude, double longitude) {
    place.Latitude = std::fabs(latitude) > 90 ? Sign(latitude) * 90.0 : latitude;
    place.Longitude = Modulo(longitude + 180, 360) - 180;
    place.LatRad = Radians(place.Latitude);
    place.LongRad = Radians(longitude);
    place.North = place.Latitude >= 0;
    place.South = !place.North;
    place.East = place.Longitude >= 0;
    place.West = !place.East;
}

void SetScale(LocaleRecord& place) {
    const double e = std::sqrt(eccentricitySquared);
    const double s = 1 - Squared(std::sin(place.LatRad)) * Squared(e);
    place.KmPerDegLat = ((1 - Squared(e)) * equatorialRadius / std::pow(s, 1.5)) * RadiansPerDegree;
    place.KmPerDegLong = (std::cos(place.LatRad) * equatorialRadius / std::sqrt(s)) * RadiansPerDegree;
}

}  // namespace

LocaleScope::LocaleScope(const LocaleRecord& place) : before_(std::exchange(Locale, place)) {}
LocaleScope::~LocaleScope() { Locale = std::move(before_); }

LocaleRecord MakeLocale(std::string_view name, std::string_view location, double latitude, double longitude,
                        double elevation, std::optional<double> zone, bool noDST, bool diaspora, bool useLMT) {
    LocaleRecord place;
    place.Name = FirstFilled(name, location, "Unknown");
    place.Location = FirstFilled(location, name, "Unspecified Location");
    SetPosition(place, latitude, longitude);
    SetScale(place);
    place.Elevation = elevation;
    place.Zone = useLMT ? place.Longitude * 24 / 360 : zone.value_or(ZoneFromLongitude(longitude));
    place.Diaspora = diaspora && !isInIsrael(place.Location);
    place.NoDST = noDST;
    place.UseLMT = useLMT;
    return place;
}

double SphericalDistance(const LocaleRecord& from, const LocaleRecord& to) {
    const double h = Squared(SinDeg((to.Latitude - from.Latitude) / 2)) +
                     CosDeg(from.Latitude) * CosDeg(to.Latitude) * Squared(SinDeg((to.Longitude - from.Longitude) / 2));
    return 2 * ArcTanRad(std::sqrt(std::max(0.0, 1 - h)), std::sqrt(h)) * sphereRadius / 1000;
}

double OblateDistance(const LocaleRecord& from, const LocaleRecord& to) {
    const double f = (from.Latitude + to.Latitude) / 2;
    const double g = (from.Latitude - to.Latitude) / 2;
    const double l = (from.Longitude - to.Longitude) / 2;
    const double s = Squared(SinDeg(g)) * Squared(CosDeg(l)) + Squared(CosDeg(f)) * Squared(SinDeg(l));
    const double c = Squared(CosDeg(g)) * Squared(CosDeg(l)) + Squared(SinDeg(f)) * Squared(SinDeg(l));
    if (s <= 0 || c <= 0) return 0;
    const double w = ArcTanRad(std::sqrt(s / c));
    const double r = std::sqrt(s * c) / w;
    const double h1 = (3 * r - 1) / (2 * c);
    const double h2 = (3 * r + 1) / (2 * s);
    return 2 * w * equatorialRadius *
           (1 + flattening * h1 * Squared(SinDeg(f)) * Squared(CosDeg(g)) -
            flattening * h2 * Squared(CosDeg(f)) * Squared(SinDeg(g)));
}

double DirectionTo(const LocaleRecord& from, const LocaleRecord& to) {
    const double d = to.LongRad - from.LongRad;
    const double b = std::cos(from.LatRad) * std::tan(to.LatRad) - std::sin(from.LatRad) * std::cos(d);
    return Round(b, 10) == 0 ? Deg(0) : ArcTan2Deg(std::sin(d), b);
}

}  // namespace horvanta
