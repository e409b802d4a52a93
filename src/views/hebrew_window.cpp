#include "views/hebrew_window.h"

#include "calendars/calendar_text.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/memo.h"
#include "core/moment.h"
#include "core/text.h"
#include "hebrew/molad.h"
#include "hebrew/torah.h"
#include "hebrew/year_types.h"
#include "views/panel_bars.h"
#include "views/time_fields.h"

#include <algorithm>
#include <utility>

namespace horvanta {
namespace {

constexpr std::string_view information =
    "Hebrew dates begin at sunset.\n"
    "Weekdays are numbered from 1 to 7\n"
    "(Sunday through Saturday, respectively).\n"
    "The months and their lengths are:  Nisan=30, Iyar=29, Sivan=30,\n"
    "Tammuz=29, Av=30, Elul=29, Tishrei=30, Cheshvan=29, Kislev=30,\n"
    "Tevet=29, Shevat=30, Adar=29.\n"
    "Cheshvan has 30 days if the year has 355 or 385 days.\n"
    "Kislev has only 29 days if the year has 353 or 383 days.\n"
    "In leap years Adar Rishon=30 days is inserted after Shevat\n"
    "and Adar becomes Adar Sheini, retaining its 29 days.\n"
    "Years 3, 6, 8, 11, 14, 17 and 19 of each 19-year cycle are leap.\n"
    "Year  y  is leap only if the remainder of (7 y + 1) / 19 is < 7.\n"
    "The molad is calculated by adding 29 days 12 hours 44 + 1/18 minutes\n"
    "for each elapsed month.  Only the molad of Tishrei affects the calendar.\n"
    "Calendar mean year = 235 months x molad interval / 19 years\n"
    "= 365 + 24311/98496 days = exactly 365 days 5 hours 55 minutes\n"
    "and 25 + 25/57 seconds, or about 365.2468222 days.";

constexpr std::int32_t adarRishon = 12;
constexpr std::int32_t adarSheini = 13;

std::int32_t PlaceInCycle(std::int32_t year) { return WholeNumber(AdjustedModulo(year, 19)); }

std::string MonthNumber(const HebrewDateRecord& date) {
    return GeneralText(ElapsedMonths19(date.Year, date.Month) + 1);
}

/// On which weekdays the day can fall, in years like this one and in all.
std::string WeekdaysText(const HebrewDateRecord& date) {
    const std::string day = OrdinalString(date.Day);
    const std::string head = "Possible Hebrew weekdays for the " + day + " of ";
    const std::string month{HebrewMonthName(date.Year, date.Month)};
    if (date.Month < adarRishon) return head + month + ":\n" + PossibleWeekdays(date.Month, date.Day, -1) + ".\n";

    const bool leap = isHebrewLeapYear19(date.Year);
    const bool rishon = leap && date.Month == adarRishon;
    return head + month + ":\n" + PossibleWeekdays(date.Month, date.Day, leap ? 1 : 0) + ".\n...for the " + day +
           " of Adar or Adar " + (rishon ? "Rishon" : "Sheini") + ":\n" +
           (rishon ? PossibleWeekdays(adarRishon, date.Day, -3) : PossibleWeekdays(adarSheini, date.Day, -2)) + ".\n";
}

std::string CharacterText(std::int32_t year) {
    const std::string character = HebrewYearCharacter(year);
    const auto weekday = [](char digit) {
        return std::string(1, digit) + " (" + std::string(WeekdayName(digit - '1').substr(4)) + ")";
    };
    return "Hebrew year character = " + character + ", which means:\nRosh Hashanah on Yom " + weekday(character[0]) +
           ";\nPassover on Yom " + weekday(character[2]) + ".\n";
}

std::string CycleText(const HebrewDateRecord& date) {
    const double n = ElapsedMonths19(date.Year, date.Month);
    return WeekdaysText(date) + PostponeReason(date.Year, "\n", false, true) + "\n" +
           HebrewYearType(date.Year, false, "\n", "", "") + "\n" + OrdinalString(date.YearDay) + " day of " +
           std::to_string(DaysInHebrewYear(date.Year)) + "-day year, in " + OrdinalString(PlaceInCycle(date.Year)) +
           " year of 19-year cycle.\n" + CharacterText(date.Year) + "Total of " +
           GeneralText(date.Fixed - HebrewEpoch) + " days since epoch, month " + MonthNumber(date) +
           ".\nProgressive molad adjustment = " + DurationString(MoladAdjustment(n, true)) + ".";
}

/// How a click tells the mark of a time.
constexpr std::pair<std::string_view, std::string_view> markWords[] = {
    {">", " after "}, {"<", " before "}, {"~", " around "}};

std::string MarkInWords(std::string_view mark) {
    const auto* found = std::ranges::find(markWords, mark, &std::pair<std::string_view, std::string_view>::first);
    return found == std::end(markWords) ? " = " : std::string(found->second);
}

constexpr std::string_view noCandles = "---";

}  // namespace

HebrewWindow::HebrewWindow(HorvantaMDI& frame) : frame_(frame) {
    frame_.CopyOnClick(HebrewDate);
    HebrewCycleInfo.Click = [this] { HebrewCycleInfo_Click(); };
    Info.Click = [this] { Info_Click(); };
    for (const Zman& zman : ZmanRows()) AddPanel(DawnDuskLegends, DawnDusk, zman.key, zman.legend);
    HangPanels(DawnDuskLegends, DawnDusk, [this](std::size_t index) { CopyZman(index); });
    HangMenus();
}

WindowRow HebrewWindow::Row() {
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.HebrewCal,
            .open = OpenAt::FirstStart,
            .colors = &colors,
            .calendars = {{7, &hebrew::Calendar, &HebrewDate, &frame_.HebrewCal}},
            .settings = StoredRows()};
}

