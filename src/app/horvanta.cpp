#include "app/horvanta.h"

#include "app/stored_settings.h"
#include "app/update_cycle.h"
#include "core/desktop.h"
#include "core/moment.h"

#include <ranges>

namespace horvanta {

Horvanta::Horvanta() {
    BusyCount = 0;
    UpdateDepth = 0;
    Quitting = false;
    UpdatePass = [this] { RunUpdatePass(*this); };
    HangHandlers();
}

Horvanta::~Horvanta() { UpdatePass = nullptr; }

void Horvanta::HangHandlers() {
    frame.Close = [this] { MenuExit_Click(); };
    frame.SavePreferences.Click = [this] { SavePreferences_Click(); };
    frame.MenuExit.Click = [this] { MenuExit_Click(); };
    frame.QuitWithoutSavePrefs.Click = [this] { QuitWithoutSavePrefs_Click(); };
    frame.ResetPrefsAndQuit.Click = [this] { ResetPrefsAndQuit_Click(); };
    frame.ResetColorsAndQuit.Click = [this] { ResetColorsAndQuit_Click(); };
    frame.UndoLastColorChange.Click = [this] { frame.UndoLastColorChange_Click(); };
    frame.UndoLastColorChange.enabled = false;
    frame.PickBackColor.Click = [this] { frame.PickBackColor_Click(); };
    frame.PickForeColor.Click = [this] { frame.PickForeColor_Click(); };
    frame.MenuAbout.Click = [this] { MenuAbout_Click(); };
    frame.AlwaysToday.Shows(AlwaysToday);
    frame.AlwaysToday.Click = [] { AlwaysToday = !AlwaysToday; };
    HangWindow(frame.GregCal, gregorian.form, &Horvanta::GregCal_Click);
    HangWindow(frame.CalendarMonth, monthly.form, &Horvanta::CalendarMonth_Click);
    OfferCalendars();
    HangWindow(frame.QuaCal, quartane.form, &Horvanta::QuaCal_Click);
    HangWindow(frame.SetUserLoc, userLocales.form, &Horvanta::SetUserLoc_Click);
    userLocales.Choose = [this](std::size_t slot, const LocaleRecord& place) {
        places.SetUserLocale(slot, place);
        places.UserLoc_Click(slot);
    };
    HangWindow(frame.PersianCal, persian.form, &Horvanta::PersianCal_Click);
    HangWindow(frame.JulianCal, julian.form, &Horvanta::JulianCal_Click);
}

/// The item of a window is ticked while the window is shown; closing the window is the same command.
void Horvanta::HangWindow(MenuItem& item, Form& form, void (Horvanta::*command)()) {
    item.Shows(form.visible);
    item.Click = [this, command] { (this->*command)(); };
    form.Close = item.Click;
}

void Horvanta::Start() {
    {
        const BusyHold hold;
        MarkLaunch();
        LoadWindows();
        ChooseMoment();
    }
    UpdateStatus();
    timeAstro.TakeFocus();
    SavePref("Prog", "Launch", "OK");
    CurrentDesktop->Settings().Flush();
}

void Horvanta::MarkLaunch() {
    if (GetTextPref(ProgramSettings, "Prog", "Launch", "OK").empty()) DeleteAllPrefs();
    SavePref("Prog", "Launch", "");
    CurrentDesktop->Settings().Flush();
}

void Horvanta::LoadWindows() {
    LoadFramePrefs(frame);
    CurrentDesktop->LoadFrame(frame);
    SetFixedDayEpoch(GregorianEpoch, 1, "rata die");  // January 1 of year 1 is day 1
    for (Form* form : forms) CurrentDesktop->LoadForm(*form);
    timeAstro.form.visible = true;
    const StoredPlace stored = LoadPrefs(*this);
    quartane.form.visible = true;  // whatever was kept of it
    timeAstro.SetYearStepCaptions();
    timeAstro.fields.SetToggles();
    monthly.InitCalendars();
    places.ChooseFirst(stored.name, stored.userSlot);
    CurrentDesktop->LetEventsRun();
}

void Horvanta::ChooseMoment() {
    const bool firstRun = DisplayedMoment == 0;
    if (AlwaysToday || firstRun) jumps.MenuJumpToToday_Click();
    if (firstRun) jumps.SaveThisMoment_Click();
    timeAstro.StepMenu_Click(firstRun ? 1 : StepIndex);
}

void Horvanta::Form_Unload() {
    SavePrefs(*this);
    Quitting = true;
    for (Form* form : forms | std::views::reverse) form->visible = false;
}

void Horvanta::SavePreferences_Click() {
    SavePrefs(*this);
    timeAstro.TakeFocus();
}

void Horvanta::MenuAbout_Click() {
    CurrentDesktop->Tell("Horvanta " HORVANTA_VERSION
                         "\n\nOne moment, shown in many calendars, with the Sun over any place on Earth.\n\n"
                         "The arithmetic follows published calendar and astronomy algorithms, among them those of "
                         "Reingold and Dershowitz, Meeus, Bretagnon and Simon, and Espenak.\n\n"
                         "Free software under the MIT licence.",
                         "About Horvanta");
}

void Horvanta::MenuExit_Click() {
    if (userLocales.isDirty() == YesNoCancel::Cancel) return;
    Form_Unload();
    CurrentDesktop->End();
}

void Horvanta::QuitWithoutSavePrefs_Click() { CurrentDesktop->End(); }

void Horvanta::ResetPrefsAndQuit_Click() {
    SaveUserPlaces(*this);
    DeleteAllPrefs();
    CurrentDesktop->Settings().Flush();
    CurrentDesktop->End();
}

void Horvanta::ResetColorsAndQuit_Click() {
    Form_Unload();
    DeleteColorPrefs();
    CurrentDesktop->End();
}

/// The places of the list belong to the calendars, whether they are there yet or not.
void Horvanta::OfferCalendars() {
    const auto offer = [this](std::size_t place, const CalendarContract& contract, const Control& mainDate,
                              MenuItem& window) {
        const Form& form = mainDate.form;
        monthly.Offer(place, {&contract, &mainDate, &window, [&form] { return form.visible; }});
    };
    offer(0, quartane::Calendar, quartane.QuartaneDateBox, frame.QuaCal);
    offer(1, GregorianCalendar, gregorian.GregorianDate, frame.GregCal);
    offer(2, ISOCalendar, gregorian.TheISOdate, frame.GregCal);
    offer(3, JulianCalendar, julian.TheJulianDate, frame.JulianCal);
    offer(4, RomanCalendar, julian.TheRomanDate, frame.JulianCal);
    offer(5, PersianCalendar, persian.ThePersianDate, frame.PersianCal);
}

void Horvanta::CalendarMonth_Click() { ShowOrHide(monthly.form, monthly.Days); }

void Horvanta::GregCal_Click() { ShowOrHide(gregorian.form, gregorian.Dummy); }
void Horvanta::PersianCal_Click() { ShowOrHide(persian.form, persian.Dummy); }
void Horvanta::QuaCal_Click() { ShowOrHide(quartane.form, quartane.Dummy); }

void Horvanta::SetUserLoc_Click() {
    if (userLocales.isDirty() != YesNoCancel::Cancel) ShowOrHide(userLocales.form, userLocales.LocName);
}
void Horvanta::JulianCal_Click() { ShowOrHide(julian.form, julian.Dummy); }

/// A window that is shown gets the focus; one that is hidden gives it to the time window.
void Horvanta::ShowOrHide(Form& form, Control& first) {
    form.visible = !form.visible;
    UpdateStatus();
    if (form.visible) {
        first.TakeFocus();
    } else {
        timeAstro.TakeFocus();
    }
}

}  // namespace horvanta
