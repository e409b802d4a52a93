#include "reports/omer_count.h"

#include "calendars/gregorian.h"
#include "core/moment.h"
#include "hebrew/holidays.h"
#include "hebrew/zmanim.h"

#include <iterator>

namespace horvanta {
namespace {

constexpr ReportColumn columns[] = {
    {ColumnKind::Text, "Evening", "Gregorian date of the evening on which the Hebrew date begins"},
    {ColumnKind::Text, "Hebrew Date", "Hebrew date from that evening on"},
    {ColumnKind::Text, "Omer", "What is counted that night"},
    {ColumnKind::Text, "Special Day", "Shabbat or festival from that evening on"},
};

/// Of the evening with which a day begins.
ReportRow RowOf(FixedDay evening, const LocaleRecord& place) {
    const HebrewDay day = HebrewDayOf(evening + 1, place);
    return Cells(FixedToGregorianString(evening) + " night", HebrewDateString(day.date, true, false, true),
                 Omer(day.date.Fixed), ShabbatOrFestivalName(day));
}

}  // namespace

Report ReportOmerCount(const LocaleRecord& place) {
    constexpr std::int32_t nights = 50;
    const std::int32_t year = FixedToHebrewYear(DisplayedMoment);
    const FixedDay first = HebrewToFixed(year, 1, 15);
    const std::string name = std::to_string(year);
    const std::string heading =
        "Omer Count for Hebrew Year " + name + (place.Diaspora ? " (Outside Israel)" : " (Inside Israel)");
    return {.description = "Omer Count",
            .fileName = "Omer Count " + name + (place.Diaspora ? " Diaspora" : " Israel"),
            .title = heading,
            .heading = heading,
            .notes = {},
            .columns = {std::begin(columns), std::end(columns)},
            .isWide = false,
            .length = nights,
            .row = [first, place](std::int32_t index) { return RowOf(first + index, place); }};
}

}  // namespace horvanta
