#pragma once

#include "core/locale.h"
#include "core/numerics.h"

#include <string>
#include <vector>

/// What the Moon does on the day of a universal moment, for the day's events.
namespace horvanta {

struct LunarEvent {
    std::string time;  ///< On the clocks of the place, with what they are ahead of Universal Time.
    std::string text;
};

/// Its rise and set, the first and the last visible crescent, quarters and mean apsides. Quarters are those of the
/// fixed day; what is seen from the place belongs to the day by its clocks.
std::vector<LunarEvent> LunarEventsOn(Moment universal, const LocaleRecord& place = Locale);

/// "First Quarter Moon, Brown Lunation Number 1250.25", the phase that is a multiple of 90 degrees at a moment, with
/// the number of its lunation by the way that the user has chosen. The four of a lunation have one whole number.
std::string QuarterText(Moment universal, double phase);

/// A phase as the user wants it, "+12.3°".
std::string PhaseText(double phase);

}  // namespace horvanta
