#include "views/quartane_window.h"

#include "calendars/calendar_text.h"
#include "calendars/civil_days.h"
#include "calendars/gregorian.h"
#include "calendars/quartane_leap_rules.h"
#include "calendars/quartane_leap_text.h"
#include "calendars/quartane_year_start.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "views/holiday_mark.h"

#include <algorithm>
#include <utility>

namespace horvanta {
namespace {

using namespace quartane;

constexpr std::string_view cycleStructure =
    "Click \"Quarters:\" or its frame to cycle through choices for quarter-year structure.";
constexpr std::string_view keepStructure = "Checkmark \"Experiment\" if you wish to modify the quarter-year structure.";

std::string StartWeekdayName() { return std::string(WeekdayNames[options.StartWeekday]); }

/// Of a cycle of 4 weeks that began with year 1.
int WeekOfFour(const QuaDate& date) { return WholeNumber(Floor(Modulo(date.fixed - QuaEpoch(), 28) / 7)) + 1; }

std::string WeekColumn(const QuaDate& date) { return "Week " + std::to_string(WeekOfFour(date)); }

using TableRow = std::vector<std::string>;

std::vector<TableRow> StatusRows(const QuaDate& date) {
    const bool withLeapWeek = date.quarter == 4 && date.isLeap;
    const int yearLength = QuaYearLength(date.isLeap);
    const int quarterLength = withLeapWeek ? 98 : 91;
    const auto number = [](int x) { return std::to_string(x); };
    return {
        TableRow{"", "Quarter", "Month", WeekColumn(date), "Day"},
        TableRow{"in Year", number(date.quarter), number(date.month), PartAndRest(date.weekOfYear, yearLength / 7),
                 PartAndRest(date.yearDay, yearLength)},
        TableRow{"in Quarter", "", number(date.monthInQuarter), PartAndRest(date.weekOfQuarter, quarterLength / 7),
                 PartAndRest(date.dayOfQuarter, quarterLength)},
        TableRow{"in Month", "", "", options.Qua454 ? PartAndRest(date.weekOfMonth, date.monthLength / 7) : "",
                 PartAndRest(date.day, date.monthLength)},
    };
}

/// Where the leap week stands, for the tooltip of the date.
std::string LeapWeekPlace() { return HasZovember() ? "after December" : "at the end of December"; }

std::string LeapWeekText() {
    if (HasZovember()) return "(\"Zovember\") as a stand-alone week after December.";
    const char* length = options.Qua454 ? "5 weeks" : "37 days";
    return std::string("appended to December to make it ") + length + " long.";
}

std::string CalendarInformation() {
    const std::string name = CalendarName();
    const char* unit = options.Qua454 ? " weeks.\n" : " days.\n";
    const bool symmetrical = options.QuarterStructure == "SLS";
    return "The " + name + " (start on " + StartWeekdayName() + ") is perpetual -- every year is the same.\n" +
           "Its identical quarters each have 3 months with " + QuarterText(options.Qua454) + unit +
           (symmetrical ? "It is symmetrical across and between quarters, hence the name.\n" : "") + "Every " +
           (options.Qua454 ? "quarter and month" : "quarter") + " starts on " + StartWeekdayName() +
           ".  The current setting for leap years\nhas the Leap Week " + LeapWeekText() + "\n\n" +
           "By having either 364 or 371 days per year, the " + name +
           "\nis perpetual yet conserves the traditional 7-day weekly cycle.\n\n" +
           "Click on the \"Leap Rule\" button for information about the selected leap\nrule \"" + options.LeapRuleKey +
           "\".\n" + "Checkmark \"Experiment\" for other rules, start weekdays and quarters.";
}

}  // namespace

QuartaneWindow::QuartaneWindow(HorvantaMDI& frame) : frame_(frame) {
    QuaStatusGrid.rows = StatusRows(QuaDateOn(DisplayedMoment));
    QuaStartOn.items.assign(std::begin(WeekdayNames), std::begin(WeekdayNames) + 7);

    frame_.CopyOnClick(QuartaneDateBox);
    frame_.CopyOnClick(QuaCycleInfo, [this] { QuaCycleInfo_Click(); });
    QuaStatusGrid.CellClick = [this](std::size_t row, std::size_t column) { QuaStatusGrid_Click(row, column); };
    LeapChoice.Chosen = [this] { LeapChoice_Click(); };
    frame_.CopyOnClick(FixedMeanYear, [this] { frame_.SetClipboardText(MeanYearSummary(DisplayedMoment)); });
    MeanYearLabel.Click = [this] { frame_.SetClipboardText(MeanYearFraction(DisplayedMoment)); };
    frame_.OfferCopy(MeanYearLabel);
    InfoLeapRule.Click = [this] { InfoLeapRule_Click(); };
    InfoQuaCal.Click = [this] { InfoQuaCal_Click(); };
    QuaMonths.Click = [this] { QuaMonths_Click(); };
    Qua454.ShowsWhen([] { return options.Qua454; });
    Qua454.Click = [this] { SetMonths(true); };
    Qua010.ShowsWhen([] { return !options.Qua454; });
    Qua010.Click = [this] { SetMonths(false); };
    QuaStartOn.Chosen = [this] { SetStartWeekday(); };
    QuaSoupMix.Shows(options.QuaSoupMix);
    QuaSoupMix.Click = [this] { QuaSoupMix_Click(); };
    HangMenus();
}

WindowRow QuartaneWindow::Row() {
    std::vector<MenuItem*> needing{&frame_.QuaLeapWeek, &frame_.EvenQuaCycleMenu};
    for (const MenuEvent event :
         {MenuEvent::LeapWeek, MenuEvent::QuaNewYearMoment, MenuEvent::QuaLeapCycle, MenuEvent::FixedEaster}) {
        needing.push_back(&ItemOf(frame_.PrevMenu, event));
        needing.push_back(&ItemOf(frame_.NextMenu, event));
    }
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.QuaCal,
            .open = OpenAt::EveryStart,
            .colors = &colors,
            .needing = needing,
            .calendars = {{0, &quartane::Calendar, &QuartaneDateBox, &frame_.QuaCal}},
            .settings = StoredRows()};
}

