#pragma once

#include "core/controls.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The per-user settings: application, section, key and a text. Every value is text; what can't be read is its default.
namespace horvanta {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The text of a key; nothing where it is absent.
    virtual std::optional<std::string> Read(std::string_view application, std::string_view section,
                                            std::string_view key) = 0;
    virtual void Write(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view text) = 0;
    virtual void DeleteSection(std::string_view application, std::string_view section) = 0;
    virtual void DeleteApplication(std::string_view application) = 0;

    /// Brings everything written so far onto the disk, replacing the old settings in one step.
    virtual void Flush() = 0;
};

/// The application that holds the program's options.
inline constexpr std::string_view ProgramSettings = "Horvanta";

// Readers. A value that is absent, does not read as the type or does not fit it is the default.
std::string GetTextPref(std::string_view application, std::string_view section, std::string_view key,
                        std::string_view otherwise);
bool GetBoolPref(std::string_view application, std::string_view section, std::string_view key, bool otherwise);
std::int32_t GetLongPref(std::string_view application, std::string_view section, std::string_view key,
                         std::int32_t otherwise);

/// Reads the number that the text begins with, with a point as decimal mark whatever the machine's locale.
double GetDoublePref(std::string_view application, std::string_view section, std::string_view key, double otherwise);

// Writers, into the program's options.
void SavePref(std::string_view section, std::string_view key, std::string_view text);
void SaveBoolPref(std::string_view section, std::string_view key, bool value);
void SaveLongPref(std::string_view section, std::string_view key, std::int32_t value);

/// Writes all digits, so that the same double is read back.
void SaveDoublePref(std::string_view section, std::string_view key, double value);

/// Writes where a window stands, and the check of the menu item that goes with it, in the window's own section.
void SaveWindowPrefs(const Form& window, bool checked);

/// Moves a window to where it was, or to the given place in twips, and sets the check that goes with it.
void LoadWindowPrefs(Form& window, bool& check, double top, double left, bool checked);

/// Forgets all the program's options. The user's own places, an application of their own, stay.
void DeleteAllPrefs();

}  // namespace horvanta
