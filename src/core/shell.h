#pragma once

#include "core/controls.h"
#include "core/web_pages.h"
#include "core/window_colors.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

/// The frame of the program as data: its menu tree, the clipboard line, and the few acts of the time window that
/// other windows call. The owners of the commands hang their handlers here.
namespace horvanta {

/// How the frame stands on the screen; the numbers are those of the settings.
enum FrameState { FrameNormal = 0, FrameMinimized = 1, FrameMaximized = 2 };

// clang-format off
/// What the menus of previous and next events search for.
enum class MenuEvent {
    None, LunarEvent, NewMoon, FirstNewCrescent, FirstQuarterMoon, FullMoon, LastQuarterMoon, LastOldCrescent,
    VedicTithi, MeanNewMoon, MeanPerigee, MeanApogee, Yerm, YermEra, LeapWeek, QuaNewYearMoment, QuaLeapCycle,
    RotationAdjustedNewYear, MeanOrbitalNewYear, BesselianNewYear, SolarEvent, NorthwardEquinox, NorthSolstice,
    SouthwardEquinox, SouthSolstice, MeanPerihelion, MeanAphelion, ChineseNewYear, Easter, UniformEaster,
    OrthodoxEaster, FixedEaster, Passover, RoshHashanah, MoladMoment,
};
// clang-format on

struct EventItem {
    MenuEvent event;
    std::string_view caption;
};

/// The items of those menus in their order; no event is a line.
inline constexpr EventItem EventItems[] = {
    {MenuEvent::LunarEvent, "Lunar Event"},
    {MenuEvent::NewMoon, "&New Moon"},
    {MenuEvent::FirstNewCrescent, "First New Crescent"},
    {MenuEvent::FirstQuarterMoon, "&First Quarter Moon"},
    {MenuEvent::FullMoon, "&Full Moon"},
    {MenuEvent::LastQuarterMoon, "&Last Quarter Moon"},
    {MenuEvent::LastOldCrescent, "Last Old Crescent"},
    {MenuEvent::VedicTithi, "&Vedic Tithi"},
    {MenuEvent::None, "-"},
    {MenuEvent::MeanNewMoon, "&Mean New Moon"},
    {MenuEvent::MeanPerigee, "Mean &Perigee"},
    {MenuEvent::MeanApogee, "Mean &Apogee"},
    {MenuEvent::Yerm, "Yerm"},
    {MenuEvent::YermEra, "Yerm Era"},
    {MenuEvent::None, "-"},
    {MenuEvent::LeapWeek, "&Leap Week"},
    {MenuEvent::QuaNewYearMoment, "Qua New Year Moment"},
    {MenuEvent::QuaLeapCycle, "Qua Leap Cycle"},
    {MenuEvent::RotationAdjustedNewYear, "Rotation-Adjusted New Year"},
    {MenuEvent::MeanOrbitalNewYear, "&Mean Orbital New Year"},
    {MenuEvent::BesselianNewYear, "&Besselian New Year"},
    {MenuEvent::None, "-"},
    {MenuEvent::SolarEvent, "&Solar Event"},
    {MenuEvent::NorthwardEquinox, "Northward Equinox"},
    {MenuEvent::NorthSolstice, "North Solstice"},
    {MenuEvent::SouthwardEquinox, "Southward Equinox"},
    {MenuEvent::SouthSolstice, "South Solstice"},
    {MenuEvent::MeanPerihelion, "Mean Peri&helion"},
    {MenuEvent::MeanAphelion, "Mean &Aphelion"},
    {MenuEvent::None, "-"},
    {MenuEvent::ChineseNewYear, "&Chinese New Year"},
    {MenuEvent::Easter, "&Easter"},
    {MenuEvent::UniformEaster, "&Uniform Easter"},
    {MenuEvent::OrthodoxEaster, "&Orthodox Easter"},
    {MenuEvent::FixedEaster, "Fi&xed Easter"},
    {MenuEvent::Passover, "&Passover"},
    {MenuEvent::RoshHashanah, "&Rosh Hashanah"},
    {MenuEvent::MoladMoment, "Molad Moment"},
};

/// Their first captions, as the menus are made with.
inline constexpr auto EventCaptions = [] {
    std::array<std::string_view, std::size(EventItems)> captions;
    std::ranges::transform(EventItems, captions.begin(), &EventItem::caption);
    return captions;
}();

using EventMenu = MenuArray<std::size(EventItems)>;

/// The item of an event.
MenuItem& ItemOf(EventMenu& menu, MenuEvent event);

class HorvantaMDI {
  public:
    /// Puts a text on the clipboard and shows it in the clipboard line; an empty text clears both.
    void SetClipboardText(const std::string& clip);

