#include "app/horvanta.h"

#include "app/all_options.h"
#include "app/stored_settings.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"

#include <ranges>

namespace horvanta {
namespace {

/// Empty while a start has not finished.
void WriteLaunchMark(std::string_view text) {
    CurrentDesktop->Settings().Write(ProgramSettings, "Prog", "Launch", text);
}

bool isNumberStored(std::string_view key) {
    const auto text = CurrentDesktop->Settings().Read(ProgramSettings, "Item", key);
    return text && ParseLeadingNumber(*text);
}

void EnableNeeding(const WindowRow& row) {
    for (MenuItem* item : row.needing) item->enabled = row.form.visible;
}

}  // namespace

Horvanta::Horvanta() {
    ResetAllOptions();
    BusyCount = 0;
    UpdateDepth = 0;
    Quitting = false;
    UpdatePass = [this] { RunUpdatePass(); };
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
    frame.AlwaysToday.Shows(stepping::options.AlwaysToday);
    frame.AlwaysToday.Click = [] { stepping::options.AlwaysToday = !stepping::options.AlwaysToday; };
    userLocales.Choose = [this](std::size_t slot, const LocaleRecord& place) {
        places.SetUserLocale(slot, place);
        places.UserLoc_Click(slot);
    };
    userLocales.Forget = [this](std::size_t slot) { places.ForgetUserLocale(slot); };
    frame.Arrange.Click = [] { CurrentDesktop->ArrangeWindows(); };
    for (WindowRow& row : windows) {
        if (row.isThere()) HangWindow(row);
    }
    HangTimeWindow();
    HangWebPages();
}

/// A page without an address has no item.
void Horvanta::HangWebPages() {
    for (std::size_t i = 0; i < WebPages.size(); ++i) {
        const std::string address(WebPages[i].address);
        if (!address.empty()) frame.WebPageItem[i + 1].Click = [address] { CurrentDesktop->OpenWithShell(address); };
    }
}

/// Its item can only raise it: it is never hidden.
void Horvanta::HangTimeWindow() {
    frame.ShowTime.Shows(timeAstro.form.visible);
    frame.ShowTime.Click = [this] { timeAstro.TakeFocus(); };
}

/// The item of a window is ticked while the window is shown.
void Horvanta::HangWindow(WindowRow& row) {
    if (row.item) {
        if (!row.form.modal) row.item->Shows(row.form.visible);
        row.item->Click = [this, &row] { row.form.modal ? Raise(row) : ShowOrHide(row); };
        row.form.Close = [this, &row] { Hide(row); };
    }
    row.form.OpenMenu = [this, &row] { frame.OpenMenu(row.form, row.colors); };
    if (row.colors) frame.OfferColors(*row.colors);
    if (!row.form.KeyDown) row.form.KeyDown = frame.Form_KeyDown;
    for (const GridCalendar& calendar : row.calendars) {
        monthly.Offer(calendar);
        dateBox.Offer(calendar);
    }
}

void Horvanta::Start() {
    {
        const BusyHold hold;
        LoadWindows();
        MarkLaunch();
        TakeSettings();
        ChooseMoment();
    }
    UpdateStatus();
    timeAstro.TakeFocus();
    WriteLaunchMark("OK");
    FlushSettings();
    isStarted_ = true;
}

/// Before the mark is set: making them takes most of a start, and what the settings hold can't hinder it.
void Horvanta::LoadWindows() {
    CurrentDesktop->LoadFrame(frame);
    for (Form* form : Forms()) CurrentDesktop->LoadForm(*form);
    for (Form* form : Dialogs()) CurrentDesktop->LoadForm(*form);
}

void Horvanta::MarkLaunch() {
    if (CurrentDesktop->Settings().Read(ProgramSettings, "Prog", "Launch") == "") DeleteAllPrefs();
    WriteLaunchMark("");
    FlushSettings();
}

void Horvanta::TakeSettings() {
    LoadFramePrefs(frame);
    LoadPrefs(*this);
    for (WindowRow& row : windows) {
        if (row.open == OpenAt::EveryStart) row.form.visible = true;
        EnableNeeding(row);
    }
    PlaceWindows();
    options.SetLunationCaptions();
    timeAstro.SetYearStepCaptions();
    timeAstro.fields.SetToggles();
    monthly.InitCalendars();
    places.ChooseFirst();
    CurrentDesktop->LetEventsRun();
}

/// A window that no one has moved stands by another one, which may stand by a third.
void Horvanta::PlaceWindows() {
    constexpr int longestChain = 4;
    for (int round = 0; round < longestChain; ++round) {
        for (const WindowRow& row : windows) {
            if (row.form.positioned || !row.standardPosition) continue;
            const Position standard = row.standardPosition();
            row.form.position.left = standard.left;
            row.form.position.top = standard.top;
        }
    }
}

/// In a first run there is no moment yet, and neither where a damaged line lost it. Where it is there, but the line
/// that tells whether to start with today was lost, it is not given up for that.
void Horvanta::ChooseMoment() {
    const bool hasMoment = isNumberStored("RD");
    const auto wish = CurrentDesktop->Settings().Read(ProgramSettings, timeAstro.form.name, "Chk");
    if (hasMoment && !TruthOf(wish.value_or(""))) stepping::options.AlwaysToday = false;
    if (stepping::options.AlwaysToday || !hasMoment) jumps.MenuJumpToToday_Click();
    if (!isNumberStored("SD")) jumps.SaveThisMoment_Click();
    timeAstro.StepMenu_Click(stepping::options.StepIndex);
}

bool Horvanta::Form_Unload() {
    WritePrefs(*this);
    return CloseWindows();
}

/// What has been written to the settings goes onto the disk before.
bool Horvanta::CloseWindows() {
    const std::string failure = FlushSettings();
    if (!failure.empty() && !CurrentDesktop->AskYesNo(failure + "\n\nQuit all the same?", "Quit")) return false;
    Quitting = true;
    for (const WindowRow& row : windows | std::views::reverse) row.form.visible = false;
    return true;
}

void Horvanta::CloseAndEnd() {
    if (CloseWindows()) CurrentDesktop->End();
}

void Horvanta::SaveSession() {
    if (isStarted_) SavePrefs(*this);
}

void Horvanta::EndSession() {
    SaveSession();
    Quitting = true;
    CurrentDesktop->End();
}

void Horvanta::SavePreferences_Click() {
    const std::string failure = SavePrefs(*this);
    if (failure.empty()) {
        CurrentDesktop->ShowStatus("The settings are saved.");
    } else {
        CurrentDesktop->Tell(failure, "Save Preferences");
    }
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
    if (Form_Unload()) CurrentDesktop->End();
}

void Horvanta::QuitWithoutSavePrefs_Click() { CurrentDesktop->End(); }

void Horvanta::ResetPrefsAndQuit_Click() {
    if (userLocales.isDirty() == YesNoCancel::Cancel) return;
    Save(places.UserRows());
    DeleteAllPrefs();
    CloseAndEnd();
}

void Horvanta::ResetColorsAndQuit_Click() {
    if (userLocales.isDirty() == YesNoCancel::Cancel) return;
    WritePrefs(*this);
    DeleteColorPrefs();
    CloseAndEnd();
}

void Horvanta::RunUpdatePass() {
    day_events::Clear();
    for (const auto stage : {&WindowRow::update, &WindowRow::finish}) {
        for (const WindowRow& row : windows) {
            if (row.form.visible && row.*stage) (row.*stage)();
        }
    }
    jumps.SetAgainCaption();
    reports.Update();
    history.Note();
}

/// The user chose its item: a window that he does not see whole, or that does not hear his keys, is not to be hidden.
void Horvanta::ShowOrHide(WindowRow& row) {
    if (row.form.visible && row.form.inFront) {
        Hide(row);
    } else {
        Raise(row);
    }
}

void Horvanta::Raise(WindowRow& row) {
    if (!row.form.visible) {
        if (row.mayToggle && !row.mayToggle()) return;
        if (row.prepare) row.prepare();
        row.form.visible = true;
        EnableNeeding(row);
        UpdateStatus();
    }
    row.first.TakeFocus();
}

/// The focus goes to the time window.
void Horvanta::Hide(WindowRow& row) {
    if (row.mayToggle && !row.mayToggle()) return;
    row.form.visible = false;
    EnableNeeding(row);
    UpdateStatus();
    timeAstro.TakeFocus();
}

std::vector<Form*> Horvanta::Forms() const {
    std::vector<Form*> forms;
    for (const WindowRow& row : windows) {
        if (row.isThere() && !row.form.modal) forms.push_back(&row.form);
    }
    return forms;
}

}  // namespace horvanta
