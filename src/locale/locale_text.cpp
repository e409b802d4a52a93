#include "locale/locale_text.h"

#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "core/numerics.h"
#include "core/text.h"
#include "locale/distances.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace horvanta {
namespace {

constexpr int significantDigits = 6;

std::string Rounded(double x) { return GeneralText(RoundToDigits(x, significantDigits)); }

/// How far and toward which side: "35.2344°E".
std::string Toward(double degrees, const char* positive, const char* negative) {
    return Rounded(std::fabs(degrees)) + "°" + (degrees < 0 ? negative : positive);
}

std::string SignedTime(double days) { return (days < 0 ? " – " : " + ") + FormatTime(std::fabs(days), 0); }

/// The way to the other longitude that is less than half a circle.
double LongitudeDifference(const LocaleRecord& from, const LocaleRecord& to) {
    return ModuloRange(to.Longitude - from.Longitude, -180, 180);
}

/// "6162.17 km = 20554.8 Lt·µs"
std::string DistanceText(double kilometres) {
    constexpr double speedOfLight = 299792458;  // metres a second
    return Rounded(kilometres) + " km = " + Rounded(kilometres * 1e9 / speedOfLight) + " Lt·µs";
}

std::string BearingText(const LocaleRecord& from, const LocaleRecord& to) {
    const double bearing = RoundToDigits(DirectionTo(from, to), significantDigits);
    return "Bearing = " + GeneralText(bearing) + "° (" + CompassPoint(bearing) + ")";
}

std::string ZoneChangeText(const LocaleRecord& from, const LocaleRecord& to) {
    if (from.Zone == to.Zone) return "same time zone";
    const double hours = to.Zone - from.Zone;
    return std::string("Time Zone change = ") + (hours > 0 ? "+" : "") + FormatNumber(hours, "0.0") + " hour" +
           (hours != 1 ? "s" : "") + SignedTime(LongitudeDifference(from, to) / 360);
}

/// Kilometres in a degree are, divided by 3.6, metres in a second of arc. A pole, where a degree of longitude has no
/// length, is met within a few atoms.
std::string DegreeText(double length) {
    constexpr int millimetre = 6;  // decimals of a kilometre
    const double kilometres = Round(length, millimetre);
    return Rounded(kilometres) + " km/degree = " + Rounded(kilometres / 3.6) + " m/s of ";
}

}  // namespace

std::string_view ScaleName() { return DeltaTDisabled ? "Atomic" : "Universal"; }

std::string CompassPoint(double degrees) {
    constexpr const char* points[] = {"N", "NE", "E", "SE", "S", "SW", "W", "NW", "N"};
    constexpr std::string_view clockwise = "EESSWWNN";
    constexpr std::string_view counterclockwise = "WNNEESSWW";
    const double direction = Degrees(degrees);
    const auto octant = static_cast<std::size_t>(std::min(8.0, std::max(0.0, Round(direction / 45))));
    const double leftover = RoundToDigits(direction - 45.0 * static_cast<double>(octant), significantDigits);
    if (leftover == 0) return std::string("True ") + points[octant];
    const char neighbour = leftover > 0 ? clockwise[octant % 8] : counterclockwise[octant];
    return GeneralText(std::fabs(leftover)) + "° " + neighbour + " of " + points[octant];
}

std::string ZoneText(double hours, bool toTheSecond) {
    return std::string(hours < 0 ? "UT-" : "UT+") + FormatTime(HoursToDays(std::fabs(hours)), toTheSecond ? 0 : 2);
}

std::string LocaleSummary(const LocaleRecord& place) {
    const std::string elevation = !horizon::options.UseElevation ? "ignore elevation"
                                  : place.Elevation == 0         ? "sea level"
                                                         : "elevation " + GeneralText(Round(place.Elevation, 2)) + "m";
    const std::string zone = ZoneText(place.Zone, place.UseLMT);
    return place.Location + ":  " + AngleString(std::fabs(place.Latitude)) + (place.North ? "N" : "S") + ", " +
           AngleString(std::fabs(place.Longitude)) + (place.East ? "E" : "W") + ", " + elevation + ", " +
           (place.UseLMT ? "time " : "zone ") + zone;
}

