#include "views/monthly_window.h"

#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "views/holiday_mark.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <utility>

namespace horvanta {
namespace {

/// Years to a step with the modifiers of a key or a click: Shift for decades, Ctrl for centuries, both for millennia.
std::int32_t YearsToAStep(int shift) { return ((shift & ShiftKey) ? 10 : 1) * ((shift & ControlKey) ? 100 : 1); }

/// A key that steps by days, in the layout with the weekdays as rows and in that with the weekdays as columns.
struct DayKey {
    int code;
    int across;
    int down;
};

constexpr DayKey dayKeys[] = {
    {KeyBackspace, -1, -1}, {KeyNumericMinus, -1, -1}, {KeyNumericPlus, 1, 1}, {KeyLeft, -7, -1},
    {KeyNumeric4, -7, -1},  {KeyUp, -1, -7},           {KeyNumeric8, -1, -7},  {KeyRight, 7, 1},
    {KeyNumeric6, 7, 1},    {KeyDown, 1, 7},           {KeyNumeric2, 1, 7},
};

/// Tells in a cell what its day is.
void TellOf(const std::vector<DayText>& day, CellGrid::Cell& cell) {
    for (const DayText& each : day) cell.tooltip += (cell.tooltip.empty() ? "" : ", ") + each.text;
    cell.mark = MarkOf(KindOf(day));
}

}  // namespace

MonthlyWindow::MonthlyWindow(HorvantaMDI& frame) : frame_(frame) {
    HangHandlers();
    ShowLayout();
}

WindowRow MonthlyWindow::Row() {
    return {.form = form,
            .first = Days,
            .finish = [this] { Update(); },
            .item = &frame_.CalendarMonth,
            .open = OpenAt::FirstStart,
            .settings = StoredRows()};
}

void MonthlyWindow::HangHandlers() {
    Calendars.Chosen = [this] {
        current_ = listed_[static_cast<std::size_t>(Calendars.selected)];
        monthly::options.MonthCalendar = static_cast<std::int32_t>(current_);
        Calendars_Click();
        KeepFocusInList();
    };
    MonthNames.Chosen = [this] { MonthNames_Click(); };
    PrevMonth.Click = [this] { PrevMonth_Click(); };
    NextMonth.Click = [this] { NextMonth_Click(); };
    Layout.Click = [this] { Layout_Click(); };
    Days.CellClick = [this](std::size_t cell) { SelectCell(cell); };
    Days.KeyDown = [this](int code, int shift) { return ObeyCellKey(code, shift); };
    ThisYear.KeyDown = [this](int code, int shift) { return ObeyYearKey(code, shift); };
    ThisYear.LostFocus = [this] { TakeYear(); };
    ChangeByYear.Step = [this](int direction, int shift) { ChangeYear(shown_.year + direction * YearsToAStep(shift)); };
    form.PickColor = [this](bool isBackground) { Current().date->form.PickColor(isBackground); };
    form.KeyDown = [this](int code, int shift) { return frame_.Form_KeyDown(code, shift); };
}

void MonthlyWindow::InitCalendars() {
    Calendars.items.clear();
    for (std::size_t place = 0; place < CalendarCount; ++place) {
        if (!calendars_[place].contract) continue;
        listed_[Calendars.items.size()] = place;
        Calendars.items.emplace_back();
    }
    const auto listed = std::span(listed_).first(Calendars.items.size());
    const auto chosen = std::ranges::find(listed, static_cast<std::size_t>(monthly::options.MonthCalendar));
    Calendars.selected = chosen == listed.end() ? 0 : static_cast<int>(chosen - listed.begin());
    current_ = listed_[static_cast<std::size_t>(Calendars.selected)];
    ShowLayout();
    Calendars_Click();
}

/// The window of the calendar, which may just have come, does not take the focus from the list.
void MonthlyWindow::KeepFocusInList() {
    Current().date->form.focusWish = nullptr;
    Calendars.TakeFocus();
}

/// The window of a calendar is up together with its grid.
void MonthlyWindow::Calendars_Click() {
    const GridCalendar& calendar = Current();
    ShowHeadings();
    if (BusyCount == 0 && !calendar.date->form.visible) calendar.window->Click();
    Update();
}

void MonthlyWindow::ShowHeadings() {
    const NamesOfDays names = Current().contract->DayNames();
    for (std::size_t i = 0; i < names.full.size(); ++i) {
        const bool cut = !Days.across && names.brief[i] != names.full[i];
        const std::string script = WrapIfNotEmpty(names.script[i], cut ? " (" : "(", ")", "");
        Days.headings[i] = {Days.across ? names.full[i] : names.brief[i], (cut ? names.full[i] : "") + script};
    }
}

/// The button offers the layout that is not shown.
void MonthlyWindow::ShowLayout() {
    Days.across = monthly::options.WeekdaysAsRows;
    Layout.text = Days.across ? "&Across" : "&Down";
}

Settings MonthlyWindow::StoredRows() {
    return {
        {"Item", "AD", "&Down",
         [](const std::string& text) {
             monthly::options.WeekdaysAsRows = text != "&Down";
             return true;
         },
         [] { return monthly::options.WeekdaysAsRows ? "&Across" : "&Down"; }},
        WholeRow("Item", "MC", monthly::options, &monthly::Options::MonthCalendar, 0, CalendarCount - 1),
    };
}

void MonthlyWindow::Update() {
    if (BusyCount > 0) return;
    const GridDate date = Current().contract->DateOf(DisplayedMoment);
    if (date.month == 0) return;
    shown_ = date;
    ShowNames();
    ShowHeadings();  // the week of a calendar may begin on a weekday of the user's choice
    ThisYear.text = std::to_string(date.year);
    MonthNames.items = Current().contract->MonthNames(date.year);
    MonthNames.selected = date.month - 1;
    WearColors();
    ShowCells(date);
    ShowToday(date);
}

/// A calendar may change its name with its rule.
void MonthlyWindow::ShowNames() {
    for (std::size_t i = 0; i < Calendars.items.size(); ++i) {
        Calendars.items[i] = NameOf(*calendars_[listed_[i]].contract);
    }
}

void MonthlyWindow::WearColors() {
    ThisYear.colors = MonthNames.colors = Calendars.colors = Days.activeColors = Current().date->colors;
}

void MonthlyWindow::ShowCells(const GridDate& date) {
    const CalendarContract& calendar = *Current().contract;
    const FixedDay eve = Floor(DisplayedMoment) - date.day;  // of the month
    for (int cell = 0; cell < static_cast<int>(Days.cells.size()); ++cell) {
        const int day = cell - date.firstWeekday + 1;
        CellGrid::Cell& shown = Days.cells[static_cast<std::size_t>(cell)];
        shown = {};
        if (day < 1 || day > date.monthLength) continue;
        shown.blank = false;
        shown.text = calendar.CellText ? calendar.CellText(date, day) : std::to_string(day);
        if (calendar.DaysOf) TellOf(calendar.DaysOf(eve + day), shown);
    }
    Days.active = static_cast<std::size_t>(date.day - 1 + date.firstWeekday);
}

void MonthlyWindow::ShowToday(const GridDate& date) {
    const double cell = static_cast<double>(Days.active) + Today() - Floor(DisplayedMoment);
    const bool inMonth = cell >= date.firstWeekday && cell < date.firstWeekday + date.monthLength;
    Days.today = inMonth ? std::optional(static_cast<std::size_t>(cell)) : std::nullopt;
    Days.spoken = SpokenDay();
}

/// "Monday, January 15, 2024, today". A month with a number in its name is kept apart from that of the day.
std::string MonthlyWindow::SpokenDay() const {
    const CalendarContract& calendar = *Current().contract;
    std::string day = Days.cells[Days.active].text;
    if (!calendar.CellText) {
        const std::string& month = MonthNames.items[static_cast<std::size_t>(MonthNames.selected)];
        const bool hasNumber = month.find_first_of("0123456789") != std::string::npos;
        day = month + (hasNumber ? ", day " : " ") + day;
    }
    return calendar.DayNames().full[Days.active % 7] + ", " + day + ", " + ThisYear.text +
           (Days.today == Days.active ? ", today" : "");
}

void MonthlyWindow::MoveTo(std::int32_t year, std::int32_t month, std::int32_t day, bool keepTime) {
    const double timeOfDay = keepTime ? DisplayedMoment - Floor(DisplayedMoment) : 0;
    DisplayedMoment = Current().contract->ToFixed(year, month, day) + timeOfDay;
    UpdateStatus();
}

void MonthlyWindow::SelectCell(std::size_t cell) {
    if (!Days.cells[cell].blank) {
        MoveTo(shown_.year, shown_.month, static_cast<std::int32_t>(cell) - shown_.firstWeekday + 1, true);
    }
    TakeFocus();
}

/// A day that the month does not have becomes its last one, or the last one of the same weekday where the month is all
/// weeks.
void MonthlyWindow::ShowMonth(std::int32_t year, std::int32_t month, bool keepTime) {
    const CalendarContract& calendar = *Current().contract;
    const std::int32_t length = calendar.DateOf(calendar.ToFixed(year, month, 1)).monthLength;
    std::int32_t day = shown_.day;
    if (day > length) day = length % 7 == 0 ? day - (day - length + 6) / 7 * 7 : length;
    MoveTo(year, month, day, keepTime);
}

void MonthlyWindow::MonthNames_Click() { ShowMonth(shown_.year, MonthNames.selected + 1, false); }

void MonthlyWindow::PrevMonth_Click() {
    if (shown_.month > 1) {
        ShowMonth(shown_.year, shown_.month - 1, true);
    } else {
        const std::int32_t year = YearAfter(*Current().contract, shown_.year, -1);
        ShowMonth(year, MonthsIn(year), true);
    }
}

void MonthlyWindow::NextMonth_Click() {
    if (shown_.month < MonthsIn(shown_.year)) {
        ShowMonth(shown_.year, shown_.month + 1, true);
    } else {
        ShowMonth(YearAfter(*Current().contract, shown_.year, 1), 1, true);
    }
}

std::int32_t MonthlyWindow::MonthsIn(std::int32_t year) const {
    return static_cast<std::int32_t>(Current().contract->MonthNames(year).size());
}

/// The day stays, and where the calendar's months move by a leap month, so does the month.
void MonthlyWindow::ChangeYear(std::int32_t year) {
    const CalendarContract& calendar = *Current().contract;
    if (year == 0 && !HasYear0(calendar)) year = shown_.year < 1 ? 1 : -1;
    if (year == shown_.year) return;
    std::int32_t month = shown_.month;
    if (calendar.leapMonthAfter > 0 && month > calendar.leapMonthAfter) month += MonthsIn(year) - MonthsIn(shown_.year);
    MoveTo(year, month, shown_.day, false);
}

void MonthlyWindow::TakeYear() {
    const auto year = ParseNumber(ThisYear.text);
    const bool whole = year && *year == Floor(*year) && std::fabs(*year) < 1e6;
    if (whole) {
        ChangeYear(WholeNumber(*year));
    } else {
        RefuseEntry(ThisYear.text, "a year");
    }
    ThisYear.text = std::to_string(shown_.year);
}

/// True if another year had been typed.
bool MonthlyWindow::RestoreYear() {
    const std::string year = std::to_string(shown_.year);
    return std::exchange(ThisYear.text, year) != year;
}

void MonthlyWindow::Layout_Click() {
    monthly::options.WeekdaysAsRows = !monthly::options.WeekdaysAsRows;
    ShowLayout();
    ShowHeadings();
}

bool MonthlyWindow::ObeyCellKey(int code, int shift) {
    const auto* dayKey = std::ranges::find(dayKeys, code, &DayKey::code);
    if (dayKey != std::end(dayKeys)) {
        frame_.DayUpDown(Days.across ? dayKey->across : dayKey->down, 1);
    } else if (code == KeyPageUp) {
        PrevMonth_Click();
    } else if (code == KeyPageDown) {
        NextMonth_Click();
    } else if (code == KeyHome || code == KeyNumeric0) {
        SelectCell(0);
    } else if (code == KeyEnd || code == KeyNumericPoint) {
        SelectCell(static_cast<std::size_t>(shown_.firstWeekday + shown_.monthLength - 1));
    } else if (code == KeyNumeric5) {
        SelectCell(static_cast<std::size_t>((shown_.monthLength + 1) / 2 - 1 + shown_.firstWeekday));
    } else if (code == KeyEscape) {
        frame_.TakeFocus();
        return true;
    } else {
        return frame_.Form_KeyDown(code, shift);
    }
    TakeFocus();
    return true;
}

/// Space is no part of a number, and neither it nor Home, which edits, goes on to step the day.
bool MonthlyWindow::ObeyYearKey(int code, int shift) {
    const std::int32_t step = YearsToAStep(shift);
    switch (code) {
        case KeyUp:
        case KeyNumericPlus: ChangeYear(shown_.year + step); return true;
        case KeyDown:
        case KeyNumericMinus: ChangeYear(shown_.year - step); return true;
        case KeyPageUp: ChangeYear(shown_.year + std::max(10, step)); return true;
        case KeyPageDown: ChangeYear(shown_.year - std::max(10, step)); return true;
        case KeyEscape: return RestoreYear();
        case KeySpace:
        case KeyHome: return true;
        default: return false;
    }
}

}  // namespace horvanta
