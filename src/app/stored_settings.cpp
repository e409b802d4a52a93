#include "app/stored_settings.h"

#include "app/horvanta.h"
#include "app/options.h"
#include "app/time_fields.h"
#include "astro/timescales.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/preferences.h"
#include "core/text.h"
#include "hebrew/molad.h"
#include "locale/locale.h"
#include "locale/locale_text.h"
#include "locale/zone_time.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace horvanta {
namespace {

constexpr std::string_view userSettings = "Horvanta-UDLs";
constexpr double gap = 20;  // twips between windows that have not been moved

/// A key, and how its text becomes the value and comes of it. One without `load` is only written.
struct Setting {
    std::string_view section;
    std::string_view key;
    std::function<void()> load;
    std::function<void()> save;
};

using Table = std::vector<Setting>;

// Readers that take a value out of its bounds for damage.

std::int32_t StoredLong(std::string_view section, std::string_view key, std::int32_t otherwise, std::int32_t least,
                        std::int32_t greatest) {
    const std::int32_t value = GetLongPref(ProgramSettings, section, key, otherwise);
    return value >= least && value <= greatest ? value : otherwise;
}

double StoredDouble(std::string_view application, std::string_view section, std::string_view key, double otherwise,
                    double least, double greatest) {
    const double value = GetDoublePref(application, section, key, otherwise);
    return value >= least && value <= greatest ? value : otherwise;
}

// Rows.

Setting Long(std::string_view section, std::string_view key, std::int32_t otherwise, std::int32_t& variable,
             std::int32_t least, std::int32_t greatest) {
    return {section, key, [=, &variable] { variable = StoredLong(section, key, otherwise, least, greatest); },
            [=, &variable] { SaveLongPref(section, key, variable); }};
}

Setting Bool(std::string_view section, std::string_view key, bool otherwise, bool& variable) {
    return {section, key, [=, &variable] { variable = GetBoolPref(ProgramSettings, section, key, otherwise); },
            [=, &variable] { SaveBoolPref(section, key, variable); }};
}

/// A truth that is kept as 1 or 0.
Setting Flag(std::string_view section, std::string_view key, std::function<void(bool)> set, std::function<bool()> get,
             bool otherwise = true) {
    return {section, key, [=] { set(StoredLong(section, key, otherwise ? 1 : 0, 0, 1) == 1); },
            [=] { SaveLongPref(section, key, get() ? 1 : 0); }};
}

Setting Flag(std::string_view section, std::string_view key, bool& variable, bool otherwise = true) {
    return Flag(
        section, key, [&variable](bool value) { variable = value; }, [&variable] { return variable; }, otherwise);
}

Setting Year(std::string_view key, const YearChoice& choice, std::int32_t& year) {
    return Long("Item", key, choice.usual, year, choice.earliest, choice.latest);
}

/// A choice between two that is kept as the caption of its toggle.
Setting Caption(std::string_view section, std::string_view key, std::string_view word, bool& variable,
                const Control& toggle) {
    return {
        section, key,
        [=, &variable] { variable = GetTextPref(ProgramSettings, section, key, "").find(word) != std::string::npos; },
        [=, &toggle] { SavePref(section, key, toggle.text); }};
}

/// A moment in the present numbering; 0 was never set.
Setting StoredMoment(std::string_view section, std::string_view key, Moment& variable) {
    return {section, key,
            [=, &variable] { variable = StoredDouble(ProgramSettings, section, key, 0, MinFixedDay, MaxFixedDay); },
            [=, &variable] { SaveDoublePref(section, key, variable); }};
}

Setting Written(std::string_view section, std::string_view key, std::function<std::string()> text) {
    return {section, key, {}, [=] { SavePref(section, key, text()); }};
}

/// What no one owns yet: it stays as a later version may have left it, and is its default if it is not there.
Setting Kept(std::string_view section, std::string_view key, std::string_view otherwise) {
    return {section, key, {}, [=] { SavePref(section, key, GetTextPref(ProgramSettings, section, key, otherwise)); }};
}

/// A colour, which is set through its window.
template <class Window>
Setting StoredColor(std::string_view key, std::int32_t otherwise, Window& window, const Control& mainDate,
                    bool isBackground) {
    constexpr std::int32_t white = 0xffffff;
    return {"Color", key,
            [=, &window] {
                window.SetColor(Color::FromNumber(StoredLong("Color", key, otherwise, 0, white)), isBackground);
            },
            [=, &mainDate] {
                ColorPair shown = *mainDate.colors;
                SaveLongPref("Color", key, shown.Part(isBackground).Number());
            }};
}

/// Where a window stands, if it has not been moved, is told when it is loaded: it may hang on another.
Setting Window(Form& form, bool& check, bool checked, std::function<Place()> standard) {
    return {form.name, "Top Left Chk",
            [=, &form, &check] {
                constexpr double farthest = 1e6;  // twips
                const Place place = standard();
                LoadWindowPrefs(form, check, place.top, place.left, checked);
                if (std::fabs(form.place.top) > farthest) form.place.top = place.top;
                if (std::fabs(form.place.left) > farthest) form.place.left = place.left;
            },
            [&form, &check] { SaveWindowPrefs(form, check); }};
}

// The numbering: `GE` is the day number of January 1 of year 1.

Setting Numbering() {
    return {"Item", "GE FixEpoch FixNam",
            [] {
                constexpr double farthest = 1e7;  // days; the displayable ones lie within
                const double first = StoredDouble(ProgramSettings, "Item", "GE", -730484, -farthest, farthest);
                const double value = StoredDouble(ProgramSettings, "Item", "FixEpoch", 1, -farthest, farthest);
                const std::string name = GetTextPref(ProgramSettings, "Item", "FixNam", "");
                SetFixedDayEpoch(GregorianEpoch + 1 - Floor(first), value, name);
            },
            [] {
                SaveDoublePref("Item", "GE", GregorianEpoch);
                SaveDoublePref("Item", "FixEpoch", FixedEpochValue);
                SavePref("Item", "FixNam", FixedEpochName);
            }};
}

/// The place of the Events window marks settings of this layout. Others are cleared, but for the mark of a start that
/// has not finished.
Setting LayoutMark(const Form& time) {
    return {"Events", "Top",
            [] {
                if (GetTextPref(ProgramSettings, "Events", "Top", "-") != "-") return;
                DeleteAllPrefs();
                SavePref("Prog", "Launch", "");
            },
            [&time] {
                const double below = time.place.top + time.place.height + gap;
                SavePref("Events", "Top", GetTextPref(ProgramSettings, "Events", "Top", GeneralText(below)));
            }};
}

// The user's own places. A slot without a name was never filled.

std::string UserSection(std::size_t slot) { return "User " + std::to_string(slot); }

LocaleRecord StoredUserLocale(const std::string& section, const std::string& name) {
    const auto number = [&section](std::string_view key, double limit) {
        return StoredDouble(userSettings, section, key, 0, -limit, limit);
    };
    constexpr double highest = 100'000;  // metres
    return MakeLocale(name, name, number("Lat", 90), number("Long", 360), number("Elev", highest), number("Zone", 24),
                      GetBoolPref(userSettings, section, "NoDST", false), true,
                      GetBoolPref(userSettings, section, "UseLMT", false));
}

void LoadUserLocales(Places& places, StoredPlace& stored) {
    for (std::size_t slot = 1; slot < UserLocales.size(); ++slot) {
        const std::string section = UserSection(slot);
        const std::string name = GetTextPref(userSettings, section, "Name", "");
        if (name.empty()) continue;
        places.SetUserLocale(slot, StoredUserLocale(section, name));
        if (GetBoolPref(userSettings, section, "Chk", false)) stored.userSlot = slot;
    }
}

void SaveUserLocales(Places& places) {
    for (std::size_t slot = 1; slot < UserLocales.size(); ++slot) {
        const LocaleRecord& place = UserLocales[slot];
        if (place.Name.empty()) continue;
        const std::string section = UserSection(slot);
        const auto write = [&section](std::string_view key, const std::string& text) {
            CurrentDesktop->Settings().Write(userSettings, section, key, text);
        };
        const auto truth = [](bool value) { return std::string(value ? "True" : "False"); };
        write("Name", place.Name);
        write("Lat", ExactText(place.Latitude));
        write("Long", ExactText(place.Longitude));
        write("Elev", ExactText(place.Elevation));
        write("Zone", ExactText(place.Zone));
        write("NoDST", truth(place.NoDST));
        write("UseLMT", truth(place.UseLMT));
        write("Chk", truth(places.isUserLocaleChosen(slot)));
    }
}

// The tables, in the order of loading: what is read first may decide how the rest is read.

Table FrameTable(HorvantaMDI& frame) {
    const auto placeRow = [&frame](std::string_view key, double Place::*number) -> Setting {
        return {frame.name, key,
                [=, &frame] {
                    constexpr double farthest = 1e6;  // twips
                    frame.place.*number = StoredDouble(ProgramSettings, frame.name, key, 0, -farthest, farthest);
                },
                [=, &frame] {
                    if (frame.state == FrameNormal) SaveDoublePref(frame.name, key, frame.place.*number);
                }};
    };
    return {
        {frame.name, "State",
         [&frame] {
             const std::int32_t state = GetLongPref(ProgramSettings, frame.name, "State", FrameMaximized);
             frame.state = state == FrameNormal ? FrameNormal : FrameMaximized;
         },
         [&frame] { SaveLongPref(frame.name, "State", frame.state); }},
        placeRow("Top", &Place::top),
        placeRow("Left", &Place::left),
        placeRow("Width", &Place::width),
        placeRow("Height", &Place::height),
    };
}

Table ProgramTable(Horvanta& program, StoredPlace& stored) {
    TimeAstro& time = program.timeAstro;
    TimeFields& fields = time.fields;
    GregorianWindow& gregorian = program.gregorian;
    JulianWindow& julianWindow = program.julian;
    PersianWindow& persian = program.persian;
    QuartaneWindow& qua = program.quartane;
    UserLocalesWindow& user = program.userLocales;
    const auto beside = [](const Form& form) {
        return [&form] { return Place{form.place.left + form.place.width + gap, form.place.top}; };
    };
    const auto below = [](const Form& form) {
        return [&form] { return Place{form.place.left, form.place.top + form.place.height + gap}; };
    };
    const auto literal = [](std::string_view text) { return [text] { return std::string(text); }; };
    const auto shade = [](const Label& label, bool isBackground) {
        return [&label, isBackground] {
            ColorPair shown = *label.colors;
            return std::to_string(shown.Part(isBackground).Number());
        };
    };
    // clang-format off
    return {
        Written("Prog", "Name", literal("Horvanta (Calendar Calculator)")),
        Written("Prog", "Ver", literal("11.157(1678)")),
        Written("Prog", "Rev", literal("Qua454 2020.08.14 = Qua010 2020.08.12")),
        Written("Prog", "Pub", literal("Horvanta")),

        Long("Item", "FixOpt", 4, FixedDayOption, 1, 12),
        Numbering(),
        LayoutMark(time.form),

        Window(time.form, AlwaysToday, true, [] { return Place(); }),
        Window(qua.form, qua.form.visible, true, below(time.form)),
        Window(program.monthly.form, program.monthly.form.visible, true, beside(qua.form)),
        Kept("Events", "Chk", "True"),
        Kept("Hebrew", "Chk", "True"),
        Window(user.form, user.form.visible, false, beside(program.monthly.form)),
        Window(gregorian.form, gregorian.form.visible, true, beside(time.form)),
        Window(julianWindow.form, julianWindow.form.visible, false, below(program.monthly.form)),
        Kept("Lunar", "Chk", "True"),
        Window(persian.form, persian.form.visible, false, below(gregorian.form)),
        Kept("Chinese", "Chk", "False"),
        Kept("Item", "EW", "9360"),

        {"User n", "Name Lat Long Elev Zone NoDST UseLMT Chk",
         [&program, &stored] { LoadUserLocales(program.places, stored); }, [&program] { SaveUserLocales(program.places); }},
        {"UserNum", "Num",
         [&user] {
             const std::int32_t number = GetLongPref(userSettings, "UserNum", "Num", 1);
             user.ShowSlot(number >= 1 && number <= 30 ? static_cast<std::size_t>(number) : 1);
         },
         [&user] { CurrentDesktop->Settings().Write(userSettings, "UserNum", "Num", std::to_string(user.slot)); }},

        Kept("Color", "LBC", "6250335"),      Kept("Color", "LFC", "16777215"),
        StoredColor("ABC", 65535, time, time.TimeOfDay, true),
        StoredColor("AFC", 0, time, time.TimeOfDay, false),
        StoredColor("GBC", 12642289, gregorian, gregorian.GregorianDate, true),
        StoredColor("GFC", 0, gregorian, gregorian.GregorianDate, false),
        Written("Color", "IBC", shade(gregorian.TheISOdate, true)), Written("Color", "IFC", shade(gregorian.TheISOdate, false)),
        StoredColor("SBC", 16706033, qua, qua.QuartaneDateBox, true),
        StoredColor("SFC", 0, qua, qua.QuartaneDateBox, false),
        Kept("Color", "HBC", "16777152"),     Kept("Color", "HFC", "0"),
        StoredColor("PBC", 10220253, persian, persian.ThePersianDate, true),
        StoredColor("PFC", 0, persian, persian.ThePersianDate, false),
        StoredColor("JBC", 14680063, julianWindow, julianWindow.TheJulianDate, true),
        StoredColor("JFC", 0, julianWindow, julianWindow.TheJulianDate, false),
        Written("Color", "RBC", shade(julianWindow.TheRomanDate, true)), Written("Color", "RFC", shade(julianWindow.TheRomanDate, false)),
        Kept("Color", "ChinBC", "255"),       Kept("Color", "ChinFC", "65535"),
        Kept("Color", "JapBC", "16777215"),   Kept("Color", "JapFC", "217"),
        Kept("Color", "KorBC", "16777215"),   Kept("Color", "KorFC", "16711680"),
        Kept("Color", "VietBC", "65535"),     Kept("Color", "VietFC", "255"),

        Long("Item", "Step", 1, StepIndex, 1, 6),
        Bool("Item", "Year", true, StepsBySolarYear),
        Caption("Item", "OrbRAY", "RAY", ShowsRAYDate, fields.Orbital_RAY_Toggle),
        Caption("Item", "JDMJD", "Mod", ShowsModifiedJulianDay, fields.JD_MJD_Toggle),
        Long("Item", "QuaStart", 1, quartane::StartWeekday, 0, 6),
        Bool("Item", "Qua454", true, quartane::Qua454),
        Bool("Item", "UseZov010", true, quartane::UseZov010),
        Bool("Item", "UseZov454", false, quartane::UseZov454),
        Bool("Item", "Even", false, quartane::EvenCycleFlag),
        Bool("Item", "Mix", false, quartane::QuaSoupMix),
        {"Item", "QuaLeap", [] { quartane::SetQuaLeapChoice(GetTextPref(ProgramSettings, "Item", "QuaLeap", "52/293")); },
         [] { SavePref("Item", "QuaLeap", quartane::LeapRuleKey); }},
        {"Item", "QuaQS",
         [] {
             quartane::QuarterStructure = "SLS";
             quartane::SetQuaQuarterStructure(GetTextPref(ProgramSettings, "Item", "QuaQS", "SLS"));
         },
         [] { SavePref("Item", "QuaQS", quartane::QuarterStructure); }},

        StoredMoment("Item", "RD", DisplayedMoment),
        StoredMoment("Item", "SD", SavedMoment),
        Long("Item", "AdjDST", Checked, AdjustDST, Unchecked, Undecided),
        Flag("Item", "dT", [](bool use) { SetDeltaTDisabled(!use); }, [] { return !DeltaTDisabled; }),
        Flag("Item", "ShowDD", ShowsDawnDusk),
        Flag("Item", "Elev", UseElevation),
        Long("Item", "Map", 1, MapIndex, 1, 8),
        {"Item", "AD",
         [] { MonthLayoutCaption = GetTextPref(ProgramSettings, "Item", "AD", "") == "&Down" ? "&Down" : "&Across"; },
         [] { SavePref("Item", "AD", MonthLayoutCaption); }},
        Long("Item", "MC", 0, MonthCalendar, 0, 8),
        Kept("Item", "LunOpt", "1"),
        {"Item", "LOC", [&stored] { stored.name = GetTextPref(ProgramSettings, "Item", "LOC", "Greenwich"); },
         [] { SavePref("Item", "LOC", Locale.Name); }},
        Long("Item", "THC", 1, TempHourFormat, 1, 3),
        {"Item", "MTF", [] { MoladTimeFormat = GetLongPref(ProgramSettings, "Item", "MTF", 7) == 5 ? 5 : 7; },
         [] { SaveLongPref("Item", "MTF", MoladTimeFormat); }},
        Flag("Item", "UseAUC", julian::UseAUC, false),
        Flag("Item", "Rectify", julian::Revise, false),
        Year("YRF", RomeFoundedChoice, julian::YRF),
        Year("OSY", OlympiadStartChoice, julian::OSY),
        Kept("Item", "JCY1", "-2697"),
        Kept("Item", "LP", "False"),
        Kept("Item", "WCC", "False"),
        Kept("Item", "Candles", "18"),
        Kept("Item", "CEN", "1"),
        Kept("Item", "CCM", "0"),
    };
    // clang-format on
}

void Load(const Table& table) {
    for (const Setting& setting : table) {
        if (setting.load) setting.load();
    }
}

void Save(const Table& table) {
    for (const Setting& setting : table) setting.save();
}

}  // namespace

void LoadFramePrefs(HorvantaMDI& frame) { Load(FrameTable(frame)); }

StoredPlace LoadPrefs(Horvanta& program) {
    StoredPlace stored;
    Load(ProgramTable(program, stored));
    return stored;
}

void SavePrefs(Horvanta& program) {
    StoredPlace unused;
    Save(FrameTable(program.frame));
    Save(ProgramTable(program, unused));
    CurrentDesktop->Settings().Flush();
}

void SaveUserPlaces(Horvanta& program) { SaveUserLocales(program.places); }

void DeleteColorPrefs() {
    CurrentDesktop->Settings().DeleteSection(ProgramSettings, "Color");
    CurrentDesktop->Settings().Flush();
}

}  // namespace horvanta
