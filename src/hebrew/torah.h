#pragma once

#include "core/locale.h"
#include "hebrew/holidays.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The portions of the Torah that are read through the year, from the Sabbath after Simchat Torah on. Festivals have
/// readings of their own and put the portion of the week off; some portions are read in pairs so that the year comes
/// out, in the diaspora otherwise than in Israel.
namespace horvanta {

/// "Bereishit" for 1 to "V'zot Habrachah" for 54; empty for any other number.
std::string_view TorahPortionName(std::int32_t number);

/// What is read on a day: the portion, a pair of them joined with "-", or the name of a day with a reading of its own,
/// which with `keepHolidayText` is told and otherwise left empty. On days of work it is the portion of the coming
/// Sabbath, of which a part is read. Empty before year 3623.
std::string TorahPortion(const HebrewDay& day, bool keepHolidayText, const LocaleRecord& place = Locale);

/// What is told of a day: what it is and reads, and what begins in its evening.
std::vector<std::string> EventsOf(const HebrewDay& today, const HebrewDay& tomorrow,
                                  const LocaleRecord& place = Locale);

}  // namespace horvanta
