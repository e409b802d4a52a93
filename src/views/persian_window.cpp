#include "views/persian_window.h"

#include "astro/timescales.h"
#include "calendars/calendar_text.h"
#include "calendars/persian.h"
#include "core/day_events.h"
#include "core/memo.h"
#include "core/moment.h"

namespace horvanta {
namespace {

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

}  // namespace

PersianWindow::PersianWindow(HorvantaMDI& frame) : frame_(frame) {
    frame_.CopyOnClick(ThePersianDate);
    Info.Click = [this] { Info_Click(); };
}

WindowRow PersianWindow::Row() {
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.PersianCal,
            .colors = &colors,
            .calendars = {{5, &PersianCalendar, &ThePersianDate, &frame_.PersianCal}}};
}

void PersianWindow::Update() {
    const PersianDate& date = DateOn<FixedToPersianDate>(DisplayedMoment, DeltaTSerial);
    const std::string dateText = PersianDateString(date);
    const auto weekday = static_cast<std::size_t>(date.weekday);
    ThePersianDate.text = " " + std::string(PersianWeekdayNames[weekday]) + ", " + dateText;
    LeapCheckbox.text = YearKind(date.isLeap);
    day_events::AddAll(form.name, dateText, EventsOf(date), ThePersianDate);
}

void PersianWindow::Info_Click() { frame_.AskCopyToClipboard(std::string(information), "The Persian Calendar"); }

}  // namespace horvanta
