#include "views/time_fields.h"

#include "astro/local_time.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "astro/year_dates.h"
#include "calendars/gregorian.h"
#include "clock/zone_time.h"
#include "core/day_events.h"
#include "core/desktop.h"
#include "core/locale.h"
#include "core/moment.h"
#include "core/text.h"
#include "locale/locale_text.h"
#include "views/day_strip.h"
#include "views/panel_bars.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <utility>

namespace horvanta {
namespace {

constexpr double minutesPerDay = 1440;
constexpr double secondsPerDay = 86400;
constexpr int deltaTDigits = 5;

// Daylight saving time that is on is red while it applies and blue otherwise.
constexpr Color daylightTint = Color::FromNumber(255);
constexpr Color standardTint = Color::FromNumber(16711680);

constexpr std::string_view legends[] = {"Prior Sunset", "Night Hour", "Midnight", "Night Span", "Sunrise",
                                        "Day Hour",     "Mid-Day",    "Day Span", "Sunset"};
constexpr std::size_t panelsAtHorizon[] = {0, 4, 8};

struct SolarEvent {
    double longitude;
    std::string_view name;
};

constexpr SolarEvent solarEvents[] = {
    {0, "Northward Equinox"}, {90, "North Solstice"},      {180, "Southward Equinox"},
    {270, "South Solstice"},  {280, "Besselian New Year"},
};

/// The ends of the mean orbit: the anomaly in degrees, and its word.
constexpr std::pair<double, const char*> apsides[] = {{0, "Peri"}, {180, "Ap"}};

constexpr std::string_view deltaTWarning =
    "WARNING:  Delta T corrections switched OFF.\n"
    "Astronomy calculations will ignore\n"
    "tidal slowing of the Earth rotation rate.\n"
    "\n"
    "Calculations that are supposed to work in\n"
    "local mean time will use atomic time instead.";

/// What a toggle says: of the form that is shown, and of its value.
struct Words {
    const char* caption;
    const char* tooltip;
    const char* valueTooltip;
};

constexpr Words julianDayWords[] = {
    {"Julian Day", "Julian Day", "Julian Day number since Nov 24, -4713 (Gregorian) at Noon"},
    {"Mod Jul Day", "Modified Julian Day", "Modified Julian Day number since Nov 17, 1858 (Gregorian) at Midnight"},
};

constexpr Words yearWords[] = {
    {"Orbital Date", "Mean Orbital Date", "Mean Orbital Years relative to 1.0 = January 1, 1"},
    {"RAY Date", "Rotation-Adjusted Date", "Rotation-Adjusted Years relative to 1.0 = January 1, 1"},
};

void SetWords(Button& toggle, Label& value, const Words& words) {
    toggle.text = words.caption;
    toggle.tooltip = words.tooltip;
    value.tooltip = words.valueTooltip;
    value.spoken = words.tooltip;
}

std::string SpanText(double days) { return FormatTime(days, 11); }

const char* Hemisphere(double declination) { return declination < 0 ? " S" : " N"; }

double JulianDayShown(Moment universal) {
    return time_fields::options.ShowsModifiedJulianDay ? MomentToMJD(universal) : MomentToJD(universal);
}

double YearsShown(Moment universal) {
    return time_fields::options.ShowsRAYDate ? MomentToRAYDate(universal) : MomentToOrbitalDate(universal);
}

/// "+14m 17.0s"
std::string EquationText(double days) {
    const double tenths = Round(std::fabs(days) * 10 * secondsPerDay);
    const double minutes = Floor(tenths / 600);
    return std::string(days < 0 ? "-" : "+") + GeneralText(minutes) + "m " +
           FormatNumber((tenths - minutes * 600) / 10, "00.0") + "s";
}

/// Seconds, and the same in days and hours: "195700.5s = 2 days and 06:21:40".
std::string LongDeltaTText(double seconds) {
    const double size = std::fabs(seconds);
    const double days = Floor(size / secondsPerDay);
    const std::string dayCount = days == 0 ? "" : GeneralText(days) + (days == 1 ? " day" : " days") + " and ";
    return (seconds < 0 ? "minus " : "") + GeneralText(RoundToDigits(size, deltaTDigits)) + "s = " + dayCount +
           FormatTime(size / secondsPerDay, 0);
}

}  // namespace

std::string LocalTimes(Moment universal) {
    const Moment standardTime = UniversalToStandard(universal);
    const Moment localTime = UniversalToLocal(universal);
    return std::string(DeltaTDisabled ? "Atomic Time " : "Universal Time ") + FormatTime(universal, 0) +
           (isDaylightTime(standardTime) ? ", DST " : ", Standard ") + ClockText(standardTime) + ", Local Mean " +
           FormatTime(localTime, 0) + ", Local Apparent " + FormatTime(LocalToApparent(localTime), 0);
}

TimeFields::TimeFields(Form& owner, HorvantaMDI& frame, const Control& mainField)
    : form(owner), frame_(frame), mainField_(mainField) {
    MakePanels();
    HangHandlers();
}

void TimeFields::MakePanels() {
    for (const std::string_view legend : legends) {
        AddPanel(DawnDuskLegends, DawnDusk, legend, legend);
    }
    HangPanels(DawnDuskLegends, DawnDusk, [this](std::size_t index) {
        const StatusBar::Panel& panel = DawnDusk.panels[index];
        frame_.SetClipboardText(panel.key + ": " + panel.text);
    });
}

void TimeFields::HangHandlers() {
    UseDeltaT.ShowsState([] { return DeltaTDisabled ? Unchecked : Checked; });
    UseElevation.Shows(horizon::options.UseElevation);
    AdjustDST.ShowsState([] { return static_cast<CheckState>(zone_time::options.AdjustDST); });
    ShowDawnDusk.Shows(time_fields::options.ShowsDawnDusk);
    UseDeltaT.Click = [this] { UseDeltaT_Click(); };
    UseElevation.Click = [this] { UseElevation_Click(); };
    AdjustDST.Click = [this] { AdjustDST_Click(); };
    ShowDawnDusk.Click = [this] { ShowDawnDusk_Click(); };
    JD_MJD_Toggle.Click = [this] { JD_MJD_Toggle_Click(); };
    Orbital_RAY_Toggle.Click = [this] { Orbital_RAY_Toggle_Click(); };
    DayLight.TellTime = [](double time) {
        const Moment clock = Floor(DisplayedMoment) + time;
        return SunAtText(StandardToUniversal(DaylightToStandard(clock)));
    };
    HangCopies();
}

void TimeFields::HangCopies() {
    frame_.CopyOnClick(JD_MJD, [this] { Copy(JD_MJD, GeneralText(JulianDayShown(DisplayedMoment))); });
    frame_.CopyOnClick(Orbital_RAY_Date, [this] { Copy(Orbital_RAY_Date, GeneralText(YearsShown(DisplayedMoment))); });
    frame_.CopyOnClick(EoT,
                       [this] { Copy(EoT, SignedStr(EquationOfTime(DisplayedMoment) * minutesPerDay) + " minutes"); });
    frame_.CopyOnClick(SunDeclination, [this] {
        const double declination = SolarDeclination(DisplayedMoment);
        Copy(SunDeclination, GeneralText(std::fabs(declination)) + "°" + Hemisphere(declination));
    });
    frame_.CopyOnClick(SunLong, [this] { Copy(SunLong, GeneralText(SolarLongitude(DisplayedMoment)) + "°"); });
    frame_.CopyOnClick(DeltaTdisp,
                       [this] { frame_.SetClipboardText("Delta T: " + LongDeltaTText(DeltaT(DisplayedMoment, 1))); });
}

/// A value with all its digits, where the field shows those that a person reads.
void TimeFields::Copy(const Label& field, const std::string& value) {
    frame_.SetClipboardText(field.tooltip + ": " + value);
}

/// The three events at the horizon are found once; spans and hours follow from them.
void TimeFields::ShowDay() {
    const FixedDay day = Floor(DisplayedMoment);
    const Moment priorSunset = Sunset(day - 1);
    const Moment sunrise = Sunrise(day);
    const Moment sunset = Sunset(day);
    const double night = MomentDifference(sunrise, priorSunset);
    const double daylight = MomentDifference(sunset, sunrise);
    const std::string texts[] = {ClockText(priorSunset),
                                 TimeOfDayFormat(PartOf(night, 12)),
                                 ClockText(SolarMidnight(day)),
                                 SpanText(night),
                                 ClockText(sunrise),
                                 TimeOfDayFormat(PartOf(daylight, 12)),
                                 ClockText(SolarMidday(day)),
                                 SpanText(daylight),
                                 ClockText(sunset)};
    static_assert(std::size(texts) == std::size(legends));
    for (std::size_t i = 0; i < std::size(texts); ++i) DawnDusk.panels[i].text = texts[i];
    ShowLight(day, isNever(sunrise) || isNever(sunset));
}

/// The strip, and in the tooltips of the panels at the horizon why there is no sunrise or sunset.
void TimeFields::ShowLight(FixedDay day, bool noHorizon) {
    const Moment standardTime = UniversalToStandard(DisplayedMoment);
    const Moment clock = StandardToDaylight(standardTime);
    DayLight.day = DayOfLight(day);
    DayLight.time = clock - Floor(clock);
    DayLight.text = StripSentence(DayLight.day, DisplayedMoment);
    ClockLabel.text = "Clock time, " + ZoneText(Locale.Zone + (clock - standardTime) * 24, Locale.UseLMT);
    SetSunBelowHorizon();
    const bool up = DayLight.day.spans.front().light == DayStrip::Light::Daylight;
    const bool allDay = noHorizon && DayLight.day.spans.size() == 1 && up;
    const bool neverUp = noHorizon && std::ranges::none_of(DayLight.day.spans, [](const DayStrip::Span& span) {
                             return span.light == DayStrip::Light::Daylight;
                         });
    if (!allDay && !neverUp) return;
    for (const std::size_t index : panelsAtHorizon) {
        DawnDusk.panels[index].tooltip = allDay ? "Sun up all day" : "Sun down all day";
    }
}

void TimeFields::ShowAstronomy() {
    const Moment universal = DisplayedMoment;
    ShowYears(universal);
    const double declination = SolarDeclination(universal);
    SunDeclination.text = FormatNumber(std::fabs(declination), "0.0") + "°" + Hemisphere(declination);
    SunLong.text = FormatNumber(Degrees(Round(SolarLongitude(universal), 1)), "0.0") + "°";
    PostSolarEvents(universal);
    PostClockChange(Floor(universal));
    JD_MJD.text = FormatNumber(JulianDayShown(universal), "0.00000");
    EoT.text = EquationText(EquationOfTime(universal));
    DeltaTdisp.text = FormatNumber(DeltaT(universal, 1), "0.0") + " s";
    DeltaTdisp.enabled = !DeltaTDisabled;
}

/// The date of years, and the beginning of the nearest one if it falls on the day.
void TimeFields::ShowYears(Moment universal) {
    const double date = YearsShown(universal);
    const Moment newYear =
        time_fields::options.ShowsRAYDate ? RAYDateToMoment(Round(date)) : OrbitalDateToMoment(Round(date));
    Orbital_RAY_Date.text = FormatNumber(date, "0.000000");
    if (Floor(newYear) != Floor(universal)) return;
    AstronomyEvent(newYear, time_fields::options.ShowsRAYDate ? "Rotation-Adjusted New Year" : "Mean Orbital New Year");
}

/// The search begins two days back, so that an event stays listed to the end of its day. What the Sun reaches within
/// the three days from there lies less than 5° ahead.
void TimeFields::PostSolarEvents(Moment universal) {
    constexpr double reach = 5;  // degrees
    const Moment start = universal - 2;
    const double longitude = SolarLongitude(start);
    for (const SolarEvent& event : solarEvents) {
        if (Degrees(event.longitude - longitude) > reach) continue;
        const Moment moment = SolarLongitudeAfter(start, event.longitude);
        if (Floor(moment) != Floor(universal)) continue;
        AstronomyEvent(moment, std::string(event.name) + " (Solar Longitude " + GeneralText(event.longitude) + "°)");
    }
    for (const auto& [anomaly, word] : apsides) {
        const Moment moment = SolarAnomalyPassage(Floor(universal) - 1, anomaly, 1);
        if (Floor(moment) != Floor(universal)) continue;
        AstronomyEvent(moment, std::string("Mean ") + word + "helion of Earth-Moon Barycenter");
    }
}

/// In the south, daylight time ends on the day on which it begins in the north.
void TimeFields::PostClockChange(FixedDay day) {
    if (Locale.NoDST || zone_time::options.AdjustDST != Checked) return;
    const std::int32_t year = FixedToGregorianYear(day);
    const std::pair<Moment, bool> changes[] = {{DaylightStart(year), Locale.North}, {DaylightEnd(year), !Locale.North}};
    for (const auto& [standardTime, toDaylight] : changes) {
        if (Floor(standardTime) != day) continue;
        AstronomyEvent(StandardToUniversal(standardTime), DaylightSwitchText(standardTime, toDaylight));
    }
}

void TimeFields::AstronomyEvent(Moment universal, const std::string& text) {
    day_events::Add("Astronomy", FormatTime(universal, 0) + (DeltaTDisabled ? " TT" : " UT"), text, mainField_);
}

void TimeFields::UpdateLocaleCaption() { form.text = LocaleSummary(Locale); }

void TimeFields::SetSunBelowHorizon() {
    const std::string depression = "Solar Depression " + AngleString(SunDepression()) + " (elevation " +
                                   (horizon::options.UseElevation ? "adjusted)" : "ignored)");
    for (StatusBar* bar : {&DawnDuskLegends, &DawnDusk}) {
        for (const std::size_t index : panelsAtHorizon) bar->panels[index].tooltip = depression;
    }
}

void TimeFields::SetDSTinfo() {
    UseElevation.enabled = Locale.Elevation != 0;
    AdjustDST.enabled = !Locale.NoDST;
    SetDSTcolour();
}

void TimeFields::SetDSTcolour() {
    if (zone_time::options.AdjustDST != Checked || Locale.NoDST) {
        AdjustDST.tint.reset();
        AdjustDST.tooltip = "Daylight Saving Time disabled";
        return;
    }
    const bool applies = isDaylightTime(UniversalToStandard(DisplayedMoment));
    AdjustDST.tint = applies ? daylightTint : standardTint;
    AdjustDST.tooltip = applies ? "Daylight Saving Time applied for the displayed moment"
                                : "Standard Time applied for the displayed moment";
}

namespace {

/// A choice between two that is kept as the caption of its toggle: this word in it stands for the second.
Setting CaptionRow(std::string_view key, std::string_view word, bool time_fields::Options::*field,
                   const Words (&words)[2]) {
    return {"Item", std::string(key), words[0].caption,
            [=](const std::string& text) {
                time_fields::options.*field = text.find(word) != std::string::npos;
                return true;
            },
            [=, &words] { return words[time_fields::options.*field].caption; }};
}

}  // namespace

Settings TimeFields::StoredRows() {
    using time_fields::options;
    return {
        CaptionRow("OrbRAY", "RAY", &time_fields::Options::ShowsRAYDate, yearWords),
        CaptionRow("JDMJD", "Mod", &time_fields::Options::ShowsModifiedJulianDay, julianDayWords),
        FlagRow("Item", "ShowDD", options, &time_fields::Options::ShowsDawnDusk),
        FlagRow("Item", "Elev", horizon::options, &horizon::Options::UseElevation),
        WholeRow("Item", "AdjDST", zone_time::options, &zone_time::Options::AdjustDST, Unchecked, Undecided),
        {"Item", "dT", "1",
         [](const std::string& text) {
             return TakeIf(WholeOf(text, 0, 1), [](std::int32_t used) { SetDeltaTDisabled(used == 0); });
         },
         [] { return DeltaTDisabled ? "0" : "1"; }},
    };
}

void TimeFields::SetToggles() {
    for (Control* part : {static_cast<Control*>(&DawnDuskLegends), static_cast<Control*>(&DawnDusk),
                          static_cast<Control*>(&DayLight), static_cast<Control*>(&ClockLabel)}) {
        part->visible = time_fields::options.ShowsDawnDusk;
    }
    SetWords(JD_MJD_Toggle, JD_MJD, julianDayWords[time_fields::options.ShowsModifiedJulianDay]);
    SetWords(Orbital_RAY_Toggle, Orbital_RAY_Date, yearWords[time_fields::options.ShowsRAYDate]);
}

/// The moments move to the other scale, so that they stay the same instants. The conversions are not exact inverses,
/// and a midnight must not end up just before itself: a moment that was not moved meanwhile gets its old number back.
void TimeFields::UseDeltaT_Click() {
    const bool use = DeltaTDisabled;
    if (use) SetDeltaTDisabled(false);
    for (auto& [moment, universal, terrestrial] : switchedOff_) {
        if (use) {
            moment = moment == terrestrial ? universal : TerrestrialToUniversal(moment);
        } else {
            universal = std::exchange(moment, UniversalToTerrestrial(moment));
        }
    }
    if (!use) SetDeltaTDisabled(true);
    UpdateStatus();
    if (use) return;
    for (auto& switched : switchedOff_) switched.terrestrial = switched.moment;  // as it fits into the range
    CurrentDesktop->Tell(deltaTWarning, "Delta T Disabled");
}

void TimeFields::UseElevation_Click() {
    horizon::options.UseElevation = !horizon::options.UseElevation;
    SetSunBelowHorizon();
    UpdateLocaleCaption();
    UpdateStatus();
}

void TimeFields::AdjustDST_Click() {
    zone_time::options.AdjustDST = zone_time::options.AdjustDST == Unchecked ? Checked : Unchecked;
    SetDSTcolour();
    UpdateStatus();
}

void TimeFields::ShowDawnDusk_Click() {
    time_fields::options.ShowsDawnDusk = !time_fields::options.ShowsDawnDusk;
    SetToggles();
    UpdateStatus();
}

void TimeFields::JD_MJD_Toggle_Click() {
    time_fields::options.ShowsModifiedJulianDay = !time_fields::options.ShowsModifiedJulianDay;
    SetToggles();
    UpdateStatus();
}

void TimeFields::Orbital_RAY_Toggle_Click() {
    time_fields::options.ShowsRAYDate = !time_fields::options.ShowsRAYDate;
    SetToggles();
    UpdateStatus();
}

}  // namespace horvanta
