#pragma once

#include "core/numbering.h"

#include <cstdint>
#include <optional>
#include <string>

/// The frame of the Yerm calendar. Its months have 30 and 29 days by turns in yerms of 17 or 15 months; yerms are
/// numbered within an era, where every third has 15. The calendar has two forms: the fixed one repeats a cycle of 52
/// yerms, the progressive one has eras of varying length by a list, so that its mean month follows the Moon's.
namespace horvanta {

/// The form in use.
struct YermForm {
    std::string EraFilePath;     ///< Empty in the fixed cycle.
    std::string EraDescription;  ///< The first line of the list.
    double DayOffsetUnits = 0;   ///< How far the day is shifted, in units of 1/1296000 of a day.
    bool Progressive = false;    ///< A list is in use.
    Epoch EpochFixed{};          ///< The start of the first era or of cycle 0.
    double EpochLunation = 0;    ///< The month that begins there, counted from J2000.
};

/// An era, counted from 1, or a cycle, counted from 0.
struct YermEra {
    std::int32_t EraNumber = 0;
    FixedDay EraStart = 0;  ///< Its first day begins here, and here the first of the next one.
    FixedDay EraEnd = 0;
    double LunationStart = 0;  ///< The months that begin there, counted from J2000.
    double LunationEnd = 0;
    std::int32_t EraDays = 0;
    std::int32_t EraMonths = 0;
    std::int32_t EraYerms = 0;
    bool HasYermZero = false;  ///< It begins with a yerm 0 of 15 months.
    double YermsBefore = 0;    ///< Yerms from the first era or cycle 0 on.

    std::int32_t N29() const { return 30 * EraMonths - EraDays; }  ///< Its months of 29 days, and of 30.
    std::int32_t N30() const { return EraDays - 29 * EraMonths; }
    double MeanMonth() const { return static_cast<double>(EraDays) / EraMonths; }  ///< In days.
};

const YermForm& PresentYermForm();

/// Counts the changes of the form, for memos that hold what depends on it.
std::int64_t YermSerial();

/// Takes the eras from a list. False if there is none in the file: then the fixed cycle is in use.
bool OpenYermEraList(const std::string& path);

/// Goes back to the fixed cycle.
void RevertToFixedYermCycle();

/// By what an era is looked up: a moment, a month counted from J2000, a yerm counted on from the first era as 0, or
/// its own number.
enum class YermKey { Day, Lunation, Yerm, Number };

/// The era of a key. After the last one of a list that one repeats; nothing before the first. The fixed cycle has no
/// bounds.
std::optional<YermEra> YermEraLookup(double key, YermKey byWhat);

}  // namespace horvanta
