#include "core/preferences.h"

#include "core/desktop.h"
#include "core/text.h"

#include <cmath>
#include <limits>

namespace horvanta {
namespace {

template <class Integer>
Integer WholePref(std::string_view application, std::string_view section, std::string_view key, Integer otherwise) {
    const auto text = CurrentDesktop->Settings().Read(application, section, key);
    const auto value = text ? ParseNumber(*text) : std::nullopt;
    using Limits = std::numeric_limits<Integer>;
    if (!value || *value < Limits::min() || *value > Limits::max()) return otherwise;
    return static_cast<Integer>(Round(*value));
}

}  // namespace

std::string GetTextPref(std::string_view application, std::string_view section, std::string_view key,
                        std::string_view otherwise) {
    return CurrentDesktop->Settings().Read(application, section, key).value_or(std::string(otherwise));
}

bool GetBoolPref(std::string_view application, std::string_view section, std::string_view key, bool otherwise) {
    const std::string text = GetTextPref(application, section, key, "");
    if (text == "True") return true;
    return text == "False" ? false : otherwise;
}

std::int16_t GetIntPref(std::string_view application, std::string_view section, std::string_view key,
                        std::int16_t otherwise) {
    return WholePref(application, section, key, otherwise);
}

std::int32_t GetLongPref(std::string_view application, std::string_view section, std::string_view key,
                         std::int32_t otherwise) {
    return WholePref(application, section, key, otherwise);
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
    check = GetBoolPref(ProgramSettings, window.name, "Chk", checked);
}

void DeleteAllPrefs() {
    SavePref("X", "X", "X");
    CurrentDesktop->Settings().DeleteApplication(ProgramSettings);
}

}  // namespace horvanta
