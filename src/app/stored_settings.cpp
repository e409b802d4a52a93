#include "app/stored_settings.h"

#include "app/horvanta.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/preferences.h"

namespace horvanta {
namespace {

constexpr double gap = 20;  // twips between windows that have not been moved

/// A window's colours: where they are shown, how they are set, and their keys.
template <class Window>
void LoadColors(Window& window, const ColorPair& shown, std::string_view backgroundKey,
                std::string_view foregroundKey) {
    const ColorPair standard = shown;
    const auto stored = [](std::string_view key, Color otherwise) {
        return Color::FromNumber(GetLongPref(ProgramSettings, "Color", key, otherwise.Number()));
    };
    window.SetColor(stored(backgroundKey, standard.background), true);
    window.SetColor(stored(foregroundKey, standard.foreground), false);
}

void SaveColors(const ColorPair& shown, std::string_view backgroundKey, std::string_view foregroundKey) {
    SaveLongPref("Color", backgroundKey, shown.background.Number());
    SaveLongPref("Color", foregroundKey, shown.foreground.Number());
}

}  // namespace

void LoadFramePrefs(HorvantaMDI& frame) {
    const bool normal = GetLongPref(ProgramSettings, frame.name, "State", FrameMaximized) == FrameNormal;
    frame.state = normal ? FrameNormal : FrameMaximized;
    if (!normal) return;
    frame.place.top = GetDoublePref(ProgramSettings, frame.name, "Top", 0);
    frame.place.left = GetDoublePref(ProgramSettings, frame.name, "Left", 0);
    frame.place.width = GetDoublePref(ProgramSettings, frame.name, "Width", 0);
    frame.place.height = GetDoublePref(ProgramSettings, frame.name, "Height", 0);
}

void LoadPrefs(Horvanta& program) {
    DisplayedMoment = GetDoublePref(ProgramSettings, "Item", "RD", 0);
    SavedMoment = GetDoublePref(ProgramSettings, "Item", "SD", 0);
    StepIndex = GetLongPref(ProgramSettings, "Item", "Step", 1);
    LoadColors(program.timeAstro, *program.timeAstro.TimeOfDay.colors, "ABC", "AFC");
    LoadColors(program.gregorian, *program.gregorian.GregorianDate.colors, "GBC", "GFC");

    Form& time = program.timeAstro.form;
    Form& gregorian = program.gregorian.form;
    LoadWindowPrefs(time, AlwaysToday, 0, 0, true);
    LoadWindowPrefs(gregorian, gregorian.visible, time.place.top, time.place.left + time.place.width + gap, true);
}

void SavePrefs(Horvanta& program) {
    const HorvantaMDI& frame = program.frame;
    SaveLongPref(frame.name, "State", frame.state);
    if (frame.state == FrameNormal) {
        SaveDoublePref(frame.name, "Top", frame.place.top);
        SaveDoublePref(frame.name, "Left", frame.place.left);
        SaveDoublePref(frame.name, "Width", frame.place.width);
        SaveDoublePref(frame.name, "Height", frame.place.height);
    }
    SaveWindowPrefs(program.timeAstro.form, AlwaysToday);
    SaveWindowPrefs(program.gregorian.form, program.gregorian.form.visible);
    SaveDoublePref("Item", "RD", DisplayedMoment);
    SaveDoublePref("Item", "SD", SavedMoment);
    SaveLongPref("Item", "Step", StepIndex);
    SaveColors(*program.timeAstro.TimeOfDay.colors, "ABC", "AFC");
    SaveColors(*program.gregorian.GregorianDate.colors, "GBC", "GFC");
    CurrentDesktop->Settings().Flush();
}

void DeleteColorPrefs() {
    CurrentDesktop->Settings().DeleteSection(ProgramSettings, "Color");
    CurrentDesktop->Settings().Flush();
}

}  // namespace horvanta