    /// Copies what a control shows, behind its tooltip.
    void CopyToClipboard(const Control& control);

    /// Makes a click on a label copy what it shows.
    void CopyOnClick(Label& label);

    /// Makes a click on a control copy its value, with all its digits, as `click` does.
    void CopyOnClick(Control& control, const std::function<void()>& click);

    /// Gives a control whose click copies a menu that does so too.
    void OfferCopy(Control& control);

    /// Opens the menu of a window: it copies any of the values that the window shows, or all, and asks for colours
    /// where the window has some of its own.
    void OpenMenu(const Form& form, WindowColors* colors);

    /// Shows a text in a box that offers to copy it. The copy has the title behind the text.
    void AskCopyToClipboard(const std::string& message, const std::string& title);

    /// Lets the user change the colours of a window by its main date: a double click asks for the background, a right
    /// click opens a menu with both colours.
    void OfferColors(WindowColors& colors);

    /// Lets the user choose one of the colours of a window, starting from the present one. That one is kept for
    /// `UndoLastColorChange_Click`.
    void PickBackgroundColor(WindowColors& colors) { PickColor(colors, true); }
    void PickForegroundColor(WindowColors& colors) { PickColor(colors, false); }

    /// Gives the window of the last change its old colour; done again, the new one.
    void UndoLastColorChange_Click();

    // The same for the window that has the focus, from the menu.
    void PickBackColor_Click() { PickColorOfActive(true); }
    void PickForeColor_Click() { PickColorOfActive(false); }

    /// Lets colours be chosen from the menu, or not.
    void ColorPicking(bool enable);

    const std::string name = "HorvantaMDI";
    const std::string text = "Horvanta";
    FrameState state = FrameMaximized;
    Form* activeForm = nullptr;  ///< The window that has the focus, as the desktop reports it.
    Position position;  ///< Of the frame that is neither minimised nor maximised; no size until the desktop gives one.

    // Acts of the time window.
    std::function<bool(int code, int shift)> Form_KeyDown;
    std::function<void(double steps, double size)> DayUpDown;
    std::function<void()> TakeFocus;
    std::function<void(const std::string& clip)> ShowClipboardText;

    std::function<void()> Close;  ///< The user closed the frame.

    // clang-format off
    MenuItem menuBar;
    MenuItem FileMenu{menuBar, "FileMenu", "&File"};
      MenuItem SavePreferences{FileMenu, "SavePreferences", "Save &Preferences", "Ctrl+S"};
      MenuItem SaveThisMoment{FileMenu, "SaveThisMoment", "Save This &Moment"};
      MenuItem JumpTo{FileMenu, "JumpTo", "&Jump To..."};
        MenuItem JumpToDate{JumpTo, "JumpToDate", "&Date...", "Ctrl+G"};
        MenuItem JumpToSaved{JumpTo, "JumpToSaved", "&Saved Moment"};
        MenuItem MenuJumpToToday{JumpTo, "MenuJumpToToday", "&Today (at midnight)"};
        MenuItem MenuJumpToNow{JumpTo, "MenuJumpToNow", "&Now (date and time)"};
        MenuItem FixedDayEpoch{JumpTo, "FixedDayEpoch", "&Fixed Day Number Epoch"};
        MenuItem LunationAtEpoch{JumpTo, "LunationAtEpoch", "Lunation Epoch"};
        MenuItem ArbitraryLunation{JumpTo, "ArbitraryLunation", "Lunation #..."};
        MenuItem JumpBy{JumpTo, "JumpBy", "Jump By..."};
      MenuItem QuitSubMenu{FileMenu, "QuitSubMenu", "&Quit"};
        MenuItem MenuExit{QuitSubMenu, "MenuExit", "and &Save Preferences", "Ctrl+Q"};
        MenuItem QuitWithoutSavePrefs{QuitSubMenu, "QuitWithoutSavePrefs", "&without Saving Preferences"};
        MenuItem ResetPrefsAndQuit{QuitSubMenu, "ResetPrefsAndQuit", "but &Reset All Preferences"};
        MenuItem ResetColorsAndQuit{QuitSubMenu, "ResetColorsAndQuit", "but Reset All &Colors"};

