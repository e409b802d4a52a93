#pragma once

#include "core/locale.h"
#include "reports/report.h"

namespace horvanta {

/// The nights of the Omer of the displayed Hebrew year, and last that of Shavuot, as they are kept at a place.
Report ReportOmerCount(const LocaleRecord& place = Locale);

}  // namespace horvanta
