#pragma once

#include "reports/report.h"

namespace horvanta {

/// How often each day of the Hebrew months falls on each weekday in a full cycle of the calendar.
Report ListPossibleWeekdayStats();

}  // namespace horvanta