    MenuItem UndoMenu{menuBar, "UndoMenu", "&Undo"};
      MenuItem UndoLastColorChange{UndoMenu, "UndoLastColorChange", "Undo Last &Color Change"};
      MenuItem Back{UndoMenu, "Back", "&Back", "Alt+Left"};
      MenuItem Forward{UndoMenu, "Forward", "&Forward", "Alt+Right"};

    MenuItem LocaleMenu{menuBar, "LocaleMenu", "&Locale"};
      MenuItem UDLs{LocaleMenu, "UDLs", "User-Defined Locales..."};
        MenuArray<30> UserLoc{UDLs, "UserLoc", {}};  // the captions are those of the places
      MenuItem LocaleSep{LocaleMenu, "LocaleSep", "-"};
      MenuItem Presets[25] = {
        {LocaleMenu, "SetAlexandria"},    {LocaleMenu, "SetApple"},       {LocaleMenu, "SetBabylon"},
        {LocaleMenu, "SetBeijing"},       {LocaleMenu, "SetBogota"},      {LocaleMenu, "SetCFSalert"},
        {LocaleMenu, "SetCopenhagen"},    {LocaleMenu, "SetFarmHill"},    {LocaleMenu, "SetGreenwich"},
        {LocaleMenu, "SetJerusalem"},     {LocaleMenu, "SetNileEuphrates"}, {LocaleMenu, "SetLima"},
        {LocaleMenu, "SetLimassol"},      {LocaleMenu, "SetMecca"},       {LocaleMenu, "SetMelbourne"},
        {LocaleMenu, "SetMontreal"},      {LocaleMenu, "SetParis"},       {LocaleMenu, "SetReykjavik"},
        {LocaleMenu, "SetTehran"},        {LocaleMenu, "SetZeus"},        {LocaleMenu, "SetTimesSquare"},
        {LocaleMenu, "SetUrbana"},        {LocaleMenu, "SetVatican"},     {LocaleMenu, "SetYellowknife"},
        {LocaleMenu, "SetZeroMilestone"}};

    MenuItem IncrementTimeScale{menuBar, "IncrementTimeScale", "&Step"};
      MenuItem JumpAgain{IncrementTimeScale, "JumpAgain", "Again"};
      MenuItem StepGap{IncrementTimeScale, "StepGap", "-"};
      MenuArray<6> StepMenu{IncrementTimeScale, "StepMenu", {
        "&Days", "&Weeks", "&Lunar Cycles", "Solar &Years", "Solar Decades", "Solar &Centuries"}};

    MenuItem GoToPrevious{menuBar, "GoToPrevious", "&Previous"};
      EventMenu PrevMenu{GoToPrevious, "PrevMenu", EventCaptions};
    MenuItem GoToNext{menuBar, "GoToNext", "&Next"};
      EventMenu NextMenu{GoToNext, "NextMenu", EventCaptions};

    MenuItem ReportS{menuBar, "ReportS", "&Reports"};
      MenuItem HebrewReports{ReportS, "HebrewReports", "&Hebrew"};
        MenuItem ReportOmer{HebrewReports, "ReportOmer", "&Omer Count"};
        MenuItem ListPostpone{HebrewReports, "ListPostpone", "&Postponements"};
          MenuItem ListPostpone19years{ListPostpone, "ListPostpone19years", "for 19 years"};
          MenuItem ListPostpone57years{ListPostpone, "ListPostpone57years", "for 3 x 19 = 57 years"};
          MenuItem ListPostpone100years{ListPostpone, "ListPostpone100years", "for 100 years"};
          MenuItem ListPostpone500years{ListPostpone, "ListPostpone500years", "for 500 years"};
          MenuItem ListPostpone1000years{ListPostpone, "ListPostpone1000years", "for 1000 years"};
        MenuItem ListPossibleWeekdayStats{HebrewReports, "ListPossibleWeekdayStats", "&Weekday Frequencies"};

