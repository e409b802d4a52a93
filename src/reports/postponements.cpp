#include "reports/postponements.h"

#include "calendars/gregorian.h"
#include "core/moment.h"
#include "core/text.h"
#include "core/web_pages.h"
#include "hebrew/hebrew_arithmetic.h"
#include "hebrew/year_types.h"

#include <iterator>

namespace horvanta {
namespace {

constexpr std::int32_t tishrei = 7;

constexpr std::string_view rules[] = {
    "<b>R1</b> (<i>Molad Zakein</i>): If the <i>molad</i> of <i>Tishrei</i> falls at or after noon then postpone "
    "<i>Rosh Hashanah</i> to the next day.",
    "<b>R2</b> (<i>Lo ADU Rosh</i>): If the <i>molad</i> of <i>Tishrei</i> falls on <i>Yom</i> 1, 4, or 6 then "
    "postpone <i>Rosh Hashanah</i> to the next day.",
    "<b>R3</b>: If the <i>molad</i> of <i>Tishrei</i> of a non-leap year of 12 months falls on <i>Yom</i> 3, and the "
    "next <i>molad</i> of <i>Tishrei</i> plus 1/4 day will fall on <i>Yom</i> 1, then postpone this <i>Rosh "
    "Hashanah</i> to <i>Yom</i> 5; otherwise this year would be too long.",
    "<b>R4</b>: If the <i>molad</i> of <i>Tishrei</i> after a leap year of 13 months falls on <i>Yom</i> 2, and the "
    "previous <i>molad</i> of <i>Tishrei</i> fell at or after noon on <i>Yom</i> 3, then postpone this <i>Rosh "
    "Hashanah</i> to <i>Yom</i> 3; otherwise the previous year would have been too short.",
};

constexpr ReportColumn columns[] = {
    {ColumnKind::Number, "Year", "Hebrew calendar year number"},
    {ColumnKind::Number, "n/19", "Year number within the 19-year metonic cycle", "n of 19"},
    {ColumnKind::Number, "Lunation", "Months elapsed since the epoch of the Hebrew calendar"},
    {ColumnKind::Number, "Molad", "Molad of Tishrei (ordinal day number)"},
    {ColumnKind::Number, "Yom", "Hebrew weekday of the molad: 1=Yom Rishon, 7=Shabbat"},
    {ColumnKind::Number, "Hours", "Hours of the molad from 6 pm"},
    {ColumnKind::Number, "Parts", "Parts of the hour, of 1080"},
    {ColumnKind::Number, "Delay", "Number of days postponed"},
    {ColumnKind::Number, "Days", "Length of Hebrew calendar year, in days"},
    {ColumnKind::Text, "Char", "Hebrew year character -- see above", "Character"},
    {ColumnKind::Text, "Gregorian", "Gregorian date during the daytime on the first day of Rosh Hashanah"},
    {ColumnKind::Mark, "R1", "First postponement rule (molad zakein)"},
    {ColumnKind::Mark, "R2", "Second postponement rule (avoid weekdays 1, 4, 6)"},
    {ColumnKind::Mark, "R3", "Third postponement rule"},
    {ColumnKind::Mark, "R4", "Fourth postponement rule"},
    {ColumnKind::Prose, "Rosh Hashanah ...", "Reason(s) for postponement(s)"},
};

std::vector<ReportNote> Notes() {
    std::vector<ReportNote> notes;
    if (!PostponementRulesPage.address.empty()) {
        notes.push_back({"p", "The rules are explained on <a href=\"" + std::string(PostponementRulesPage.address) +
                                  "\">a page of their own</a>."});
    }
    notes.push_back({"h2", "Postponement Rules:"});
    for (const std::string_view rule : rules) notes.push_back({"li", std::string(rule)});
    notes.push_back({"h2", "Hebrew Calendar Year Character Codes:"});
    notes.push_back({"p", ReplaceAll(ExplainCharacter(), "\n", "<br>")});
    notes.push_back({"p", "Choose landscape orientation for best page layout when printing this report."});
    notes.push_back({"p", "Molad ordinal day #1 = " + FixedToGregorianString(HebrewEpoch) + " (Gregorian)"});
    return notes;
}

/// The molad of a lunation in whole numbers, where days begin at 6 pm and the epoch's own day is the first.
struct MoladInParts {
    explicit MoladInParts(double n) {
        constexpr std::int64_t partsOfDay = 25920;
        const double sinceEpoch = TraditionalMolad(n) - HebrewEpoch;
        const auto part = WholeNumber<std::int64_t>(Round(Modulo(sinceEpoch, 1) * partsOfDay));
        day = WholeNumber<std::int64_t>(Floor(sinceEpoch)) + 1 + part / partsOfDay;
        hours = part % partsOfDay / 1080;
        parts = part % 1080;
    }

    std::int64_t day;
    std::int64_t hours;
    std::int64_t parts;
};

ReportRow RowOf(std::int32_t year) {
    const double lunation = ElapsedMonths19(year, tishrei);
    const MoladInParts molad(lunation);
    const Moment moladDay = HebrewEpoch + static_cast<double>(molad.day - 1);
    const FixedDay newYear = HebrewNewYear(year);
    const std::string reason = PostponeReason(year, " ", true, false);
    const std::size_t colon = reason.find(':');
    const auto mark = [&](char rule) { return std::string(reason.find(rule) < colon ? "X" : ""); };
    return Cells(std::to_string(year), GeneralText(AdjustedModulo(year, 19)), GeneralText(lunation),
                 std::to_string(molad.day), std::to_string(DayOfWeek(moladDay) + 1), std::to_string(molad.hours),
                 std::to_string(molad.parts), GeneralText(newYear - moladDay), std::to_string(DaysInHebrewYear(year)),
                 HebrewYearCharacter(year), FixedToGregorianString(newYear), mark('1'), mark('2'), mark('3'), mark('4'),
                 reason.substr(colon + 1));
}

}  // namespace

Report ReportPostponements(std::int32_t years) {
    const std::int32_t first = FixedToHebrewYear(DisplayedMoment);
    const std::string from = std::to_string(first);
    const std::string to = std::to_string(first + years - 1);
    const std::string count = " (" + std::to_string(years) + " years)";
    return {.description = "Rosh Hashanah Postponements",
            .fileName = "Postponements " + from + "-" + to + count,
            .title = "Rosh Hashanah Postponements",
            .heading = "<i>Rosh Hashanah</i> " + from + "&ndash;" + to + count,
            .notes = Notes(),
            .columns = {std::begin(columns), std::end(columns)},
            .isWide = true,
            .length = years,
            .row = [first](std::int32_t index) { return RowOf(first + index); }};
}

}  // namespace horvanta
