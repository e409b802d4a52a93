#pragma once

/// The series of the true new moon (Meeus, Astronomical Algorithms, chapter 49), in days.
namespace horvanta {

/// A sine of multiples of the mean anomalies of Sun and Moon, the Moon's argument of latitude and the longitude of its
/// node, with a power of the factor by which the Earth's orbit becomes rounder.
struct NewMoonTerm {
    double coefficient;
    int power;
    double m;
    double mPrime;
    double f;
    double omega = 0;
};

// clang-format off
inline constexpr NewMoonTerm newMoonTerms[] = {
    {-0.00017, 0, 0, 0, 0, 1},
    {-0.4072, 0, 0, 1, 0},
    {0.17241, 1, 1, 0, 0},
    {0.01608, 0, 0, 2, 0},
    {0.01039, 0, 0, 0, 2},
    {0.00739, 1, -1, 1, 0},
    {-0.00514, 1, 1, 1, 0},
    {0.00208, 2, 2, 0, 0},
    {-0.00111, 0, 0, 1, -2},
    {-0.00057, 0, 0, 1, 2},
    {0.00056, 1, 1, 2, 0},
    {-0.00042, 0, 0, 3, 0},
    {0.00042, 1, 1, 0, 2},
    {0.00038, 1, 1, 0, -2},
    {-0.00024, 1, -1, 2, 0},
    {-0.00007, 0, 2, 1, 0},
    {0.00004, 0, 0, 2, -2},
    {0.00004, 0, 3, 0, 0},
    {0.00003, 0, 1, 1, -2},
    {0.00003, 0, 0, 2, 2},
    {-0.00003, 0, 1, 1, 2},
    {0.00003, 0, -1, 1, 2},
    {-0.00002, 0, -1, 1, -2},
    {-0.00002, 0, 1, 3, 0},
    {0.00002, 0, 0, 4, 0},
};

/// What the planets add: a sine of an angle that is `addend` at the first lunation of 2000 and grows by `multiplier`
/// each lunation. The first has its own argument.
struct PlanetaryTerm {
    double addend;
    double multiplier;
    double coefficient;
};

inline constexpr PlanetaryTerm planetaryTerms[] = {
    {251.88, 0.016321, 0.000165},
    {251.83, 26.641886, 0.000164},
    {349.42, 36.412478, 0.000126},
    {84.66, 18.206239, 0.00011},
    {141.74, 53.303771, 0.000062},
    {207.14, 2.453732, 0.00006},
    {154.84, 7.30686, 0.000056},
    {34.52, 27.261239, 0.000047},
    {207.19, 0.121824, 0.000042},
    {291.34, 1.844379, 0.00004},
    {161.72, 24.198154, 0.000037},
    {239.56, 25.513099, 0.000035},
    {331.55, 3.592518, 0.000023},
};
// clang-format on

}  // namespace horvanta