    MenuItem OptionsMenu{menuBar, "OptionsMenu", "&Options"};
      MenuItem AlwaysToday{OptionsMenu, "AlwaysToday", "&Always Start With Today"};
      MenuItem SetFixedDay{OptionsMenu, "SetFixedDay", "&Fixed Day Numbering..."};
        MenuArray<12> SetEpochOptMenu{SetFixedDay, "SetEpochOptMenu", {
          "1 = &Displayed date", "&Gregorian epoch (rata die)", "match &Windows OS (61 = Mar 1, 1900)",
          "January 1, 2001 (start 3rd millennium)", "match &Pick OS date (Jan 1, 1968)", "match &Julian Day Number (JDN)",
          "match &Modified Julian Day (MJD)", "match &Truncated Julian Day (TJD)", "&COBOL epoch (ANSI date)",
          "Persian epoch", "Chinese epoch", "&Hebrew epoch"}};
      MenuItem LunationOptionMenu{OptionsMenu, "LunationOptionMenu", "&Lunation Numbering..."};
        MenuArray<6> LunationOptMenu{LunationOptionMenu, "LunationOptMenu", {
          "&J2000", "&Brown", "&Islamic", "RD &Nth", "&Goldstine", "&Hebrew"}};
      MenuItem YearStep{OptionsMenu, "YearStep", "&Year Steps by..."};
        MenuItem StepBySolarYear{YearStep, "StepBySolarYear", "&Solar Year (same solar longitude)"};
        MenuItem StepByOrbitalYear{YearStep, "StepByOrbitalYear", "Mean &Orbital Year"};
      MenuItem LPoption{OptionsMenu, "LPoption", "&Lunar Phase Format..."};
        MenuItem LP360{LPoption, "LP360", "&0° to 360°"};
        MenuItem LP180{LPoption, "LP180", "&-180° to +180°"};
      MenuItem CandlesOption{OptionsMenu, "CandlesOption", "&Candles Before Sunset"};
        MenuItem SetCandles18{CandlesOption, "SetCandles18", "18 minutes (default)"};
        MenuItem SetCandles20{CandlesOption, "SetCandles20", "20 minutes (New York)"};
        MenuItem SetCandles30{CandlesOption, "SetCandles30", "30 minutes (Haifa)"};
        MenuItem SetCandles40{CandlesOption, "SetCandles40", "40 minutes (Vilna, Jerusalem)"};
      MenuItem TempHourFormat{OptionsMenu, "TempHourFormat", "&Temporal Hour Format..."};
        MenuItem SetTempHMM{TempHourFormat, "SetTempHMM", "&Hour and Minutes (H:MM)"};
        MenuItem SetTempHourMMM{TempHourFormat, "SetTempHourMMM", "&Decimal Minutes (MM.M)"};
        MenuItem SetTempHourHHH{TempHourFormat, "SetTempHourHHH", "Decimal Hours (H.HH)"};
      MenuItem MoladTimeFormatMenu{OptionsMenu, "MoladTimeFormatMenu", "Molad Time Format..."};
        MenuItem MoladHoursParts{MoladTimeFormatMenu, "MoladHoursParts", "Hours Parts"};
        MenuItem MoladHoursMinutesParts{MoladTimeFormatMenu, "MoladHoursMinutesParts", "Hours Minutes Parts"};
      MenuItem QuaLeapWeek{OptionsMenu, "QuaLeapWeek", "Quartane &Leap Week..."};
        MenuItem QuaLeapLongDec{QuaLeapWeek, "QuaLeapLongDec", "Append to &December"};
        MenuItem QuaLeapUseZov{QuaLeapWeek, "QuaLeapUseZov", "Stand-Alone at &End-of-Year"};
      MenuItem EvenQuaCycleMenu{OptionsMenu, "EvenQuaCycleMenu", "Even-Length Symmetric Cycles..."};
        MenuItem MidLeapNonLeap{EvenQuaCycleMenu, "MidLeapNonLeap", "Middle:  Leap, Non-Leap"};
        MenuItem MidNonLeapLeap{EvenQuaCycleMenu, "MidNonLeapLeap", "Middle:  Non-Leap, Leap"};
      MenuItem ChooseMapServer{OptionsMenu, "ChooseMapServer", "&Map Server..."};
        MenuArray<8> MapServer{ChooseMapServer, "MapServer", {
          "Map&Quest", "&Google Maps", "&Bing Maps", "Geo&Hack", "&Map24", "MSN World &Atlas", "Gea&Bios",
          "&SINTEF Virtual Globe"}};
      MenuItem UniformEaster{OptionsMenu, "UniformEaster", "&Uniform Easter (WCC 1997)"};
      MenuItem JYRF{OptionsMenu, "JYRF", "&Julian Year Rome Founded..."};
      MenuItem OSY{OptionsMenu, "OSY", "&Olympiad Start Year..."};
      MenuItem ChineseYear1{OptionsMenu, "ChineseYear1", "&Chinese Year 1..."};
        MenuItem CE2637{ChineseYear1, "CE2637", "2637 BC"};
        MenuItem CE2697{ChineseYear1, "CE2697", "2697 BC"};
        MenuItem CE2698{ChineseYear1, "CE2698", "2698 BC"};
      MenuItem OpenYermEras{OptionsMenu, "OpenYermEras", "Open Yerm Era List..."};
      MenuItem RevertYerm52{OptionsMenu, "RevertYerm52", "&Revert to Fixed 52-Yerm Cycle"};

