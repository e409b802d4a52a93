#include "views/date_box.h"

#include "astro/local_time.h"
#include "astro/timescales.h"
#include "calendars/gregorian.h"
#include "calendars/typed_dates.h"
#include "clock/zone_time.h"
#include "core/desktop.h"
#include "core/locale.h"
#include "core/moment.h"
#include "core/text.h"
#include "locale/locale_text.h"

#include <algorithm>
#include <iterator>

namespace horvanta {
namespace {

constexpr const char* hint = "e.g. 2024-02-29, 2024-W09-4, JD 2460000.5, 15 March 44 BC, 15 Nisan 5784";

/// The way from each time scale of the list to Universal Time.
constexpr Moment (*toUniversal[])(Moment) = {
    [](Moment universal) { return universal; },
    [](Moment standardTime) { return StandardToUniversal(standardTime); },
    [](Moment clockTime) { return StandardToUniversal(DaylightToStandard(clockTime)); },
};

/// By how many hours a time of the scale is ahead at a moment.
std::string OffsetText(Moment local, Moment universal) {
    constexpr double secondsPerDay = 86400;
    const double hours = Round((local - universal) * secondsPerDay) / 3600;
    return ZoneText(hours, Locale.UseLMT);
}

/// A month keeps its name in another year. Where it has none there, it keeps its place, which a leap month may move.
std::size_t PlaceInYear(const CalendarContract& calendar, const std::vector<std::string>& before, std::size_t place,
                        const std::vector<std::string>& months) {
    if (place >= before.size()) return 0;
    const auto named = std::ranges::find(months, before[place]);
    if (named != months.end()) return static_cast<std::size_t>(named - months.begin());
    const bool moves = calendar.leapMonthAfter > 0 && place >= static_cast<std::size_t>(calendar.leapMonthAfter);
    return std::min(moves ? place + months.size() - before.size() : place, months.size() - 1);
}

/// The steps that a key asks for.
std::int32_t StepsOfKey(int code) {
    switch (code) {
        case KeyUp: return 1;
        case KeyDown: return -1;
        case KeyPageUp: return 10;
        case KeyPageDown: return -10;
        default: return 0;
    }
}

}  // namespace

DateBox::DateBox(HorvantaMDI& frame) : frame_(frame) {
    form.modal = true;
    form.KeyDown = [this](int code, int) {
        if (code == KeyEscape) Cancel_Click();
        if (code == KeyEnter) OK_Click();
        return code == KeyEscape || code == KeyEnter || code == KeyPageUp || code == KeyPageDown;
    };
    OK.Click = [this] { OK_Click(); };
    CancelDate.Click = [this] { Cancel_Click(); };
    for (Label* value : {&Gregorian, &Universal, &DayNumber}) frame_.CopyOnClick(*value);
    HangFields();
}

void DateBox::HangFields() {
    DateText.Typed = [this] { ReadText(); };
    for (TextField* field : {&Year, &Day, &Time}) {
        field->Typed = [this] { ReadFields(); };
        field->LostFocus = [this] { Update(); };
    }
    for (ChoiceList* list : {&Month, &Scale}) list->Chosen = [this] { ReadFields(); };
    for (TextField* field : {&DateText, &Year, &Day, &Time}) field->Entered = [this] { OK_Click(); };
    Calendar.Chosen = [this] {
        ShowDay(day_);
        Trimmed(DateText.text).empty() ? Accept(day_) : ReadText();
    };
    Year.KeyDown = [this](int code, int) {
        if (StepsOfKey(code) != 0) StepYears(StepsOfKey(code));
        return StepsOfKey(code) != 0;
    };
    Day.KeyDown = [this](int code, int) {
        if (StepsOfKey(code) != 0) StepTo(day_ + StepsOfKey(code));
        return StepsOfKey(code) != 0;
    };
    YearUpDown.Step = [this](int direction, int) { StepYears(direction); };
    DayUpDown.Step = [this](int direction, int) { StepTo(day_ + direction); };
}

WindowRow DateBox::Row() {
    return {.form = form,
            .first = DateText,
            .update = [this] { Update(); },
            .item = &frame_.JumpToDate,
            .settings = {WholeRow("Item", "DateCal", date_box::options, &date_box::Options::Calendar, 0,
                                  GridCalendarCount - 1)},
            .prepare = [this] { Open(); }};
}

void DateBox::Offer(const GridCalendar& calendar) {
    calendars_.insert(std::ranges::upper_bound(calendars_, calendar.place, {}, &GridCalendar::place), calendar);
}

const CalendarContract& DateBox::Current() const {
    return *calendars_[static_cast<std::size_t>(Calendar.selected)].contract;
}

/// Where several calendars have a month of that name, the chosen one is meant, or else the Gregorian one.
std::vector<const CalendarContract*> DateBox::InOrderOfPreference() const {
    std::vector<const CalendarContract*> order{&Current(), &GregorianCalendar};
    for (const GridCalendar& calendar : calendars_) order.push_back(calendar.contract);
    return order;
}

void DateBox::Open() {
    const auto used =
        std::ranges::find(calendars_, static_cast<std::size_t>(date_box::options.Calendar), &GridCalendar::place);
    Calendar.selected = used == calendars_.end() ? 0 : static_cast<int>(used - calendars_.begin());
    Scale.selected = 0;
    ShowTime(DisplayedMoment);
    StepTo(Floor(DisplayedMoment));
}

void DateBox::Update() {
    ShowNames();
    if (isNever(goal_)) return;
    ShowDay(day_);
    Accept(day_);
}

/// A calendar may change its name with its rule, and the clocks their distance from Universal Time with the day.
void DateBox::ShowNames() {
    Calendar.items.clear();
    for (const GridCalendar& calendar : calendars_) Calendar.items.push_back(NameOf(*calendar.contract));
    UniversalLabel.text = DeltaTDisabled ? "Atomic Time" : "Universal Time";
    Universal.tooltip = UniversalLabel.text;
    DayNumber.tooltip = "Fixed day number, 1 = " + FixedToGregorianString(1);
    const Moment universal = isNever(goal_) ? Moment{day_} : goal_;
    const Moment standardTime = UniversalToStandard(universal);
    const Moment clockTime = StandardToDaylight(standardTime);
    Scale.items = {UniversalLabel.text,
                   (Locale.UseLMT ? "Local mean time, " : "Zone time, ") + OffsetText(standardTime, universal),
                   "Clock time, " + OffsetText(clockTime, universal)};
}

// What is entered.

/// An empty line leaves the date to the other fields.
void DateBox::ReadText() {
    if (Trimmed(DateText.text).empty()) return ReadFields();
    const TypedDate date = ReadDate(DateText.text, InOrderOfPreference());
    HowRead.text = isNever(date.moment) ? hint : date.told;
    if (isNever(date.moment)) return Reject(date.told);
    if (date.hasTime) {
        Scale.selected = 0;
        ShowTime(date.moment);
    }
    ShowDay(Floor(date.moment));
    Accept(day_);
}

/// The month is in the list of the year that stands there.
void DateBox::ReadFields() {
    ForgetText();
    const auto year = ReadYear(Current(), Year.text);
    if (!year) return Reject(NotText(Year.text, "a year"));
    const std::string whyNoYear = WhyNoYear(Current(), *year);
    if (!whyNoYear.empty()) return Reject(whyNoYear);
    TakeMonths(*year);
    const auto month = static_cast<std::int16_t>(Month.selected + 1);
    const auto day = ReadDay(Current(), {.year = *year, .month = month}, Day.text);
    if (!day) return Reject(NotText(Day.text, "a day of the month"));
    const TypedDate date = DayOf(Current(), *year, month, *day);
    if (isNever(date.moment)) return Reject(date.told);
    day_ = {date.moment - GregorianEpoch};
    date_ = Current().DateOf(date.moment);
    Accept(day_);
}

void DateBox::TakeMonths(std::int32_t year) {
    const std::vector<std::string> months = Current().MonthNames(year);
    Month.selected =
        static_cast<int>(PlaceInYear(Current(), Month.items, static_cast<std::size_t>(Month.selected), months));
    Month.items = months;
}

/// It tells what stands in the fields no more.
void DateBox::ForgetText() {
    DateText.text.clear();
    HowRead.text = hint;
}

/// Few digits that nobody changed stand for all.
std::optional<double> DateBox::TimeEntered() const {
    return Trimmed(Time.text) == shownTime_ ? std::optional(time_) : ParseTimeOfDay(Time.text);
}

// What is shown.

void DateBox::ShowTime(Moment x) {
    time_ = x - Floor(x);
    shownTime_ = Time.text = FormatTime(x, 0);
}

void DateBox::ShowDay(FixedDay day) {
    day_ = {day - GregorianEpoch};
    date_ = Current().DateOf(day);
    const bool isThere = date_.month > 0;
    Year.text = isThere ? YearText(Current(), date_.year) : "";
    Month.items = isThere ? Current().MonthNames(date_.year) : std::vector<std::string>();
    Month.selected = date_.month - 1;
    Day.text = isThere ? DayOfMonthText(Current(), date_) : "";
}

void DateBox::StepTo(FixedDay day) {
    if (const std::string_view why = WhyBeyondRange(day); !why.empty()) return Refuse(why);
    ForgetText();
    ShowDay(day);
    Accept(day);
}

/// The month and the day stay as far as that year has them. From a day that the calendar does not reach it goes to the
/// first of a year.
void DateBox::StepYears(std::int32_t count) {
    const CalendarContract& calendar = Current();
    const std::int32_t year = YearAfter(calendar, date_.year, count);
    if (const std::string why = WhyNoYear(calendar, year); !why.empty()) return Refuse(why);
    const auto place = static_cast<std::size_t>(date_.month - 1);
    const std::vector<std::string> months = calendar.MonthNames(year);
    const auto month =
        static_cast<std::int32_t>(PlaceInYear(calendar, calendar.MonthNames(date_.year), place, months)) + 1;
    const TypedDate first = DayOf(calendar, year, month, 1);
    if (isNever(first.moment)) return Refuse(first.told);
    const std::int16_t length = calendar.DateOf(first.moment).monthLength;
    StepTo(first.moment + std::clamp<std::int16_t>(date_.day, 1, length) - 1);
}

void DateBox::Accept(FixedDay day) {
    const auto time = TimeEntered();
    if (!time) return Reject(NotText(Time.text, "a time of day"));
    const Moment universal = toUniversal[Scale.selected](day + *time);
    if (const std::string_view why = WhyBeyondRange(universal); !why.empty()) return Reject(std::string(why));
    goal_ = universal;
    constexpr int decimals = 6;  // a tenth of a second
    Gregorian.text = FixedToGregorianString(goal_);
    Universal.text = FormatTime(goal_, 0);
    DayNumber.text = GeneralText(Round(goal_, decimals));
    Why.text.clear();
    OK.enabled = true;
    ShowNames();
}

void DateBox::Reject(const std::string& why) {
    goal_ = NeverMoment;
    for (Label* value : {&Gregorian, &Universal, &DayNumber}) value->text.clear();
    Why.text = why;
    OK.enabled = false;
}

// Commands.

void DateBox::OK_Click() {
    if (isNever(goal_)) return Refuse(Why.text);
    date_box::options.Calendar =
        static_cast<std::int32_t>(calendars_[static_cast<std::size_t>(Calendar.selected)].place);
    DisplayedMoment = goal_;
    form.Close();
}

void DateBox::Cancel_Click() { form.Close(); }

}  // namespace horvanta
