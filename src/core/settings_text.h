#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

/// The settings of an application as the text of a file, and the way back.
///
/// Every key has a line of its own, "Section/Key=Value", that depends on no other line: whatever happens to one costs
/// one key. A heading with the application's name makes the file one that tools for INI files read as well.
namespace horvanta {

using StoredSection = std::map<std::string, std::string, std::less<>>;         ///< The text of a key.
using StoredApplication = std::map<std::string, StoredSection, std::less<>>;   ///< The keys of a section.
using StoredSettings = std::map<std::string, StoredApplication, std::less<>>;  ///< The sections of an application.

/// True if there is more than the section `Prog`, which every start writes anew.
bool isWorthKeeping(const StoredApplication& values);

std::string SettingsText(std::string_view application, const StoredApplication& values);

/// What a file holds.
struct SettingsRead {
    StoredApplication values;
    bool isWhole = true;  ///< Every line could be read.
};

/// Reads any bytes, also files where headings name the sections of the keys below them. The later of two lines for one
/// key counts. A last line without an end may have been cut off: it counts if it has a value.
SettingsRead ReadSettingsText(std::string_view text);

}  // namespace horvanta
