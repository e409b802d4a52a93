#include "calendars/gregorian_window.h"

#include "calendars/calendar_text.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "core/text.h"

#include <algorithm>
#include <functional>

namespace horvanta {
namespace {

constexpr int isoShade = 48;
constexpr ColorPair defaultColors{Color::FromNumber(12642289), Color::FromNumber(0)};

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

std::int16_t BlockOf(const ISODate& date) { return static_cast<std::int16_t>(std::min(13, (date.week + 3) / 4)); }

}  // namespace

GregorianWindow::GregorianWindow(HorvantaMDI& frame) : frame_(frame) {
    for (Label* label : {&GregorianDate, &GregCycleInfo, &TheISOdate}) label->colors = defaultColors;
    SetColor(defaultColors.background, true);
    SetColor(defaultColors.foreground, false);

    for (Label* label : {&GregorianDate, &TheISOdate, &Dominical}) frame_.CopyOnClick(*label);
    DayNumInGregYear.Click = [this] { frame_.SetClipboardText(std::string(FromCharacter(DayNumInGregYear.text, 15))); };
    isoOrdinalDay.Click = [this] { frame_.SetClipboardText(std::string(FromCharacter(isoOrdinalDay.text, 9))); };
    GregCycleInfo.Click = [this] { GregCycleInfo_Click(); };
    GregorianDate.DblClick = [this] { PickBackgroundColor(); };
    GregorianDate.RightClick = [this] { PickForegroundColor(); };
    InfoGreg.Click = [this] { InfoGreg_Click(); };
    isoInfo.Click = [this] { isoInfo_Click(); };
    form.PickColor = [this](bool isBackground) {
        frame_.PickColor(GregorianDate, isBackground, std::bind_front(&GregorianWindow::SetColor, this));
    };
    form.KeyDown = [this](int code, int shift) { return frame_.Form_KeyDown(code, shift); };
}

void GregorianWindow::Update() {
    if (BusyCount > 0) return;
    ShowGregorianDate(DisplayedGregorianDate());
    const ISODate& isoDate = DisplayedISODate();
    const std::string isoText = ISODateString(isoDate);
    TheISOdate.text = isoText + " ";
    isoOrdinalDay.text = "ISO day " + PartAndRest(isoDate.ordinalDay, ISOYearLength(isoDate.isLeap));
    PostEvents(isoDate, isoText);
}

void GregorianWindow::ShowGregorianDate(const horvanta::GregorianDate& date) {
    GregorianDate.text = GregorianDateString(date) + " ";
    const std::int32_t length = GregorianYearLength(isGregorianLeapYear(date.year));
    DayNumInGregYear.text = "Gregorian day " + PartAndRest(date.yearDay, length);
    Dominical.text = GregorianDominicalLetters(date.year);
    GregCycleInfo.text = YearOfCycle(date.year, 400, "cycle");
}

void GregorianWindow::PostEvents(const ISODate& date, const std::string& dateText) {
    std::string holidays;
    if (date.ordinalDay == 1) {
        day_events::Add("ISO", dateText, holidays, "Begin ISO Year " + std::to_string(date.year), TheISOdate);
    }
    if (date.ordinalDay >= 365) day_events::Add("ISO", dateText, holidays, "ISO Standard Leap Week", TheISOdate);
}

FixedDay GregorianWindow::ToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return GregorianToFixed(year, month, day);
}

GridDate GregorianWindow::GetDate() {
    const horvanta::GregorianDate& date = DisplayedGregorianDate();
    return {date.year, static_cast<std::int16_t>(date.month), date.day, GregorianMonthLength(date.year, date.month),
            static_cast<std::int16_t>(DayOfWeek(date.fixed - date.day + 1))};
}

void GregorianWindow::SetMonthNames(ChoiceList& list, std::int32_t) {
    list.items.insert(list.items.end(), std::begin(GregorianMonthNames), std::end(GregorianMonthNames));
    list.selected = DisplayedGregorianDate().month - 1;
}

void GregorianWindow::SetDayNames(DayNames& longNames, DayNames& shortNames) {
    for (std::size_t i = 0; i < 7; ++i) {
        longNames[i] = WeekdayNames[i];
        shortNames[i] = ShortWeekdayNames[i];
    }
}

FixedDay GregorianWindow::ToFixedAlt(std::int32_t year, std::int32_t month, std::int32_t day) {
    const double week = 4.0 * month - 4 + Ceiling(day / 7.0);
    return ISOToFixed(year, WholeNumber(week), WholeNumber(AdjustedModulo(day, 7)));
}

GridDate GregorianWindow::GetDateAlt() {
    const ISODate& date = DisplayedISODate();
    const std::int16_t block = BlockOf(date);
    const bool withLeapWeek = date.week > 48 && date.isLeap;
    return {date.year, block, static_cast<std::int16_t>(date.ordinalDay - 28 * block + 28),
            static_cast<std::int16_t>(withLeapWeek ? 35 : 28), 0};
}

void GregorianWindow::SetMonthNamesAlt(ChoiceList& list, std::int32_t) {
    for (int week = 1; week < 49; week += 4) {
        list.items.push_back("Week " + std::to_string(week) + "-" + std::to_string(week + 3));
    }
    list.items.emplace_back("Week 49-End");
    list.selected = BlockOf(DisplayedISODate()) - 1;
}

void GregorianWindow::SetDayNamesAlt(DayNames& longNames, DayNames& shortNames) {
    for (std::size_t i = 0; i < 7; ++i) {
        longNames[i] = WeekdayNames[i + 1];
        shortNames[i] = ShortWeekdayNames[i + 1];
    }
}

/// The week and its day, as "W13-4".
std::string GregorianWindow::CellTextAlt(const GridDate& shown, std::int32_t day) {
    return "W" + std::to_string((day - 1) / 7 + 4 * shown.month - 3) + "-" + std::to_string((day - 1) % 7 + 1);
}

void GregorianWindow::InfoGreg_Click() {
    frame_.AskCopyToClipboard(std::string(gregorianInformation), "The Gregorian Calendar");
}

void GregorianWindow::isoInfo_Click() { frame_.AskCopyToClipboard(std::string(isoInformation), "The ISO Calendar"); }

void GregorianWindow::GregCycleInfo_Click() {
    const std::int32_t year = DisplayedGregorianDate().year;
    frame_.SetClipboardText("Gregorian year " + std::to_string(year) + " (" +
                            (isGregorianLeapYear(year) ? "" : "non-") +
                            "leap) = " + ReplaceAll(GregCycleInfo.text, " cycle", " 400-year cycle"));
}

void GregorianWindow::PickBackgroundColor() { form.PickColor(true); }
void GregorianWindow::PickForegroundColor() { form.PickColor(false); }

void GregorianWindow::SetColor(Color color, bool isBackground) {
    GregorianDate.colors->Part(isBackground) = color;
    GregCycleInfo.colors->Part(isBackground) = color;
    TheISOdate.colors->Part(isBackground) = Shade(color, isoShade);
}

}  // namespace horvanta
