#include "core/numbering.h"

#include <algorithm>

namespace horvanta {
namespace {

struct DerivedEpoch {
    double* epoch;
    double fromGregorianEpoch;
};

constexpr DerivedEpoch derivedEpochs[] = {
    {&JulianEpoch, -2},       {&MinFixedDay, -2533804}, {&MaxFixedDay, -2533804 + 6916348},
    {&HebrewEpoch, -1373428}, {&J2000, 730119.5},       {&Epoch2001, 730485},
    {&UnixEpoch, 719162},     {&JDEpoch, -1721425.5},   {&MJDEpoch, 678575},
    {&TJDEpoch, 718575},
};

}  // namespace

void SetFixedDayEpoch(Moment day, double value, const std::string& name) {
    FixedEpochValue = value;
    FixedEpochName = name;
    GregorianEpoch += 1 - Floor(day);
    WeekdayOffset = Modulo(GregorianEpoch - 1, 7);
    for (const auto& [epoch, offset] : derivedEpochs) *epoch = GregorianEpoch + offset;
    ++NumberingSerial;
}

std::int32_t CountKDaysInRange(int k, Moment a, Moment b) {
    const auto [first, last] = std::minmax(a, b);
    const double weeks = Floor((KDayOnOrBefore(k, last) - KDayOnOrAfter(k, first)) / 7);
    return WholeNumber(weeks + 1);
}

}  // namespace horvanta
