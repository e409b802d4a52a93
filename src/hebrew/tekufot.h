#pragma once

#include "core/numbering.h"

#include <cstdint>
#include <string>

/// The seasons by the classical Jewish reckonings, and the theory of Sun and Moon of Maimonides (Mishneh Torah,
/// Sanctification of the New Month, chapters 9 to 17), in his degrees, rates and tables.
namespace horvanta {

/// The epoch of the theory, in the evening of 3 Nisan 4938, as 18:00 at Jerusalem told on the universal scale.
inline constexpr Epoch RMBM_Epoch{429977.652126543};

// The mean motions at universal moments, in degrees in [0, 360).

double RMBM_SolarMeanLongitude(Moment universal);
double RMBM_ApogeeLongitude(Moment universal);

/// The Moon's longitude, with what the seasons add at the hour of sighting.
double RMBM_LunarMeanLongitude(Moment universal);

/// The Moon's mean anomaly, its course in the small circle.
double RMBM_LunarPathMeanLongitude(Moment universal);

/// The head, or ascending node, of the Moon's path, which moves backwards, and the tail opposite to it.
double RMBM_LunarRoshLongitude(Moment universal);
double RMBM_LunarZanavLongitude(Moment universal);

/// Degrees to be taken from the Sun's mean longitude by its course from the apogee (degrees in [0, 360)): from the
/// table of each tenth degree with proportional parts, or from a polynomial fitted to it. Negative past 180°.
double RMBM_SolarLongitudeAdjust(double course, bool useTable);

/// The Sun's true longitude, by the table.
double RMBM_SolarTrueLongitude(Moment universal);

/// The first moment about or after `universal` at which the true Sun reaches a longitude, within a tenth of a second;
/// never before `universal`.
Moment RMBM_SolarLongitudeAfter(Moment universal, double degrees);

/// Twice the mean Moon's distance from the mean Sun.
double RMBM_DoubleElongation(Moment universal);

/// The Moon's true longitude, by the table or by a polynomial fitted to it.
double RMBM_LunarTrueLongitude(Moment universal, bool useTable);

/// The Moon's latitude in degrees, north positive, by the table or by a sine of 5°. The Moon's longitude is always
/// that by the table.
double RMBM_LunarLatitude(Moment universal, bool useTable);

/// A longitude in [0, 360) within its sign, "12.3° Leo".
std::string RMBM_DegreesInConstellation(double longitude);

// The seasons of a Hebrew year by arithmetic: at longitude 0 (Nisan), 90 (Tammuz), 180 (Tishrei) and 270 (Tevet), of
// which the last two stand before the first two. They are told on the scale of `MoladEpoch`, of days that begin at
// midnight, by the calendar's own hours.

/// By Shmuel: quarters of 91 days 7½ hours.
Moment RMBM_TekufatShmuel(double longitude, std::int32_t year);

/// By Rav Adda: quarters of 91 days 7 hours 519 parts 31 moments, 76 to the part.
Moment RMBM_TekufatAdda(double longitude, std::int32_t year);

/// By a year of mean length at present.
Moment RMBM_TekufatTesselby(double longitude, std::int32_t year);

}  // namespace horvanta
