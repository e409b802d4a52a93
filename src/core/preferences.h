#pragma once

#include "core/text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The per-user settings: application, section, key and a text. Every value is text; what can't be read is its default.
namespace horvanta {

/// What the user has to be told of a flush, in sentences.
struct FlushReport {
    std::string failure;  ///< Why not everything is on the disk; empty if it is.
    std::string kept;     ///< Where settings are kept that were forgotten or could not be read; empty if none were.
};

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The text of a key; nothing where it is absent.
    virtual std::optional<std::string> Read(std::string_view application, std::string_view section,
                                            std::string_view key) = 0;
    virtual void Write(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view text) = 0;
    virtual void DeleteSection(std::string_view application, std::string_view section) = 0;

    /// Forgets everything of an application. What the disk holds of it is kept aside at the next flush.
    virtual void DeleteApplication(std::string_view application) = 0;

    /// Brings everything written so far onto the disk, replacing the old settings in one step; if that fails they stay
    /// as they were.
    virtual FlushReport Flush() = 0;
};

/// The application that holds the program's options, and the one that holds what a reset of those leaves alone.
inline constexpr std::string_view ProgramSettings = "Horvanta";
inline constexpr std::string_view UserSettings = "Horvanta-UDLs";

/// A key of the settings, and how its text becomes the value and comes of it.
struct Setting {
    std::string section;
    std::string key;
    std::string standard;  ///< The text it has where it is absent or can't be taken.

    /// Takes the value from its text; false if it can't be. A setting without it is only written.
    std::function<bool(const std::string& text)> take;

    /// The text of the value; nothing if it is not to be written. A setting without it is written as it was found.
    std::function<std::optional<std::string>()> give;

    std::string_view application = ProgramSettings;
};

using Settings = std::vector<Setting>;

/// Appends the rows of one owner to those of others.
void Append(Settings& all, Settings rows);

/// Takes and writes settings in their order.
void Load(const Settings& settings);
void Save(const Settings& settings);

// Numbers and truths as texts, and the way back: nothing for what does not read as one or lies out of its bounds.

/// "True" or "False".
std::string TruthText(bool value);
std::optional<bool> TruthOf(const std::string& text);

/// A whole number of 32 bits.
std::optional<std::int32_t> WholeOf(const std::string& text, std::int32_t least, std::int32_t greatest);

/// The number that the text begins with, with a point as decimal mark whatever the machine's locale.
std::optional<double> NumberOf(const std::string& text, double least, double greatest);

// Rows for a field of an owner's options, whose default is the field's own.

/// Calls `set` with a value that there is; false where there is none.
template <class Value, class Set>
bool TakeIf(const std::optional<Value>& value, const Set& set) {
    if (value) set(*value);
    return value.has_value();
}

template <class Options>
Setting TruthRow(std::string_view section, std::string_view key, Options& options, bool Options::*field) {
    return {std::string(section), std::string(key), TruthText(Options().*field),
            [=, &options](const std::string& text) {
                return TakeIf(TruthOf(text), [&](bool value) { options.*field = value; });
            },
            [=, &options] { return TruthText(options.*field); }};
}

/// A truth that is kept as 1 or 0.
template <class Options>
Setting FlagRow(std::string_view section, std::string_view key, Options& options, bool Options::*field) {
    return {std::string(section), std::string(key), Options().*field ? "1" : "0",
            [=, &options](const std::string& text) {
                return TakeIf(WholeOf(text, 0, 1), [&](std::int32_t value) { options.*field = value == 1; });
            },
            [=, &options] { return options.*field ? "1" : "0"; }};
}

template <class Options>
Setting WholeRow(std::string_view section, std::string_view key, Options& options, std::int32_t Options::*field,
                 std::int32_t least, std::int32_t greatest) {
    return {std::string(section), std::string(key), std::to_string(Options().*field),
            [=, &options](const std::string& text) {
                return TakeIf(WholeOf(text, least, greatest), [&](std::int32_t value) { options.*field = value; });
            },
            [=, &options] { return std::to_string(options.*field); }};
}

/// A number that is kept with all its digits.
template <class Owner>
Setting NumberRow(std::string_view section, std::string_view key, Owner& owner, double Owner::*field, double least,
                  double greatest) {
    return {std::string(section), std::string(key), ExactText(Owner().*field),
            [=, &owner](const std::string& text) {
                return TakeIf(NumberOf(text, least, greatest), [&](double value) { owner.*field = value; });
            },
            [=, &owner] { return ExactText(owner.*field); }};
}

/// A text that is only written.
Setting WrittenRow(std::string_view section, std::string_view key, std::string_view text);

/// Forgets all the program's options. What belongs to `UserSettings` stays.
void DeleteAllPrefs();

/// Brings the settings onto the disk. Returns why that failed, which a beep and the status bar have told; empty if it
/// did not.
std::string FlushSettings();

}  // namespace horvanta
