#pragma once

#include "app/history.h"
#include "app/jumps.h"
#include "app/options.h"
#include "app/places.h"
#include "app/report_menu.h"
#include "app/windows.h"
#include "core/shell.h"
#include "views/date_box.h"
#include "views/events_window.h"
#include "views/gregorian_window.h"
#include "views/hebrew_window.h"
#include "views/julian_window.h"
#include "views/lunar_window.h"
#include "views/monthly_window.h"
#include "views/oriental_window.h"
#include "views/persian_window.h"
#include "views/quartane_window.h"
#include "views/time_astro.h"
#include "views/user_locales_window.h"
#include "views/world_window.h"

#include <vector>

namespace horvanta {

/// The program: the frame, its windows, and how they start and end. One lives at a time, on `CurrentDesktop`.
class Horvanta {
  public:
    Horvanta();
    ~Horvanta();
    Horvanta(const Horvanta&) = delete;
    Horvanta& operator=(const Horvanta&) = delete;

    /// Loads the windows and the settings and draws for the first time. While the settings are taken they bear the mark
    /// of a start that did not finish; where the last start left that mark, all but the user's own places go.
    void Start();

    /// Saves the settings and closes the windows. False if the settings could not be saved and the user would rather
    /// stay.
    bool Form_Unload();

    /// Saves everything that is applied, without a question, if the start has finished; the second ends as well.
    void SaveSession();
    void EndSession();

    /// Saves the settings and goes on.
    void SavePreferences_Click();

    /// Tells about the program.
    void MenuAbout_Click();

    // The ways to end.
    void MenuExit_Click();
    void QuitWithoutSavePrefs_Click();
    void ResetPrefsAndQuit_Click();
    void ResetColorsAndQuit_Click();

    HorvantaMDI frame;
    TimeAstro timeAstro{frame};
    GregorianWindow gregorian{frame};
    LunarWindow lunar{frame};
    JulianWindow julian{frame};
    HebrewWindow hebrew{frame};
    PersianWindow persian{frame};
    OrientalWindow oriental{frame};
    QuartaneWindow quartane{frame};
    UserLocalesWindow userLocales{frame};
    WorldWindow world;
    EventsWindow events{frame};
    MonthlyWindow monthly{frame};
    DateBox dateBox{frame};
    Places places{frame, timeAstro.fields};
    Jumps jumps{frame, timeAstro};
    Options options{frame};
    History history{frame, places};
    ReportMenu reports{frame};

    /// In the order in which they are loaded and update: what they post stands in the day's list in this order.
    std::vector<WindowRow> windows{
        timeAstro.Row(),
        Below(gregorian.form, lunar.Row()),
        Below(timeAstro.form, quartane.Row()),
        Beside(timeAstro.form, gregorian.Row()),
        Below(monthly.form, julian.Row()),
        Below(gregorian.form, persian.Row()),
        Beside(gregorian.form, oriental.Row()),
        Below(quartane.form, hebrew.Row()),
        Beside(quartane.form, monthly.Row()),
        Below(monthly.form, events.Row()),
        Beside(monthly.form, userLocales.Row()),
        {world.form, world.Dummy},
        dateBox.Row(),
    };

    /// The same, as far as they are there and keep the user from none.
    std::vector<Form*> Forms() const;

    /// The windows that keep the user from all others while they are shown.
    std::vector<Form*> Dialogs() { return {&dateBox.form, &reports.progress.form, &reports.finished.form}; }

  private:
    void HangHandlers();
    void HangWindow(WindowRow& row);
    void LoadWindows();
    void MarkLaunch();
    void TakeSettings();
    void PlaceWindows();
    void ChooseMoment();
    bool CloseWindows();
    void CloseAndEnd();
    void RunUpdatePass();
    void ShowOrHide(WindowRow& row);
    void Raise(WindowRow& row);
    void Hide(WindowRow& row);
    void HangTimeWindow();
    void HangWebPages();

    bool isStarted_ = false;
};

}  // namespace horvanta