std::string LocaleChangeReport(const LocaleRecord& from, const LocaleRecord& to) {
    return "Switching from \"" + from.Location + "\"\nto \"" + to.Location + "\"\n" + BearingText(from, to) + "\n" +
           ZoneChangeText(from, to) + "\n" +  //
           "Spherical Geometric Distance = " + DistanceText(SphericalDistance(from, to)) + "\n" +
           "Oblate Spheroid Distance = " + DistanceText(OblateDistance(from, to)) + "\n" +
           "(Lt·µs = distance that light travels in a microsecond)\n" +
           "Difference in Longitude = " + Toward(LongitudeDifference(from, to), "E", "W") +
           ", Latitude = " + Toward(to.Latitude - from.Latitude, "N", "S") + "\n" +  //
           "At \"" + to.Location + "\" there are " + DegreeText(to.KmPerDegLat) + "latitude and\n" +
           DegreeText(to.KmPerDegLong) + "longitude\n" +  //
           "Local Mean Time = " + (DeltaTDisabled ? "TT" : "UT") + SignedTime(to.Longitude / 360);
}

namespace {

struct WebMap {
    std::string_view caption;
    std::string_view host;
    std::string (*query)(const LocaleRecord& place);
};

std::string Pair(const LocaleRecord& place, const char* between) {
    return GeneralText(place.Latitude) + between + GeneralText(place.Longitude);
}

/// Text as a part of an address: whatever has a meaning there, or is no plain letter, as its bytes in hexadecimal.
std::string PercentEncoded(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plainMarks = "-._~";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool letter = (byte >= '0' && byte <= '9') || ((byte | 0x20) >= 'a' && (byte | 0x20) <= 'z');
        if (letter || plainMarks.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            encoded += {'%', digits[byte >> 4], digits[byte & 15]};
        }
    }
    return encoded;
}

std::string FirstQuery(const LocaleRecord& place) {
    return "?center=" + Pair(place, ",") + "&zoom=9&q=" + PercentEncoded(place.Name);
}

std::string SecondQuery(const LocaleRecord& place) {
    return "?ll=" + Pair(place, ",") + "&spn=10,10&t=k&q=" + Pair(place, ",");
}

std::string ThirdQuery(const LocaleRecord& place) {
    return "?v=2&cp=" + Pair(place, "~") + "&lvl=12&style=r&sp=an." + Pair(place, "_") + "_" +
           PercentEncoded(place.Name) + "_";
}

std::string FourthQuery(const LocaleRecord& place) {
    return "?pagename=" + PercentEncoded(place.Name) + "&params=" + GeneralText(std::fabs(place.Latitude)) + "_" +
           (place.North ? "N" : "S") + "_" + GeneralText(std::fabs(place.Longitude)) + "_" + (place.East ? "E" : "W");
}

constexpr WebMap webMaps[] = {
    {"MapQuest", "www.mapquest.com/", FirstQuery},
    {"Google Maps", "maps.google.com/maps", SecondQuery},
    {"Bing Maps", "www.bing.com/maps/", ThirdQuery},
    {"GeoHack", "geohack.toolforge.org/geohack.php", FourthQuery},
};

}  // namespace

bool hasWebMap(std::int32_t index) { return index >= 1 && index <= static_cast<std::int32_t>(std::size(webMaps)); }

std::string MapLink(const LocaleRecord& place, bool html) {
    if (!hasWebMap(web_map::options.MapIndex)) return "";
    const WebMap& map = webMaps[web_map::options.MapIndex - 1];
    const std::string url = "http://" + std::string(map.host) + map.query(place);
    if (!html) return url;
    const std::string location = ReplaceAll(place.Location, "&", "&amp;");
    return "<a title=\"Click to see &quot;" + std::string(map.caption) + "&quot; map of &quot;" + location +
           "&quot;\" href=\"" + ReplaceAll(url, "&", "&amp;") + "\" target=_blank>" + location + "</a>";
}

}  // namespace horvanta
