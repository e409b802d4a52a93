#pragma once

#include "astro/lunar_phases.h"

#include <cstddef>
#include <cstdint>

/// How lunations and phases are told.
namespace horvanta {

namespace lunar {

struct Options {
    std::int32_t LunationOption = 1;  ///< The way to number lunations, by its place in the menu, from 1.
    bool SignedPhase = false;         ///< Phases run from -180° to 180°, else from 0° to 360°.

    bool operator==(const Options&) const = default;
};
inline Options options;

}  // namespace lunar

/// The way to number lunations that the user has chosen.
inline const LunationConvention& ChosenLunationConvention() {
    return LunationConventions[static_cast<std::size_t>(lunar::options.LunationOption - 1)];
}

}  // namespace horvanta
