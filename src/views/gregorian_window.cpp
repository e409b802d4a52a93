#include "views/gregorian_window.h"

#include "calendars/calendar_text.h"
#include "calendars/civil_days.h"
#include "core/day_events.h"
#include "core/memo.h"
#include "core/moment.h"
#include "core/text.h"
#include "views/holiday_mark.h"

namespace horvanta {
namespace {

constexpr std::string_view gregorianInformation =
    "The Gregorian calendar has 12 months with day counts as follows:\n"
    "January=31, February=28, March=31, April=30, May=31, June=30,\n"
    "July=31, August=31, September=30, October=31, November=30,\n"
    "December=31, for a total of 365 days per common year.\n"
    "The Gregorian Reform was promulgated in October 1582, but its\n"
    "proleptic epoch was 2 days after the Julian calendar epoch.\n"
    "Leap Rule (400-year cycle):\n"
    "February has 29 days if "
    "year is divisible by 4, except for century years, which are leap only if divisible by 400.\n"
    "The calendar mean year = 365 + 97/400 = 365.2425 days\n"
    "= exactly 365 days 5h 49m 12s.\n"
    "The 7 weekdays are:\n"
    "Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday.\n"
    "The first year of each 400-year cycle always starts on a Monday.\n"
    "The Easter computus is lunisolar, having 70499183 lunar months in\n"
    "5700000 years, yielding a mean month of about 29d 12h 44m 2.7s.";

constexpr std::string_view isoInformation =
    "The International Organization for Standardization (ISO) calendar has no\n"
    "months.  The date is simply the year number, week number within the\n"
    "year, and the weekday (shown here as Monday=1 to Sunday=7).\n"
    "The ISO year starts on the Monday that is closest to Gregorian New Year\n"
    "Day.  Common ISO years have 52 weeks. The ISO leap year has 53 weeks,\n"
    "when the corresponding Gregorian year starts or ends on Thursday\n"
    "(dominical letters D, DC, or ED).\n"
    "The ISO calendar has 71 leap years per 400-year cycle, at intervals of\n"
    "6 or 5 years (7 years once per cycle).\n"
    "The ISO calendar begins on the Monday between Gregorian\n"
    "December 29 and January 4, and ends with the Sunday between\n"
    "December 28 and January 3.\n"
    "The ISO calendar is widely used in Europe, especially Scandinavia, and\n"
    "worldwide by banks, financiers, manufacturers, and shippers.\n"
    "The standard is ISO 8601, available from www.iso.org.";

}  // namespace

GregorianWindow::GregorianWindow(HorvantaMDI& frame) : frame_(frame) {
    for (Label* label : {&GregorianDate, &TheISOdate, &Dominical}) frame_.CopyOnClick(*label);
    frame_.CopyOnClick(DayNumInGregYear,
                       [this] { frame_.SetClipboardText(std::string(FromCharacter(DayNumInGregYear.text, 15))); });
    frame_.CopyOnClick(isoOrdinalDay,
                       [this] { frame_.SetClipboardText(std::string(FromCharacter(isoOrdinalDay.text, 9))); });
    frame_.CopyOnClick(GregCycleInfo, [this] { GregCycleInfo_Click(); });
    InfoGreg.Click = [this] { InfoGreg_Click(); };
    isoInfo.Click = [this] { isoInfo_Click(); };
}

WindowRow GregorianWindow::Row() {
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.GregCal,
            .open = OpenAt::FirstStart,
            .colors = &colors,
            .calendars = {{1, &GregorianCalendar, &GregorianDate, &frame_.GregCal},
                          {2, &ISOCalendar, &TheISOdate, &frame_.GregCal}}};
}

void GregorianWindow::Update() {
    ShowGregorianDate(DateOn<FixedToGregorianDate>(DisplayedMoment));
    const ISODate& isoDate = DateOn<FixedToISODate>(DisplayedMoment);
    const std::string isoText = ISODateString(isoDate);
    TheISOdate.text = isoText + " ";
    isoOrdinalDay.text = "ISO day " + PartAndRest(isoDate.ordinalDay, ISOYearLength(isoDate.isLeap));
    day_events::AddAll("ISO", isoText, EventsOf(isoDate), TheISOdate);
}

void GregorianWindow::ShowGregorianDate(const horvanta::GregorianDate& date) {
    const std::vector<DayText> day = CivilDaysOf(date.fixed);
    const std::string dateText = GregorianDateString(date);
    GregorianDate.text = dateText + " ";
    const DayText holiday = HolidayOf(day);
    GregorianDate.tooltip = "Gregorian date" + WrapIfNotEmpty(holiday.text, " (", ")", "");
    colors.MarkDate(MarkOf(holiday.kind));
    day_events::AddAll(form.name, dateText, TextsOf(day), GregorianDate);
    const std::int32_t length = GregorianYearLength(isGregorianLeapYear(date.year));
    DayNumInGregYear.text = "Gregorian day " + PartAndRest(date.yearDay, length);
    Dominical.text = GregorianDominicalLetters(date.year);
    GregCycleInfo.text = YearOfCycle(date.year, 400, "cycle");
}

void GregorianWindow::InfoGreg_Click() {
    frame_.AskCopyToClipboard(std::string(gregorianInformation), "The Gregorian Calendar");
}

void GregorianWindow::isoInfo_Click() { frame_.AskCopyToClipboard(std::string(isoInformation), "The ISO Calendar"); }

void GregorianWindow::GregCycleInfo_Click() {
    const std::int32_t year = DateOn<FixedToGregorianDate>(DisplayedMoment).year;
    frame_.SetClipboardText("Gregorian year " + std::to_string(year) + " (" +
                            (isGregorianLeapYear(year) ? "" : "non-") +
                            "leap) = " + ReplaceAll(GregCycleInfo.text, " cycle", " 400-year cycle"));
}

}  // namespace horvanta
