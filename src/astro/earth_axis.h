#pragma once

/// How the Earth's axis leans and nods, by Julian centuries of Terrestrial Time from J2000.
namespace horvanta {

/// Mean obliquity of the ecliptic in degrees (Laskar's polynomial cut to the third power; Meeus, Astronomical
/// Algorithms, 22.2).
double ObliquityAt(double centuries);

/// Nutation in longitude in degrees: the 63 terms of the IAU 1980 theory (Meeus, Astronomical Algorithms, table 22.A).
double NutationAt(double centuries);

}  // namespace horvanta
