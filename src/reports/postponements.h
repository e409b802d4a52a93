#pragma once

#include "reports/report.h"

namespace horvanta {

/// Where the molad of Tishrei fell in so many Hebrew years from the displayed one on, and why Rosh Hashanah moved away
/// from it.
Report ReportPostponements(std::int32_t years);

}  // namespace horvanta
