#include "views/julian_window.h"

#include "calendars/calendar_text.h"
#include "calendars/civil_days.h"
#include "calendars/gregorian.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"

#include <cstdlib>
#include <optional>

namespace horvanta {
namespace {

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

std::string CalendarTitle() { return "The " + JulianCalendarName() + " Calendar"; }

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
    const RuleWords& rule = ruleWords[julian::options.Revise];
    return RuleInformation(rule) + "The displayed date " + std::string(TenseWords()) +
           DifferenceText(JulianGregDiff(DisplayedMoment, true)) + " the Gregorian Calendar.\n" + CalendarTitle() +
           " is used by " + std::string(rule.users) + "some Orthodox churches.";
}

/// Asks for a year BC; nothing if there is none in the range.
std::optional<std::int32_t> AskYearBC(std::string_view title, const julian::YearChoice& choice) {
    const std::string usual = std::to_string(-choice.usual);
    const std::string prompt = "Allowed range " + std::to_string(-choice.earliest) + " to " +
                               std::to_string(-choice.latest) + " BC (" + usual + " recommended)";
    const auto answer = CurrentDesktop->AskText(prompt, title, usual);
    if (!answer) return std::nullopt;
    const auto number = ParseNumber(*answer);
    if (!number) return std::nullopt;
    const double year = -Round(*number);
    if (year >= choice.earliest && year <= choice.latest) return WholeNumber(year);
    Refuse("the year must be " + std::to_string(-choice.earliest) + " to " + std::to_string(-choice.latest) + " BC");
    return std::nullopt;
}

void StoreYearBC(std::string_view title, const julian::YearChoice& choice, std::int32_t& year) {
    const auto answer = AskYearBC(title, choice);
    if (!answer) return;
    year = *answer;
    UpdateStatus();
}

std::string CopyOfPair(const Label& first, const Label& second) {
    return first.tooltip + ", " + second.tooltip + ": " + first.text + ", " + second.text;
}

}  // namespace

JulianWindow::JulianWindow(HorvantaMDI& frame) : frame_(frame) {
    SetAUC();
    Revise.Shows(julian::options.Revise);
    UseAUC.Shows(julian::options.UseAUC);
    HangHandlers();
}

WindowRow JulianWindow::Row() {
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.JulianCal,
            .colors = &colors,
            .needing = {&frame_.JYRF, &frame_.OSY, &ItemOf(frame_.PrevMenu, MenuEvent::OrthodoxEaster),
                        &ItemOf(frame_.NextMenu, MenuEvent::OrthodoxEaster)},
            .calendars = {{3, &JulianCalendar, &TheJulianDate, &frame_.JulianCal},
                          {4, &RomanCalendar, &TheRomanDate, &frame_.JulianCal}},
            .settings = StoredRows()};
}

void JulianWindow::HangHandlers() {
    for (Label* label : {&TheJulianDate, &TheRomanDate, &Dominical}) frame_.CopyOnClick(*label);
    for (Label* label : {&OlympiadCycleDecimal, &OlympiadYearDecimal}) {
        frame_.CopyOnClick(*label, [this] { CopyPair(OlympiadCycleDecimal, OlympiadYearDecimal); });
    }
    for (Label* label : {&OlympiadCycleRoman, &OlympiadYearRoman}) {
        frame_.CopyOnClick(*label, [this] { CopyPair(OlympiadCycleRoman, OlympiadYearRoman); });
    }
    Revise.Click = [this] { Revise_Click(); };
    UseAUC.Click = [this] { UseAUC_Click(); };
    Info.Click = [this] { Info_Click(); };
    frame_.JYRF.Click = [this] { JYRF_Click(); };
    frame_.OSY.Click = [this] { OSY_Click(); };
}

void JulianWindow::Update() {
    ShowCaption();
    SetAUC();
    const JulianDate date = FixedToJulianDate(DisplayedMoment, true);
    TheJulianDate.text = DateInWords(WeekdayNames[DayOfWeek(date.fixed)], GregorianMonthNames[date.month - 1], date.day,
                                     JulianYearString(date.year, false)) +
                         " ";
    Dominical.text = JulianDominicalLetters(date.year);
    ShowOlympiad(date);
    day_events::AddAll(JulianCalendarName(), FixedToJulianShortDate(date.fixed), OrthodoxDays(date), TheJulianDate);
    const RomanDate roman = FixedToRomanDate(DisplayedMoment);
    TheRomanDate.text = RomanDateString(roman);
    day_events::AddAll("Roman", RomanEventString(roman), EventsOf(roman), TheRomanDate);
}

/// The difference is told where years are those of the Gregorian calendar too.
void JulianWindow::ShowCaption() {
    const std::string difference =
        julian::options.UseAUC ? "" : "(" + DifferenceText(JulianGregDiff(DisplayedMoment, true)) + " Gregorian) ";
    form.text = JulianCalendarName() + " " + difference + "and Roman";
    TheJulianDate.tooltip = JulianCalendarName() + " date";
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

Settings JulianWindow::StoredRows() {
    using julian::options;
    const auto yearRow = [](std::string_view key, std::int32_t julian::Options::*year,
                            const julian::YearChoice& choice) {
        return WholeRow("Item", key, options, year, choice.earliest, choice.latest);
    };
    return {
        FlagRow("Item", "UseAUC", options, &julian::Options::UseAUC),
        FlagRow("Item", "Rectify", options, &julian::Options::Revise),
        yearRow("YRF", &julian::Options::YRF, julian::RomeFoundedChoice),
        yearRow("OSY", &julian::Options::OSY, julian::OlympiadStartChoice),
    };
}

void JulianWindow::SetAUC() {
    UseAUC.tooltip =
        "AUC = Ab Urbe Condita (years since the founding of Rome in " + std::to_string(-julian::options.YRF) + " BC)";
}

void JulianWindow::SetOSY() {
    const std::int32_t start = OlympiadStart(FixedToJulianDate(DisplayedMoment, true).year);
    const std::string label = std::string(start > 0 ? "Modern" : "Ancient") + " Olympiad ";
    OlympiadLabel.tooltip =
        label + "(cycle 1, year 1 = July 1st, " + std::to_string(std::abs(start)) + (start > 0 ? " AD)" : " BC)");
    OlympiadCycleDecimal.tooltip = label + "Cycle#";
    OlympiadCycleRoman.tooltip = label + "Cycle# (Roman numerals)";
}

void JulianWindow::Revise_Click() {
    julian::options.Revise = !julian::options.Revise;
    UpdateStatus();
}

void JulianWindow::UseAUC_Click() {
    julian::options.UseAUC = !julian::options.UseAUC;
    UpdateStatus();
}

void JulianWindow::Info_Click() { frame_.AskCopyToClipboard(Information(), CalendarTitle()); }

void JulianWindow::JYRF_Click() { StoreYearBC("Year Rome Founded", julian::RomeFoundedChoice, julian::options.YRF); }

void JulianWindow::OSY_Click() {
    StoreYearBC("Olympiad Start Year (Julian July 1st)", julian::OlympiadStartChoice, julian::options.OSY);
}

void JulianWindow::CopyPair(const Label& cycle, const Label& year) { frame_.SetClipboardText(CopyOfPair(cycle, year)); }

}  // namespace horvanta