void QuartaneWindow::HangMenus() {
    frame_.QuaLeapLongDec.ShowsWhen([] { return !HasZovember(); });
    frame_.QuaLeapLongDec.Click = [this] { SetLeapWeek(false); };
    frame_.QuaLeapUseZov.ShowsWhen([] { return HasZovember(); });
    frame_.QuaLeapUseZov.Click = [this] { SetLeapWeek(true); };
    frame_.MidLeapNonLeap.ShowsWhen([] { return !options.EvenCycleFlag; });
    frame_.MidLeapNonLeap.Click = [this] { SetMiddle(true); };
    frame_.MidNonLeapLeap.ShowsWhen([] { return options.EvenCycleFlag; });
    frame_.MidNonLeapLeap.Click = [this] { SetMiddle(false); };
}

void QuartaneWindow::Update() {
    const QuaDate& date = QuaDateOn(DisplayedMoment);
    ShowOptions();
    ShowDate(date);
    const std::string dateText = QuaDateString(date);
    const std::vector<DayText> day = quartane::CivilDaysOf(date.fixed);
    colors.MarkDate(MarkOf(KindOf(day)));
    day_events::AddAll(CalendarName(), dateText, TextsOf(day), QuartaneDateBox);
    day_events::AddAll(CalendarName(), dateText, EventsOf(date), QuartaneDateBox);
}

Settings QuartaneWindow::StoredRows() {
    return {
        WholeRow("Item", "QuaStart", options, &Options::StartWeekday, 0, 6),
        TruthRow("Item", "Qua454", options, &Options::Qua454),
        TruthRow("Item", "UseZov010", options, &Options::UseZov010),
        TruthRow("Item", "UseZov454", options, &Options::UseZov454),
        TruthRow("Item", "Even", options, &Options::EvenCycleFlag),
        TruthRow("Item", "Mix", options, &Options::QuaSoupMix),
        {"Item", "QuaLeap", Options().LeapRuleKey,
         [](const std::string& text) {
             SetQuaLeapChoice(text);
             return true;
         },
         [] { return options.LeapRuleKey; }},
        {"Item", "QuaQS", Options().QuarterStructure,
         [](const std::string& text) {
             SetQuaQuarterStructure(text);
             return options.QuarterStructure == text;
         },
         [] { return options.QuarterStructure; }},
    };
}

void QuartaneWindow::ShowDate(const QuaDate& date) {
    QuartaneDateBox.text = QuaDateString(date) + " ";
    QuaStatusGrid.rows = StatusRows(date);
    FixedMeanYear.text = MeanYearText(DisplayedMoment);
    LeapCheckbox.text = YearKind(date.isLeap);
    ShowCycle(date);
}

void QuartaneWindow::ShowCycle(const QuaDate& date) {
    const auto length = static_cast<std::int32_t>(Rule().CycleLength);
    QuaCycleInfo.text = length == 0 ? "" : YearOfCycle(date.year, length, std::to_string(length) + "-year cycle");
}

void QuartaneWindow::ShowOptions() {
    ShowLists();
    Qua454.text = QuarterText(true);
    Qua010.text = QuarterText(false);
    Qua454.tooltip = ReplaceAll(Qua454.text, "+", " + ") + " weeks per quarter";
    Qua010.tooltip = ReplaceAll(Qua010.text, "+", " + ") + " days per quarter";
    const bool mix = options.QuaSoupMix;
    QuaMonths.tooltip = mix ? cycleStructure : keepStructure;
    QuaStartOn.enabled = StartOnLabel.enabled = mix;
    frame_.QuaLeapLongDec.enabled = frame_.QuaLeapUseZov.enabled = mix;
    frame_.QuaLeapWeek.enabled = options.QuarterStructure != "SSL";
    SetQuaTitle();
}

