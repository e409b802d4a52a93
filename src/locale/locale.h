#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

/// The observer: a place on the ellipsoid, its elevation, its time zone and its habits.
namespace horvanta {

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

/// The place for which everything is computed. Without a name before the first is chosen.
inline LocaleRecord Locale;

/// The user's own places, by the number of their slot from 1; a slot that was never filled has no name.
inline std::array<LocaleRecord, 31> UserLocales;

/// The elevation lowers the horizon for sunrise and sunset.
inline bool UseElevation = true;

/// Makes a place current for as long as it lives.
class LocaleScope {
  public:
    explicit LocaleScope(const LocaleRecord& place);
    ~LocaleScope();
    LocaleScope(const LocaleScope&) = delete;
    LocaleScope& operator=(const LocaleScope&) = delete;

  private:
    LocaleRecord before_;
};

/// A record from its essentials. A missing text takes the other one; a latitude (degrees, north positive) past a pole
/// is the pole; the longitude (degrees, east positive) is brought into a half circle to either side. An omitted `zone`
/// (hours) is the whole hour nearest to the longitude, and with `useLMT` it is the longitude's own time whatever was
/// given. A location in Israel, by its name, is never in the diaspora.
LocaleRecord MakeLocale(std::string_view name, std::string_view location, double latitude, double longitude,
                        double elevation, std::optional<double> zone = {}, bool noDST = false, bool diaspora = true,
                        bool useLMT = false);

/// Kilometres along the great circle between two places, on a sphere of 6367 km (haversine formula).
double SphericalDistance(const LocaleRecord& from, const LocaleRecord& to);

/// Kilometres between two places along the ellipsoid, by Andoyer's formula (Meeus, Astronomical Algorithms, chapter
/// 11). 0 for a place to itself and to the point opposite it.
double OblateDistance(const LocaleRecord& from, const LocaleRecord& to);

/// The true bearing in degrees, clockwise from north, in which one place sees the other. Due east and due west, and a
/// place seen from itself, come out as 0 where the tangent loses its direction.
double DirectionTo(const LocaleRecord& from, const LocaleRecord& to);

}  // namespace horvanta