    MenuItem WindowS{menuBar, "WindowS", "&Window"};
      MenuItem ShowTime{WindowS, "ShowTime", "&Time"};
      MenuItem ShowEvents{WindowS, "ShowEvents", "&Events and Holidays"};
      MenuItem GregCal{WindowS, "GregCal", "&Gregorian and ISO Date"};
      MenuItem CalendarMonth{WindowS, "CalendarMonth", "Calendar &Month"};
      MenuItem HebrewCal{WindowS, "HebrewCal", "&Hebrew Date"};
      MenuItem JulianCal{WindowS, "JulianCal", "Julian and &Roman Date"};
      MenuItem LunarWindow{WindowS, "LunarWindow", "&Lunar"};
      MenuItem OrientCal{WindowS, "OrientCal", "&Oriental Lunisolar Date"};
      MenuItem PersianCal{WindowS, "PersianCal", "&Persian Date"};
      MenuItem QuaCal{WindowS, "QuaCal", "&Quartane454 Date"};
      MenuItem SetUserLoc{WindowS, "SetUserLoc", "&User-Defined Locales"};
      MenuItem WorldCal{WindowS, "WorldCal", "&World and 13-Month Date"};
      MenuItem WindowSep{WindowS, "WindowSep", "-"};
      MenuItem PickBackColor{WindowS, "PickBackColor", "Change Background Color"};
      MenuItem PickForeColor{WindowS, "PickForeColor", "Change Foreground Color"};
      MenuItem ArrangeSep{WindowS, "ArrangeSep", "-"};
      MenuItem Arrange{WindowS, "Arrange", "&Arrange"};

    MenuItem Links{menuBar, "Links", "Lin&ks"};
      MenuItem MenuAbout{Links, "MenuAbout", "&About Horvanta...", "F1"};
      MenuItem MapLocale{Links, "MapLocale", "&Map of the Current Locale"};
      MenuArray<WebPages.size()> WebPageItem{Links, "WebPageItem", WebPageCaptions};
    // clang-format on

  private:
    /// A line of a menu that is made when it is asked for.
    struct Command {
        std::string caption;
        std::function<void()> act;
    };

    void Offer(const std::vector<Command>& commands);
    std::vector<Command> ColorCommands(WindowColors& colors);
    void PickColor(WindowColors& colors, bool isBackground);

    /// Beeps where the window has no colours of its own.
    void PickColorOfActive(bool isBackground);

    /// One colour of a window, before it was changed.
    struct {
        Color color;
        WindowColors* colors = nullptr;
        bool isBackground = false;
    } undoColor_;
};

}  // namespace horvanta