void HebrewWindow::HangMenus() {
    const std::pair<MenuItem*, std::int32_t> candles[] = {
        {&frame_.SetCandles18, 18}, {&frame_.SetCandles20, 20}, {&frame_.SetCandles30, 30}, {&frame_.SetCandles40, 40}};
    for (const auto& [item, minutes] : candles) {
        item->Shows(hebrew::options.CandlesBeforeSunset, minutes);
        item->Click = [this, minutes] { SetCandlesBeforeSunset(minutes); };
    }
    const std::pair<MenuItem*, std::int32_t> formats[] = {{&frame_.MoladHoursParts, 5},
                                                          {&frame_.MoladHoursMinutesParts, 7}};
    for (const auto& [item, format] : formats) {
        item->Shows(hebrew::options.MoladTimeFormat, format);
        item->Click = [this, format] { SetMoladTimeFormat(format); };
    }
}

Settings HebrewWindow::StoredRows() {
    constexpr std::int32_t longest = 120;  // minutes
    return {
        WholeRow("Item", "Candles", hebrew::options, &hebrew::Options::CandlesBeforeSunset, 0, longest),
        {"Item", "MTF", "7",
         [](const std::string& text) {
             hebrew::options.MoladTimeFormat = text == "5" ? 5 : 7;
             return true;
         },
         [] { return std::to_string(hebrew::options.MoladTimeFormat); }},
    };
}

void HebrewWindow::SetCandlesBeforeSunset(std::int32_t minutes) {
    hebrew::options.CandlesBeforeSunset = minutes;
    UpdateStatus();
}

void HebrewWindow::SetMoladTimeFormat(std::int32_t format) {
    hebrew::options.MoladTimeFormat = format;
    UpdateStatus();
}

/// Before the first day of the calendar there is nothing to ask the window.
void HebrewWindow::Update() {
    const HebrewDay today = HebrewDayOf(DisplayedMoment);
    const HebrewDay tomorrow = HebrewDayOf(DisplayedMoment + 1);
    HebrewDate.text = HebrewDateString(today.date, true, false, true) + " ";
    const bool begun = today.date.Fixed >= HebrewEpoch;
    for (Control* control : form.controls) control->enabled = begun;
    if (!begun) {
        HebrewCycleInfo.text = "Before the calendar's first year";
    } else {
        ShowYear(today.date);
        day_events::AddAll(form.text, HebrewShortDateString(today.date, false), EventsOf(today, tomorrow), HebrewDate);
    }
    DawnDusk.visible = DawnDuskLegends.visible = time_fields::options.ShowsDawnDusk;
    if (time_fields::options.ShowsDawnDusk) ShowZmanim(today, tomorrow);
}

void HebrewWindow::ShowYear(const HebrewDateRecord& date) {
    HebrewCycleInfo.text = HebrewYearCharacter(date.Year) + (isHebrewLeapYear19(date.Year) ? " " : " non-") +
                           "leap year " + std::to_string(PlaceInCycle(date.Year)) + "/19, day " +
                           PartAndRest(date.YearDay, DaysInHebrewYear(date.Year)) + ", month " + MonthNumber(date);
}

void HebrewWindow::ShowZmanim(const HebrewDay& today, const HebrewDay& tomorrow) {
    shown_ = ZmanimOf(today, tomorrow);
    for (std::size_t i = 0; i < shown_.size(); ++i) ShowZman(i, shown_[i]);
}

void HebrewWindow::ShowZman(std::size_t index, const Zman& zman) {
    StatusBar::Panel& legend = DawnDuskLegends.panels[index];
    StatusBar::Panel& time = DawnDusk.panels[index];
    legend.text = zman.legend;
    legend.tooltip = zman.name.empty() ? zman.rule : zman.name;
    time.text = zman.isDue ? std::string(zman.mark) + ClockText(zman.moment) : std::string(noCandles);
    time.tooltip = zman.rule;
}

void HebrewWindow::CopyZman(std::size_t index) {
    const Zman& zman = shown_.at(index);
    if (!zman.isDue) {
        Refuse("no candles are lit on this day");
        return;
    }
    const std::string name = zman.name.empty() ? zman.legend : zman.name;
    frame_.SetClipboardText(name + MarkInWords(zman.mark) + ClockText(zman.moment));
}

void HebrewWindow::HebrewCycleInfo_Click() {
    frame_.AskCopyToClipboard(CycleText(FixedToHebrewDate(DisplayedMoment)), "Hebrew Cycle Status");
}

void HebrewWindow::Info_Click() { frame_.AskCopyToClipboard(std::string(information), "The Hebrew Calendar"); }

}  // namespace horvanta
