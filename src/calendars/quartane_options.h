#pragma once

#include <cstdint>
#include <string>

/// The choices of the Quartane calendar.
namespace horvanta::quartane {

struct Options {
    std::string LeapRuleKey = "52/293";  ///< The rule in force, by the first word of its entry in the list.
    std::int32_t LeapRuleIndex = 0;      ///< Its entry in the list, from 0.
    std::int32_t StartWeekday = 1;       ///< On which every year and quarter begins, 0 = Sunday.
    bool QuaSoupMix = false;             ///< The list offers all rules, and the rest of the calendar may be changed.
    bool EvenCycleFlag = false;          ///< The middle of an even cycle is a common and a leap year, in this order.

    // How the quarter is laid out.
    std::string QuarterStructure = "SLS";  ///< Where its long month stands: "LSS", "SLS" or "SSL".
    bool Qua454 = true;                    ///< Months are 4 or 5 weeks long, else 30 or 31 days.
    bool UseZov454 = false;                ///< The leap week stands alone behind December, with months of weeks
    bool UseZov010 = true;                 ///< and with months of days.
    bool operator==(const Options&) const = default;
};
inline Options options;

}  // namespace horvanta::quartane
