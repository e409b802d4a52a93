#include "hebrew/molad.h"

#include "core/numerics.h"

namespace horvanta {

double MoladAdjustment(double n, bool rounded) {
    constexpr double leastAdjustment = 0.018055555555555554;  // 26 minutes
    constexpr double partsPerDay = 25920;
    const double lunations = n - 50834;
    const double adjustment = lunations * lunations / 6328338120 + leastAdjustment;
    return rounded ? Floor(adjustment * partsPerDay + 0.5) / partsPerDay : adjustment;
}

}  // namespace horvanta
