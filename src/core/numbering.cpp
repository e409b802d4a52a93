#include "core/numbering.h"

#include <algorithm>

namespace horvanta {

void SetFixedDayEpoch(Moment day, double value, const std::string& name) {
    FixedEpochValue = value;
    FixedEpochName = name;
    GregorianEpoch += 1 - Floor(day);
    WeekdayOffset = Modulo(GregorianEpoch - 1, 7);
    ++NumberingSerial;
}

std::int32_t CountKDaysInRange(int k, Moment a, Moment b) {
    const auto [first, last] = std::minmax(a, b);
    const double weeks = Floor((KDayOnOrBefore(k, last) - KDayOnOrAfter(k, first)) / 7);
    return WholeNumber(std::max(weeks + 1, 0.0));
}

}  // namespace horvanta
