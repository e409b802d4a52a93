#include "core/preferences.h"

#include "core/desktop.h"
#include "core/text.h"

#include <limits>

namespace horvanta {

std::string GetTextPref(std::string_view application, std::string_view section, std::string_view key,
                        std::string_view otherwise) {
    return CurrentDesktop->Settings().Read(application, section, key).value_or(std::string(otherwise));
}

bool GetBoolPref(std::string_view application, std::string_view section, std::string_view key, bool otherwise) {
    const std::string text = GetTextPref(application, section, key, "");
    if (text == "True") return true;
    return text == "False" ? false : otherwise;
}

std::int32_t GetLongPref(std::string_view application, std::string_view section, std::string_view key,
                         std::int32_t otherwise) {
    const auto value = ParseNumber(GetTextPref(application, section, key, ""));
    using Limits = std::numeric_limits<std::int32_t>;
    const bool fits = value && *value >= Limits::min() && *value <= Limits::max();
    return fits ? static_cast<std::int32_t>(Round(*value)) : otherwise;
}

double GetDoublePref(std::string_view application, std::string_view section, std::string_view key, double otherwise) {
    return ParseLeadingNumber(GetTextPref(application, section, key, "")).value_or(otherwise);
}

void SavePref(std::string_view section, std::string_view key, std::string_view text) {
    CurrentDesktop->Settings().Write(ProgramSettings, section, key, text);
}

void SaveBoolPref(std::string_view section, std::string_view key, bool value) {
    SavePref(section, key, value ? "True" : "False");
}

void SaveLongPref(std::string_view section, std::string_view key, std::int32_t value) {
    SavePref(section, key, std::to_string(value));
}

void SaveDoublePref(std::string_view section, std::string_view key, double value) {
    SavePref(section, key, ExactText(value));
}

void SaveWindowPrefs(const Form& window, bool checked) {
    SaveDoublePref(window.name, "Top", window.place.top);
    SaveDoublePref(window.name, "Left", window.place.left);
    SaveBoolPref(window.name, "Chk", checked);
}

void LoadWindowPrefs(Form& window, bool& check, double top, double left, bool checked) {
    window.place.top = GetDoublePref(ProgramSettings, window.name, "Top", top);
    window.place.left = GetDoublePref(ProgramSettings, window.name, "Left", left);
    window.placed = window.place.top != top || window.place.left != left;
    check = GetBoolPref(ProgramSettings, window.name, "Chk", checked);
}

void DeleteAllPrefs() {
    SavePref("X", "X", "X");
    CurrentDesktop->Settings().DeleteApplication(ProgramSettings);
}

}  // namespace horvanta
