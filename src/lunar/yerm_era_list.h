#pragma once

#include "core/numbering.h"

#include <optional>
#include <string>
#include <vector>

/// Lists of eras of the Yerm calendar: text files with one value a line, as reports on eras write them.
///
/// | line | value                                                                        |
/// |------|------------------------------------------------------------------------------|
/// | 1    | a free description                                                           |
/// | 2    | how far the day is shifted, in units of 1/1296000 of a day                   |
/// | 3    | the fixed day of January 1 of year 1 in the numbering of the days that follow |
/// | 4    | the lunation, counted from J2000, that the first era begins with             |
/// | 5 on | the fixed days on which the eras begin, and last the one that ends them      |
namespace horvanta {

struct YermEraList {
    std::string description;
    double dayOffsetUnits = 0;
    Epoch firstDay{};
    double firstLunation = 0;
    std::vector<double> lengths{};  ///< Of the eras, in whole days.
};

/// The list in a file, its spans of several equal eras taken apart; nothing if the file can't be read as one.
std::optional<YermEraList> ReadYermEraList(const std::string& path);

}  // namespace horvanta
