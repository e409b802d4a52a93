#pragma once

#include "calendars/calendar_contract.h"

/// The World calendar and the calendar of 13 months, of which only the cells of their months are known: days outside
/// the week show no number. In the World calendar they are day 32, the 31st of June and the 31st of December; in that
/// of 13 months day 30, and the 29th of months 6 and 13.
namespace horvanta {

std::string WorldCellText(const GridDate& shown, std::int32_t day);
std::string ThirteenMonthCellText(const GridDate& shown, std::int32_t day);

}  // namespace horvanta
