#pragma once

#include "core/numerics.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The data files of precomputed moments that a user may put beside the program or into the folder of the user's data:
/// seasons, quarters of the Moon, and conjunctions by the months of the Hebrew calendar. docs/ephemeris-files.md tells
/// their layout. Each is read when it is first asked for; that it is absent is remembered, and no error.
namespace horvanta::ephemeris {

/// Where the files are looked for, in this order. What was read or missed before is forgotten.
void SetFolders(std::vector<std::filesystem::path> folders);

/// The universal moment at which the Sun reaches a multiple of 90°, or the Moon that phase in a lunation of J2000,
/// where there is a file that holds the year or the lunation. 360° is 0°.
std::optional<Moment> ListedSeason(std::int64_t year, double degrees);
std::optional<Moment> ListedQuarter(std::int64_t lunation, double degrees);

/// The days from the beginning of the day of the molad to the conjunction, in Terrestrial Time, of a month counted from
/// the first molad.
std::optional<double> ListedConjunction(std::int64_t month);

/// Why a year or a lunation can't be told from a file: what a box says. Nothing if it can, or there is no file.
struct Complaint {
    std::string title;
    std::string text;
};
std::optional<Complaint> ComplaintOfYear(std::int64_t year);
std::optional<Complaint> ComplaintOfLunation(std::int64_t lunation);

}  // namespace horvanta::ephemeris
