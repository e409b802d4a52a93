#include "calendars/julian_window.h"

#include "calendars/calendar_text.h"
#include "calendars/gregorian_window.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"

#include <cstdlib>
#include <functional>

namespace horvanta {
namespace {

constexpr int romanShade = 48;
constexpr ColorPair defaultColors{Color::FromNumber(14680063), Color::FromNumber(0)};

/// What the information text says of one leap rule.
struct RuleWords {
    std::string_view epoch;
    std::string_view centuries;
    std::string_view years;
    std::string_view meanYear;
    std::string_view hours;
    std::string_view drift;
    std::string_view users;
};

/// Of the Julian and of the Revised Julian rule.
constexpr RuleWords ruleWords[] = {
    {
        ", and its epoch is two days earlier",
        "",
        "Y",
        "1/4 = 365.25",
        "6 hours",
        "Because of its longer mean year, the Julian Calendar\nfalls 3 more days behind Gregorian every 400 years.\n",
        "historians and ",
    },
    {
        "",
        "Century years are leap if century number / 9 has remainder = 2 or 6.\n",
        "Non-century y",
        "218/900 = 365.24222...",
        "5h 48m 48s",
        "",
        "",
    },
};

/// "13 days behind", "equal to"
std::string DifferenceText(int days) {
    if (days == 0) return "equal to";
    const int size = std::abs(days);
    return std::to_string(size) + " day" + (size > 1 ? "s" : "") + (days > 0 ? " behind" : " ahead of");
}

/// How today speaks of the displayed day.
std::string_view TenseWords() {
    const int distance = Sign(Floor(DisplayedMoment) - Today());
    return distance < 0 ? "was " : distance > 0 ? "will be " : "is ";
}

std::string CalendarTitle() { return "The " + JulianWindow::CalendarName() + " Calendar"; }

/// What holds in general, as lines.
std::string RuleInformation(const RuleWords& rule) {
    const std::string years(rule.years);
    return CalendarTitle() + " is identical to the Gregorian Calendar\nexcept for the leap rule" +
           std::string(rule.epoch) + ".\n" + std::string(rule.centuries) + years +
           "ears after the epoch are leap if divisible by 4.\n" + years +
           "ears before the epoch were leap if year/4 has a remainder\nof 3 (because there was no Julian year 0).\n"
           "Thus the calendar mean year = 365 + " +
           std::string(rule.meanYear) + " days\n= exactly 365 days " + std::string(rule.hours) + ".\n" +
           "The Easter computus has 235 lunar months in 19 years, yielding an\n"
           "excessively long mean month of 29d 12h 44m 25+25/47s.\n" +
           std::string(rule.drift);
}

std::string Information() {
    const RuleWords& rule = ruleWords[julian::Revise];
    return RuleInformation(rule) + "The displayed date " + std::string(TenseWords()) +
           DifferenceText(JulianGregDiff(DisplayedMoment)) + " the Gregorian Calendar.\n" + CalendarTitle() +
           " is used by " + std::string(rule.users) + "some Orthodox churches.";
}

/// Asks for a year BC; nothing if there is none in the range.
std::optional<std::int32_t> AskYearBC(std::string_view title, const YearChoice& choice) {
    const std::string usual = std::to_string(-choice.usual);
    const std::string prompt = "Allowed range " + std::to_string(-choice.earliest) + " to " +
                               std::to_string(-choice.latest) + " BC (" + usual + " recommended)";
    const auto answer = CurrentDesktop->AskText(prompt, title, usual);
    if (!answer) return std::nullopt;
    const double year = -Round(ParseNumber(*answer).value_or(0));
    if (year >= choice.earliest && year <= choice.latest) return WholeNumber(year);
    CurrentDesktop->Beep();
    return std::nullopt;
}

void StoreYearBC(std::string_view title, const YearChoice& choice, std::int32_t& year) {
    const auto answer = AskYearBC(title, choice);
    if (!answer) return;
    year = *answer;
    UpdateStatus();
}

std::string CopyOfPair(const Label& first, const Label& second) {
    return first.tooltip + ", " + second.tooltip + ": " + first.text + ", " + second.text;
}

JulianDate DisplayedJulianDate(bool allowRevised) { return FixedToJulianDate(DisplayedMoment, allowRevised); }

FixedDay FixedOf(std::int32_t year, std::int32_t month, std::int32_t day, bool allowRevised) {
    return JulianToFixed(julian::UseAUC ? AUCToJulian(year) : year, month, day, allowRevised);
}

GridDate GridDateOf(bool allowRevised) {
    const JulianDate date = DisplayedJulianDate(allowRevised);
    const std::int32_t year = julian::UseAUC ? JulianToAUC(date.year) : date.year;
    return {year, date.month, date.day, JulianMonthLength(year, date.month, allowRevised),
            static_cast<std::int16_t>(DayOfWeek(date.fixed - date.day + 1))};
}

}  // namespace

JulianWindow::JulianWindow(HorvantaMDI& frame) : frame_(frame) {
    for (Label* label : {&TheJulianDate, &TheRomanDate}) label->colors = defaultColors;
    SetColor(defaultColors.background, true);
    SetColor(defaultColors.foreground, false);
    SetAUC();
    Revise.Shows(julian::Revise);
    UseAUC.Shows(julian::UseAUC);
    HangHandlers();
}

void JulianWindow::HangHandlers() {
    for (Label* label : {&TheJulianDate, &TheRomanDate, &Dominical}) frame_.CopyOnClick(*label);
    for (Label* label : {&OlympiadCycleDecimal, &OlympiadYearDecimal}) {
        label->Click = [this] { CopyPair(OlympiadCycleDecimal, OlympiadYearDecimal); };
    }
    for (Label* label : {&OlympiadCycleRoman, &OlympiadYearRoman}) {
        label->Click = [this] { CopyPair(OlympiadCycleRoman, OlympiadYearRoman); };
    }
    TheJulianDate.DblClick = [this] { PickBackgroundColor(); };
    TheJulianDate.RightClick = [this] { PickForegroundColor(); };
    Revise.Click = [this] { Revise_Click(); };
    UseAUC.Click = [this] { UseAUC_Click(); };
    Info.Click = [this] { Info_Click(); };
    frame_.JYRF.Click = [this] { JYRF_Click(); };
    frame_.OSY.Click = [this] { OSY_Click(); };
    form.PickColor = [this](bool isBackground) {
        frame_.PickColor(TheJulianDate, isBackground, std::bind_front(&JulianWindow::SetColor, this));
    };
    form.KeyDown = [this](int code, int shift) { return frame_.Form_KeyDown(code, shift); };
}

void JulianWindow::Update() {
    if (BusyCount > 0) return;
    ShowCaption();
    SetAUC();
    const JulianDate date = DisplayedJulianDate(true);
    TheJulianDate.text = DateInWords(WeekdayNames[DayOfWeek(date.fixed)], GregorianMonthNames[date.month - 1], date.day,
                                     JulianYearString(date.year, false)) +
                         " ";
    Dominical.text = JulianDominicalLetters(date.year);
    ShowOlympiad(date);
    const RomanDate roman = FixedToRomanDate(DisplayedMoment);
    TheRomanDate.text = RomanDateString(roman);
    PostEvents(roman);
}

/// The difference is told where years are those of the Gregorian calendar too.
void JulianWindow::ShowCaption() {
    const std::string difference =
        julian::UseAUC ? "" : "(" + DifferenceText(JulianGregDiff(DisplayedMoment)) + " Gregorian) ";
    form.text = CalendarName() + " " + difference + "and Roman";
    TheJulianDate.tooltip = CalendarName() + " date";
}

void JulianWindow::ShowOlympiad(const JulianDate& date) {
    SetOSY();
    const Olympiad olympiad = JulianToOlympiad(date.year, date.month);
    const bool held = olympiad.cycle > 0 && hasOlympiads(date.year);
    OlympiadCycleDecimal.text = held ? std::to_string(olympiad.cycle) : "";
    OlympiadYearDecimal.text = held ? std::to_string(olympiad.year) : "";
    OlympiadCycleRoman.text = held ? DecimalToRoman(olympiad.cycle, "", " BC") : "";
    OlympiadYearRoman.text = held ? DecimalToRoman(olympiad.year, "", " BC") : "";
    Label* const labels[] = {&OlympiadLabel, &OlympiadCycleDecimal, &OlympiadYearDecimal, &OlympiadCycleRoman,
                             &OlympiadYearRoman};
    for (Label* label : labels) label->enabled = held;
}

void JulianWindow::PostEvents(const RomanDate& date) {
    constexpr std::string_view names[] = {"", "Kalends", "Nones", "Ides"};
    std::string holidays;
    if (date.count == 1) {
        day_events::Add("Roman", RomanEventString(date), holidays, names[date.event], TheRomanDate);
    }
}

std::string JulianWindow::CalendarName() { return julian::Revise ? "Revised Julian" : "Julian"; }

FixedDay JulianWindow::ToFixed(std::int32_t year, std::int32_t month, std::int32_t day) {
    return FixedOf(year, month, day, true);
}

FixedDay JulianWindow::ToFixedAlt(std::int32_t year, std::int32_t month, std::int32_t day) {
    return FixedOf(year, month, day, false);
}

GridDate JulianWindow::GetDate() { return GridDateOf(true); }
GridDate JulianWindow::GetDateAlt() { return GridDateOf(false); }

void JulianWindow::SetMonthNames(ChoiceList& list, std::int32_t) {
    list.items.insert(list.items.end(), std::begin(GregorianMonthNames), std::end(GregorianMonthNames));
    list.selected = DisplayedJulianDate(true).month - 1;
}

void JulianWindow::SetMonthNamesAlt(ChoiceList& list, std::int32_t) {
    constexpr std::ptrdiff_t months = 12;
    list.items.insert(list.items.end(), std::begin(RomanMonthNames), std::begin(RomanMonthNames) + months);
    list.selected = DisplayedJulianDate(false).month - 1;
}

void JulianWindow::SetDayNames(DayNames& longNames, DayNames& shortNames) {
    GregorianWindow::SetDayNames(longNames, shortNames);
}

void JulianWindow::SetDayNamesAlt(DayNames& longNames, DayNames& shortNames) {
    for (std::size_t i = 0; i < 7; ++i) {
        longNames[i] = RomanWeekdayNames[i];
        shortNames[i] = RomanWeekdayNames[i].substr(0, 3);
    }
}

void JulianWindow::SetAUC() {
    UseAUC.tooltip =
        "AUC = Ab Urbe Condita (years since the founding of Rome in " + std::to_string(-julian::YRF) + " BC)";
}

void JulianWindow::SetOSY() {
    const std::int32_t start = OlympiadStart(DisplayedJulianDate(true).year);
    const std::string label = std::string(start > 0 ? "Modern" : "Ancient") + " Olympiad ";
    OlympiadLabel.tooltip =
        label + "(cycle 1, year 1 = July 1st, " + std::to_string(std::abs(start)) + (start > 0 ? " AD)" : " BC)");
    OlympiadCycleDecimal.tooltip = label + "Cycle#";
    OlympiadCycleRoman.tooltip = label + "Cycle# (Roman numerals)";
}

void JulianWindow::Revise_Click() {
    julian::Revise = !julian::Revise;
    UpdateStatus();
}

void JulianWindow::UseAUC_Click() {
    julian::UseAUC = !julian::UseAUC;
    UpdateStatus();
}

void JulianWindow::Info_Click() { frame_.AskCopyToClipboard(Information(), CalendarTitle()); }

void JulianWindow::JYRF_Click() { StoreYearBC("Year Rome Founded", RomeFoundedChoice, julian::YRF); }

void JulianWindow::OSY_Click() {
    StoreYearBC("Olympiad Start Year (Julian July 1st)", OlympiadStartChoice, julian::OSY);
}

void JulianWindow::CopyPair(const Label& cycle, const Label& year) { frame_.SetClipboardText(CopyOfPair(cycle, year)); }

void JulianWindow::PickBackgroundColor() { form.PickColor(true); }
void JulianWindow::PickForegroundColor() { form.PickColor(false); }

void JulianWindow::SetColor(Color color, bool isBackground) {
    TheJulianDate.colors->Part(isBackground) = color;
    TheRomanDate.colors->Part(isBackground) = Shade(color, romanShade);
}

}  // namespace horvanta
