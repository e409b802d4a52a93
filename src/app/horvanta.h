#pragma once

#include "app/jumps.h"
#include "app/options.h"
#include "app/places.h"
#include "app/time_astro.h"
#include "calendars/gregorian_window.h"
#include "calendars/julian_window.h"
#include "calendars/persian_window.h"
#include "calendars/quartane_window.h"
#include "calendars/world_window.h"
#include "core/shell.h"
#include "locale/user_locales_window.h"
#include "views/monthly_window.h"

namespace horvanta {

/// The program: the frame, its windows, and how they start and end. One lives at a time, on `CurrentDesktop`.
class Horvanta {
  public:
    Horvanta();
    ~Horvanta();
    Horvanta(const Horvanta&) = delete;
    Horvanta& operator=(const Horvanta&) = delete;

    /// Loads the windows and the settings and draws for the first time. While it runs the settings bear the mark of a
    /// start that did not finish; where the last start left that mark, all settings but the user's own places go.
    void Start();

    /// Saves the settings and closes the windows.
    void Form_Unload();

    /// Saves the settings and goes on.
    void SavePreferences_Click();

    /// Tells about the program.
    void MenuAbout_Click();

    // The ways to end.
    void MenuExit_Click();
    void QuitWithoutSavePrefs_Click();
    void ResetPrefsAndQuit_Click();
    void ResetColorsAndQuit_Click();

    // Each shows its window, or hides it.
    void GregCal_Click();
    void JulianCal_Click();
    void QuaCal_Click();
    void PersianCal_Click();
    void CalendarMonth_Click();

    /// Shows the window of the user's own places, or hides it unless the user stops that for the sake of changes.
    void SetUserLoc_Click();

    HorvantaMDI frame;
    TimeAstro timeAstro{frame};
    GregorianWindow gregorian{frame};
    JulianWindow julian{frame};
    PersianWindow persian{frame};
    QuartaneWindow quartane{frame};
    UserLocalesWindow userLocales{frame};
    WorldWindow world;
    MonthlyWindow monthly{frame};
    Places places{frame, timeAstro.fields};
    Jumps jumps{frame, timeAstro};
    Options options{frame};

    /// In the order in which they are loaded.
    Form* const forms[8] = {&timeAstro.form, &gregorian.form, &quartane.form,    &monthly.form,
                            &julian.form,    &persian.form,   &userLocales.form, &world.form};

  private:
    void HangHandlers();
    void HangWindow(MenuItem& item, Form& form, void (Horvanta::*command)());
    void OfferCalendars();
    void MarkLaunch();
    void LoadWindows();
    void ChooseMoment();
    void ShowOrHide(Form& form, Control& first);
};

}  // namespace horvanta
