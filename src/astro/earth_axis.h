#pragma once

/// How the Earth's axis leans and nods, and how far the Earth is on its orbit, by Julian centuries of Terrestrial Time
/// from J2000.
namespace horvanta {

/// Mean obliquity of the ecliptic in degrees (Laskar's polynomial cut to the third power; Meeus, Astronomical
/// Algorithms, 22.2).
double ObliquityAt(double centuries);

/// Nutation in longitude in degrees: the 63 terms of the IAU 1980 theory (Meeus, Astronomical Algorithms, table 22.A).
double NutationAt(double centuries);

/// Mean anomaly of the Sun in degrees, with all its revolutions, and what it gains a day at J2000 (Meeus, Astronomical
/// Algorithms, 25.3): 0 at the mean perihelion of the Earth, 180 at its mean aphelion.
double MeanSolarAnomalyAt(double centuries);
inline constexpr double DailyMeanSolarAnomaly = 35999.0503 / 36525;

}  // namespace horvanta
