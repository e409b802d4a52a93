#pragma once

#include "core/locale.h"
#include "core/numerics.h"

/// Where the Moon stands at a moment, and how it looks. Moments are universal; angles are in degrees, on the ecliptic
/// and the equator of date. After Meeus, Astronomical Algorithms, chapters 13, 14, 47 and 48.
namespace horvanta::lunar {

/// Apparent longitude seen from the Earth's centre, in [0, 360).
double Longitude(Moment universal);

/// Seen from the Earth's centre, north of the ecliptic.
double Latitude(Moment universal);

/// From the Earth's centre, in kilometres.
double Distance(Moment universal);

double Declination(Moment universal);
double RightAscension(Moment universal);

/// How far the Moon is past the meridian of a place, in [0, 360).
double HourAngle(Moment universal, const LocaleRecord& place = Locale);

/// Above the horizon of a place, as the Earth's centre would see it: without parallax and refraction.
double Altitude(Moment universal, const LocaleRecord& place = Locale);

/// By how much the Moon stands lower for the place than for the Earth's centre.
double Parallax(Moment universal, const LocaleRecord& place = Locale);

/// The altitude with the parallax taken off.
double TopocentricAltitude(Moment universal, const LocaleRecord& place = Locale);

/// How many degrees the Moon seems lifted at the horizon: 34' of refraction and a little for its half breadth, whose
/// degrees count as minutes.
double HorizonLift(Moment universal);

/// The altitude that is 0 when the Moon rises and sets: lifted so, and with the dip of the horizon, if the user has
/// elevations used.
double ObservedAltitude(Moment universal, const LocaleRecord& place = Locale);

/// The direction in which the Moon stands, clockwise from north.
double Bearing(Moment universal, const LocaleRecord& place = Locale);

/// Longitude of the Moon less that of the Sun: in [0, 360), or in [-180, 180) if `isSigned`.
double Phase(Moment universal, bool isSigned = false);

/// Apparent breadth seen from the Earth's centre.
double Diameter(Moment universal);

/// The part of the disc that is lit, from 0 to 1.
double LitFraction(Moment universal);

/// The direction on the disc, from the celestial north eastwards, of the middle of its lit limb.
double BrightLimbAngle(Moment universal);

/// The direction on the disc, from the celestial north eastwards, of the zenith of a place. The lit limb is seen there
/// at the bright limb's angle less this one, from the top to the left.
double ParallacticAngle(Moment universal, const LocaleRecord& place = Locale);

/// Longitudes of the nodes: the mean ones in [0, 360), the true ones, if `useTrue`, with five periodic terms, which may
/// carry the ascending one a little out of it.
double AscendingNode(Moment universal, bool useTrue = false);
double DescendingNode(Moment universal, bool useTrue = false);

/// Longitudes of the mean perigee and of the point opposite.
double Perigee(Moment universal);
double Apogee(Moment universal);

/// The Moon at one end of its orbit.
struct Apsis {
    Moment moment;    ///< Universal.
    double distance;  ///< In kilometres.
};

/// The least and the greatest distance within two days of the next passage of the mean perigee or apogee.
Apsis DistanceAtPerigee(Moment universal);
Apsis DistanceAtApogee(Moment universal);

/// The first moment after `universal` at which the Moon comes to a longitude.
Moment LongitudeAfter(Moment universal, double degrees);

/// The first moment after `universal` (direction 1) or the last before it (-1) at which the Moon's mean anomaly comes
/// to some degrees: 0 is the mean perigee, 180 the mean apogee. A moment that such a passage was found at counts as the
/// passage.
Moment AnomalyPassage(Moment universal, double degrees, int direction);

}  // namespace horvanta::lunar
