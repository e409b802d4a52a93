#include "views/lunar_window.h"

#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/timescales.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "lunar/lunar_options.h"
#include "lunar/tithi.h"
#include "lunar/yerm.h"
#include "lunar/yerm_eras.h"
#include "views/lunar_events.h"
#include "views/moon_look.h"

#include <cmath>

namespace horvanta {
namespace {

constexpr std::string_view yermInformation =
    "The Yerm Lunar Calendar counts months of 30 and 29 days by turns, in runs called yerms.\n"
    "A yerm begins and ends with a month of 30 days.  It has 17 months (502 days), but every third\n"
    "one has 15 months (443 days), so that three yerms have 49 months in 1447 days.\n"
    "In the fixed calendar a cycle of 52 yerms has 850 months in 25101 days.  In the progressive\n"
    "calendar a list tells eras of various lengths, some of which begin with a yerm 0 of 15 months,\n"
    "so that the mean month keeps pace with that of the Moon.\n"
    "Days run from noon to noon of Universal Time.\n"
    "A date is written as the era or cycle, + yerm, ( month, ( day.";

/// "20.9° N", without a letter at the equator.
std::string NorthSouthText(double degrees, const std::string& size) {
    const char* const side = degrees > 0 ? " N" : degrees < 0 ? " S" : "";
    return size + "°" + side;
}

std::string RoundedNorthSouth(double degrees) {
    const double tenths = Round(degrees, 1);
    return NorthSouthText(tenths, FormatNumber(std::fabs(tenths), "0.0"));
}

std::string ExactNorthSouth(double degrees) { return NorthSouthText(degrees, GeneralText(std::fabs(degrees))); }

std::string EraText(const YermEra& era) {
    return (PresentYermForm().Progressive ? "Era " : "Cycle ") + std::to_string(era.EraNumber) + " = " +
           std::to_string(era.EraYerms) + " yerms";
}

/// What the era of a moment is made of.
std::string EraInformation(Moment universal) {
    const auto era = YermEraLookup(universal, YermKey::Day);
    if (!era) return "The displayed day comes before the first era.";
    return EraText(*era) + ", " + std::to_string(era->EraMonths) + " months (" + std::to_string(era->N30()) +
           " of 30 days, " + std::to_string(era->N29()) + " of 29) in " + std::to_string(era->EraDays) +
           " days\nMean month = " + FormatNumber(era->MeanMonth(), "0.000000") + " days = 29d 12h 44m " +
           FormatNumber((era->MeanMonth() - 29.5 - 44.0 / 1440) * 86400, "0.00") + "s";
}

std::string ListInformation() {
    const YermForm& form = PresentYermForm();
    if (!form.Progressive) return form.EraDescription;
    return "Description from first line of file:\n" + form.EraDescription + "\n" + form.EraFilePath;
}

double ShownLunation(Moment universal) { return MomentToLunation(universal) + ChosenLunationConvention().Offset; }

}  // namespace

LunarWindow::LunarWindow(HorvantaMDI& frame) : frame_(frame) { HangHandlers(); }

WindowRow LunarWindow::Row() {
    return {.form = form,
            .first = Dummy,
            .update = [this] { Update(); },
            .item = &frame_.LunarWindow,
            .open = OpenAt::FirstStart,
            .colors = &colors,
            .calendars = {{8, &YermCalendar, &MoonName, &frame_.LunarWindow}},
            .settings = StoredRows()};
}

/// A number that is shown rounded is copied with all its digits.
void LunarWindow::HangHandlers() {
    for (Label* label : {&MoonName, &Tithi, &YLCdate, &YLCera}) frame_.CopyOnClick(*label);
    struct Number {
        Label& label;
        std::string (*exact)(Moment universal);
    };
    const Number numbers[] = {
        {MoonAge, [](Moment m) { return GeneralText(m - PhaseBefore(m, 0)) + " days"; }},
        {MoonPhase, [](Moment m) { return GeneralText(lunar::Phase(m, lunar::options.SignedPhase)) + "°"; }},
        {MoonLongitude, [](Moment m) { return GeneralText(lunar::Longitude(m)) + "°"; }},
        {MoonLatitude, [](Moment m) { return ExactNorthSouth(lunar::Latitude(m)); }},
        {MoonDeclination, [](Moment m) { return ExactNorthSouth(lunar::Declination(m)); }},
        {MoonDistance, [](Moment m) { return GeneralText(lunar::Distance(m)) + " km"; }},
    };
    for (const auto& [label, exact] : numbers) {
        frame_.CopyOnClick(label, [this, &label = label, exact = exact] {
            frame_.SetClipboardText(label.tooltip + ": " + exact(DisplayedMoment));
        });
    }
    frame_.CopyOnClick(LunationNumber, [this] {
        frame_.SetClipboardText(LunationConvention.text + " " + GeneralText(ShownLunation(DisplayedMoment)));
    });
    InfoYLC.Click = [this] { InfoYLC_Click(); };
    frame_.OpenYermEras.Click = [this] { OpenYermEraList_Click(); };
    frame_.RevertYerm52.Click = [this] { RevertYerm52_Click(); };
}

Settings LunarWindow::StoredRows() {
    return {{"YLC", "YP", "",
             [this](const std::string& path) {
                 storedList_ = path;
                 path.empty() ? RevertToFixedYermCycle() : void(OpenYermEraList(path));
                 return true;
             },
             [this] { return storedList_; }, UserSettings}};
}

void LunarWindow::Update() {
    const Moment universal = DisplayedMoment;
    ShowMoon(universal);
    ShowPhase(universal);
    ShowNumbers(universal);
    for (const auto& [time, text] : LunarEventsOn(universal)) day_events::Add(form.name, time, text, MoonName);
}

void LunarWindow::ShowMoon(Moment universal) {
    Moon.look = LookOfMoon(universal);
    Moon.tooltip = Moon.spoken = MoonInWords(universal);
}

void LunarWindow::ShowPhase(Moment universal) {
    const double phase = lunar::Phase(universal);
    const double tenths = Degrees(Round(phase, 1));
    MoonName.text = PhaseName(phase);
    Tithi.text = VedicTithi(phase);
    MoonAge.text = tenths == 0 ? "New" : DurationString(universal - PhaseBefore(universal, 0), 4);
    MoonPhase.text = PhaseText(phase);
}

void LunarWindow::ShowNumbers(Moment universal) {
    MoonLongitude.text = FormatNumber(Degrees(Round(lunar::Longitude(universal), 1)), "0.0") + "°";
    MoonLatitude.text = RoundedNorthSouth(lunar::Latitude(universal));
    MoonDeclination.text = RoundedNorthSouth(lunar::Declination(universal));
    MoonDistance.text = FormatNumber(lunar::Distance(universal), "0") + " km";
    LunationConvention.text = std::string(ChosenLunationConvention().Name) + " Mean Lunation #";
    LunationNumber.text = FormatNumber(ShownLunation(universal), "0.00");
    YLCdate.text = FixedToYermString(universal);
    const auto era = YermEraLookup(universal, YermKey::Day);
    YLCera.text = era ? EraText(*era) : "–";
}

void LunarWindow::InfoYLC_Click() {
    frame_.AskCopyToClipboard(
        std::string(yermInformation) + "\n\n" + ListInformation() + "\n" + EraInformation(DisplayedMoment),
        "The Yerm Lunar Calendar");
}

void LunarWindow::OpenYermEraList_Click() {
    const auto path = CurrentDesktop->ChooseFile("Open Yerm Era List");
    if (!path) return;
    storedList_ = OpenYermEraList(*path) ? *path : "";
    if (storedList_.empty()) {
        CurrentDesktop->Tell("There is no list of eras in\n" + *path + "\n\nThe fixed 52-yerm cycle is in use.",
                             "Open Yerm Era List");
    }
    UpdateStatus();
}

void LunarWindow::RevertYerm52_Click() {
    storedList_.clear();
    RevertToFixedYermCycle();
    UpdateStatus();
}

}  // namespace horvanta
