#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

/// The observer: a place on the ellipsoid, its elevation, its time zone and its habits.
namespace horvanta {

inline constexpr double EquatorialRadius = 6378.137;  ///< Of the ellipsoid, in kilometres.

struct LocaleRecord {
    std::string Name;      ///< Short; names the place in settings and reports.
    std::string Location;  ///< Long; for captions.
    double Latitude = 0;   ///< Degrees, north positive, in [-90, 90].
    double KmPerDegLat = 0;
    double LatRad = 0;
    double Longitude = 0;  ///< Degrees, east positive, in [-180, 180).
    double KmPerDegLong = 0;
    double LongRad = 0;  ///< Of the longitude as it was given.
    bool North = true;
    bool South = false;
    bool East = true;
    bool West = false;
    double Elevation = 0;  ///< Metres above sea level.
    double Zone = 0;       ///< Hours east of Universal Time.
    bool Diaspora = true;  ///< False only in Israel; chooses holidays and the daylight rule.
    bool NoDST = false;    ///< Keeps no daylight saving time.
    bool UseLMT = false;   ///< The zone follows the longitude exactly: local mean time.

    bool operator==(const LocaleRecord&) const = default;
};

/// The current place: what arithmetic takes where it is not told another. Without a name before the first is chosen.
inline LocaleRecord Locale;

/// The user's own places, by the number of their slot from 1; a slot that was never filled has no name.
inline std::array<LocaleRecord, 31> UserLocales;

/// A record from its essentials, its names as `NameText` has them. A missing one takes the other; a latitude (degrees,
/// north positive) past a pole is the pole; the longitude (degrees, east positive) is brought into a half circle to
/// either side. An omitted `zone` (hours) is the whole hour nearest to the longitude, and with `useLMT` it is the
/// longitude's own time whatever was given. A location in Israel, by its name, is never in the diaspora.
LocaleRecord MakeLocale(std::string_view name, std::string_view location, double latitude, double longitude,
                        double elevation, std::optional<double> zone = {}, bool noDST = false, bool diaspora = true,
                        bool useLMT = false);

}  // namespace horvanta
