#pragma once

#include "core/controls.h"
#include "core/moment.h"
#include "core/numerics.h"
#include "core/preferences.h"
#include "core/shell.h"

#include <cstdint>
#include <string>

namespace horvanta {

namespace time_fields {
/// What the fields show.
struct Options {
    bool ShowsDawnDusk = true;            ///< The bar of the day's sunrise and sunset.
    bool ShowsRAYDate = false;            ///< The rotation-adjusted date in place of the mean orbital one.
    bool ShowsModifiedJulianDay = false;  ///< In place of the Julian Day.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace time_fields

/// The local times of a moment in a line: of its own scale, of the zone, mean and apparent.
std::string LocalTimes(Moment universal);

/// The part of the time window that shows the Sun's day and the astronomy of the moment.
class TimeFields {
  public:
    /// On the form of the time window, whose `mainField` has its colours.
    TimeFields(Form& owner, HorvantaMDI& frame, const Control& mainField);

    /// The choices of the fields.
    Settings StoredRows();

    /// Fills the bar for the day of the moment.
    void ShowDay();

    /// Fills the astronomy fields and posts the solar events of the day.
    void ShowAstronomy();

    /// Shows the place in the window's caption.
    void UpdateLocaleCaption();

    /// Tells with which depression the Sun rises and sets; to be called when the place or the use of its elevation
    /// has changed.
    void SetSunBelowHorizon();

    /// Lets the user choose daylight saving time where the place keeps it, and its elevation where it has one.
    void SetDSTinfo();

    /// Shows whether daylight saving time applies to the moment.
    void SetDSTcolour();

    /// Shows or hides the bar, and the words of the toggles, as the options have them.
    void SetToggles();

    // Commands of the controls.
    void UseDeltaT_Click();
    void UseElevation_Click();
    void AdjustDST_Click();
    void ShowDawnDusk_Click();
    void JD_MJD_Toggle_Click();
    void Orbital_RAY_Toggle_Click();

    // clang-format off
    Form& form;
    StatusBar DawnDuskLegends{form, "DawnDuskLegends", Tip("What the times below are"), Widest("Prior Sunset")};
    StatusBar DawnDusk{form, "DawnDusk", Tip("Sunrise and sunset of the displayed day"), Widest("Prior Sunset")};
    DayStrip DayLight{form, "DayLight", Named("Light of the day")};
    Label ClockLabel{form, "ClockLabel", Tip("Whose time the bar and the strip show"), Widest("Clock time, UT+00:00:00"), Named("Bar and strip")};
    Button JD_MJD_Toggle{form, "JD_MJD_Toggle", Widest("Mod Jul Day")};
    Label JD_MJD{form, "JD_MJD", Widest("-1721425.12346")};
    Button Orbital_RAY_Toggle{form, "Orbital_RAY_Toggle", Widest("Orbital Date")};
    Label Orbital_RAY_Date{form, "Orbital_RAY_Date", Widest("-6900.123457")};
    Label SunDecLabel{form, "SunDecLabel", Caption("Declination")};
    Label SunDeclination{form, "SunDeclination", Tip("Solar declination"), Widest("23.4° N")};
    Label SunLongLabel{form, "SunLongLabel", Caption("Solar Longitude")};
    Label SunLong{form, "SunLong", Tip("Solar longitude"), Widest("360.0°")};
    CheckBox UseDeltaT{form, "UseDeltaT", Caption("DeltaT"), Tip("Take account of the slowing of the Earth's rotation")};
    Label DeltaTdisp{form, "DeltaTdisp", Tip("Delta T = Terrestrial Time – Universal Time"), Widest("-195700.5 s")};
    Label EoT_Label{form, "EoT_Label", Caption("Equation of Time")};
    Label EoT{form, "EoT", Tip("Equation of Time = apparent – mean solar time"), Widest("+700m 59.9s")};
    CheckBox UseElevation{form, "UseElevation", Caption("Elevation"), Tip("Let the elevation lower the horizon")};
    CheckBox AdjustDST{form, "AdjustDST", Caption("Enable Daylight Saving Time")};
    CheckBox ShowDawnDusk{form, "ShowDawnDusk", Caption("Display Sunrise, Sunset ...")};
    // clang-format on

  private:
    void MakePanels();
    void HangHandlers();
    void HangCopies();
    void ShowLight(FixedDay day, bool noHorizon);
    void Copy(const Label& field, const std::string& value);
    void ShowYears(Moment universal);
    void PostSolarEvents(Moment universal);
    void PostClockChange(FixedDay day);
    void AstronomyEvent(Moment universal, const std::string& text);

    HorvantaMDI& frame_;
    const Control& mainField_;

    /// A moment as it was when Delta T was last switched off, in both scales.
    struct Switched {
        Moment& moment;
        Moment universal = NeverMoment;
        Moment terrestrial = NeverMoment;
    };
    Switched switchedOff_[2] = {{DisplayedMoment}, {SavedMoment}};
};

}  // namespace horvanta
