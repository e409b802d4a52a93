#include "app/all_options.h"

#include "app/options.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "calendars/easter.h"
#include "calendars/julian.h"
#include "calendars/oriental.h"
#include "calendars/quartane_options.h"
#include "clock/zone_time.h"
#include "core/moment.h"
#include "core/text.h"
#include "hebrew/hebrew_options.h"
#include "locale/locale_text.h"
#include "lunar/lunar_options.h"
#include "lunar/yerm_eras.h"
#include "views/date_box.h"
#include "views/monthly_window.h"
#include "views/time_fields.h"

namespace horvanta {

void ResetAllOptions() {
    SetFixedDayEpoch(GregorianEpoch, 1, "rata die");  // January 1 of year 1 is day 1
    SetDeltaTDisabled(false);
    date_box::options = {};
    day_numbering::options = {};
    easter::options = {};
    hebrew::options = {};
    horizon::options = {};
    julian::options = {};
    lunar::options = {};
    RevertToFixedYermCycle();
    monthly::options = {};
    oriental::options = {};
    quartane::options = {};
    stepping::options = {};
    time_fields::options = {};
    time_text::options = {};
    web_map::options = {};
    zone_time::options = {};
}

}  // namespace horvanta