void QuartaneWindow::ShowLists() {
    LeapChoice.items = LeapChoices();
    LeapChoice.selected = FindQuaLeapRule(options.LeapRuleKey + " ");
    QuaStartOn.selected = options.StartWeekday;
}

void QuartaneWindow::SetQuaTitle() {
    const std::string name = CalendarName();
    form.text = options.StartWeekday == 1 ? name : name + " (start " + StartWeekdayName() + ")";
    InfoQuaCal.spoken = name + " info";
    InfoQuaCal.tooltip = "Click here for information about the \"" + name + "\" Calendar";
    QuartaneDateBox.tooltip = name + " (start " + StartWeekdayName() + "), Leap Week " + LeapWeekPlace();
    const std::int32_t offset = SetKoffset(options.StartWeekday);
    FixedMeanYear.tooltip = "Calendar Mean Year Length (days)";
    if (offset != 0) FixedMeanYear.tooltip += "  [New Year Offset = " + std::to_string(offset) + "]";
    frame_.QuaCal.caption = "&" + name + " Date";
    NameJumps();
}

void QuartaneWindow::NameJumps() {
    const std::string newYear = "Qua" + options.LeapRuleKey + " New &Year " + (isISORule() ? "Day" : "Moment");
    const std::string cycle = "Qua" + options.LeapRuleKey + " Leap &Cycle";
    for (auto* menu : {&frame_.PrevMenu, &frame_.NextMenu}) {
        ItemOf(*menu, MenuEvent::QuaNewYearMoment).caption = newYear;
        ItemOf(*menu, MenuEvent::QuaLeapCycle).caption = cycle;
    }
}

/// Every option moves dates or tells of them, and the focus goes back to where dates are typed; lists keep it.
void QuartaneWindow::Refresh() {
    UpdateStatus();
    frame_.TakeFocus();
}

void QuartaneWindow::LeapChoice_Click() {
    ChooseLeapRule(LeapChoice.selected);
    UpdateStatus();
}

void QuartaneWindow::SetStartWeekday() {
    options.StartWeekday = QuaStartOn.selected;
    UpdateStatus();
}

void QuartaneWindow::SetMonths(bool weeks) {
    options.Qua454 = weeks;
    Refresh();
}

void QuartaneWindow::SetLeapWeek(bool standsAlone) {
    ToggleUseZov(standsAlone);
    Refresh();
}

void QuartaneWindow::SetMiddle(bool middleLeapFirst) {
    SetEvenCycleMode(middleLeapFirst);
    Refresh();
}

/// Without the experiment the calendar is the standard one.
void QuartaneWindow::QuaSoupMix_Click() {
    options.QuaSoupMix = !options.QuaSoupMix;
    if (!options.QuaSoupMix) {
        const Options before = std::exchange(options, {});
        options.Qua454 = before.Qua454;
        options.EvenCycleFlag = before.EvenCycleFlag;
    }
    Refresh();
}

void QuartaneWindow::QuaMonths_Click() {
    if (!options.QuaSoupMix) {
        CurrentDesktop->Tell(QuaMonths.tooltip, CalendarName());
        return;
    }
    SetQuaQuarterStructure(NextQuarterStructure());
    Refresh();
}

void QuartaneWindow::QuaCycleInfo_Click() {
    const QuaDate& date = QuaDateOn(DisplayedMoment);
    frame_.SetClipboardText("Quartane year " + std::to_string(date.year) + " (" + (date.isLeap ? "" : "non-") +
                            "leap)" + (QuaCycleInfo.text.empty() ? "" : " = ") + QuaCycleInfo.text);
}

void QuartaneWindow::QuaStatusGrid_Click(std::size_t row, std::size_t column) {
    const std::vector<TableRow>& rows = QuaStatusGrid.rows;
    const bool isNumber = row > 0 && column > 0 && row < rows.size() && column < rows[row].size();
    if (!isNumber || rows[row][column].empty()) return;
    const bool isWeekOfYear = row == 1 && column == 3;
    frame_.SetClipboardText(rows[row][column] + (isWeekOfYear ? " (" + rows[0][column] + " of 4-week cycle)" : ""));
}

void QuartaneWindow::InfoLeapRule_Click() {
    frame_.AskCopyToClipboard(LeapRuleExplanation(), options.LeapRuleKey + " leap rule");
}

void QuartaneWindow::InfoQuaCal_Click() {
    frame_.AskCopyToClipboard(CalendarInformation(), CalendarName() + " Calendar");
}

}  // namespace horvanta
