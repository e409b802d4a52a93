#pragma once

#include <string_view>
#include <vector>

namespace horvanta {

/// What is claimed of two benchmarks: so many runs of `yardstick` cost no less than one of `measured`.
struct Ratio {
    std::string_view measured;
    std::string_view yardstick;
    double atMost;  ///< Of the measured time over the yardstick's.
};

/// The claims of all bench files; each file adds its own when it is loaded.
inline std::vector<Ratio>& Ratios() {
    static std::vector<Ratio> ratios;
    return ratios;
}

struct RatioClaim {
    explicit RatioClaim(const Ratio& ratio) { Ratios().push_back(ratio); }
};

}  // namespace horvanta
