#include "core/locale.h"

#include "core/numerics.h"
#include "core/text.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace horvanta {
namespace {

constexpr double eccentricitySquared = 0.0066943799901413165;

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
    place.KmPerDegLat = ((1 - Squared(e)) * EquatorialRadius / std::pow(s, 1.5)) * RadiansPerDegree;
    place.KmPerDegLong = (std::cos(place.LatRad) * EquatorialRadius / std::sqrt(s)) * RadiansPerDegree;
}

}  // namespace

LocaleRecord MakeLocale(std::string_view name, std::string_view location, double latitude, double longitude,
                        double elevation, std::optional<double> zone, bool noDST, bool diaspora, bool useLMT) {
    LocaleRecord place;
    const std::string shortName = NameText(name);
    const std::string longName = NameText(location);
    place.Name = FirstFilled(shortName, longName, "Unknown");
    place.Location = FirstFilled(longName, shortName, "Unspecified Location");
    SetPosition(place, latitude, longitude);
    SetScale(place);
    place.Elevation = elevation;
    place.Zone = useLMT ? place.Longitude * 24 / 360 : zone.value_or(ZoneFromLongitude(longitude));
    place.Diaspora = diaspora && !isInIsrael(place.Location);
    place.NoDST = noDST;
    place.UseLMT = useLMT;
    return place;
}

}  // namespace horvanta
