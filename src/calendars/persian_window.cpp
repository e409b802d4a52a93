#include "calendars/persian_window.h"

#include "calendars/calendar_text.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "core/text.h"

#include <algorithm>
#include <functional>

namespace horvanta {
namespace {

constexpr ColorPair defaultColors{Color::FromNumber(10220253), Color::FromNumber(0)};

constexpr std::string_view information =
    "There have been many historical variants of the Persian Calendar.\n"
    "As of Gregorian year 1925 AD, the modern solar astronomical Iranian\n"
    "Calendar has 6 months of 31 days, then 5 months of 30 days, and the\n"
    "12th month (Esfand) has 29 days plus a leap day.\n"
    "At the Official Meridian of Iran = 52.5°E, which is exactly 3.5 hours\n"
    "ahead of Universal Time, the astronomical northward equinox moment\n"
    "(solar ecliptic longitude = 0°) is compared to local apparent noon.\n"
    "If the equinox occurs before noon then that day starts the new year.\n"
    "Otherwise the following day starts the new year and, if the equinox\n"
    "lands after the 29th of Esfand, a leap day is appended to the old year.\n"
    "Typically there are 7 leap years at 4-year intervals followed by one\n"
    "5-year interval, subject to occasional astronomical variations.\n"
    "Persian weeks begin on Saturday = Shanbeh.\n"
    "The epoch was 19 March, 622 AD (Julian)\n"
    "[equinox fell after noon on March 18].";

struct YearlyEvent {
    int month;
    int day;
    std::string_view text;
};

constexpr YearlyEvent yearlyEvents[] = {
    {1, 1, "Norouz (new year)"},
    {1, 13, "Sizdah Bedar (nature day)"},
    {1, 19, "Farvardingân (memorial day)"},
    {4, 13, "Tiregân (pray for rain)"},
    {7, 10, "Mehregân (thanksgiving)"},
    {9, 30, "Yalda (winter solstice, longest night)"},
    {11, 10, "Sadeh (fire festival)"},
    {11, 29, "Sepandar Mazgân (ladies' day)"},
};

std::string FirstOfMonthText(const PersianDate& date) {
    if (date.day != 1 || date.month == 1) return "";
    return "First day of " + std::string(PersianMonthNames[static_cast<std::size_t>(date.month - 1)]);
}

std::string_view YearlyText(const PersianDate& date) {
    const auto* found = std::ranges::find_if(
        yearlyEvents, [&](const YearlyEvent& event) { return event.month == date.month && event.day == date.day; });
    return found == std::end(yearlyEvents) ? "" : found->text;
}

/// The day before the year's last Wednesday.
std::string_view EveOfLastWednesdayText(const PersianDate& date) {
    constexpr int tuesday = 3;    // of a week from Saturday
    constexpr int wednesday = 3;  // of a week from Sunday
    const bool isEve = date.month == 12 && date.weekday == tuesday &&
                       CountKDaysInRange(wednesday, date.fixed, date.nextNewYear - 1) == 1;
    return isEve ? "Eve of Charshanbe Suri" : "";
}

/// Only the first and the last day of a year can have the equinox.
std::string EquinoxText(const PersianDate& date) {
    if (date.fixed != date.newYear && date.fixed != date.nextNewYear - 1) return "";
    const Moment equinox = PersianEquinoxOn(date.fixed);
    if (isNever(equinox)) return "";
    return "Tahvil-e sâl (spring equinox) at " + FormatTime(equinox, 2) + " Iran Standard Time";
}

PersianDate DisplayedPersianDate() { return FixedToPersianDate(DisplayedMoment); }

}  // namespace

PersianWindow::PersianWindow(HorvantaMDI& frame) : frame_(frame) {
    ThePersianDate.colors = defaultColors;
    frame_.CopyOnClick(ThePersianDate);
    ThePersianDate.DblClick = [this] { PickBackgroundColor(); };
    ThePersianDate.RightClick = [this] { PickForegroundColor(); };
    LeapCheckbox.Shows(isLeap_);
    Info.Click = [this] { Info_Click(); };
    form.PickColor = [this](bool isBackground) {
        frame_.PickColor(ThePersianDate, isBackground, std::bind_front(&PersianWindow::SetColor, this));
    };
    form.KeyDown = [this](int code, int shift) { return frame_.Form_KeyDown(code, shift); };
}

void PersianWindow::Update() {
    if (BusyCount > 0) return;
    const PersianDate date = DisplayedPersianDate();
    const auto weekday = static_cast<std::size_t>(date.weekday);
    ThePersianDate.text = " " + std::string(PersianWeekdayNames[weekday]) + ", " + PersianDateString(date);
    isLeap_ = date.isLeap;
    PostEvents(date);
}

void PersianWindow::PostEvents(const PersianDate& date) const {
    std::string holidays;
    const auto post = [&, dateText = PersianDateString(date)](std::string_view text) {
        day_events::Add(form.name, dateText, holidays, text, ThePersianDate);
    };
    post(FirstOfMonthText(date));
    post(YearlyText(date));
    post(EveOfLastWednesdayText(date));
    post(EquinoxText(date));
}

FixedDay PersianWindow::ToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return PersianToFixed(year, month, day);
}

GridDate PersianWindow::GetDate() {
    const PersianDate date = DisplayedPersianDate();
    return {date.year, date.month, date.day, date.monthLength,
            static_cast<std::int16_t>(PersianWeekdayNum(date.fixed - date.day + 1))};
}

void PersianWindow::SetMonthNames(ChoiceList& list, std::int32_t) {
    list.items.insert(list.items.end(), std::begin(PersianMonthNames), std::end(PersianMonthNames));
    list.selected = DisplayedPersianDate().month - 1;
}

void PersianWindow::SetDayNames(DayNames& longNames, DayNames& shortNames) {
    std::ranges::copy(PersianWeekdayNames, longNames.begin());
    std::ranges::copy(ShortPersianWeekdayNames, shortNames.begin());
}

void PersianWindow::Info_Click() { frame_.AskCopyToClipboard(std::string(information), "The Persian Calendar"); }

void PersianWindow::PickBackgroundColor() { form.PickColor(true); }
void PersianWindow::PickForegroundColor() { form.PickColor(false); }

void PersianWindow::SetColor(Color color, bool isBackground) { ThePersianDate.colors->Part(isBackground) = color; }

}  // namespace horvanta
