#include "core/preferences.h"

#include "core/desktop.h"
#include "core/numerics.h"
#include "core/text.h"

#include <iterator>

namespace horvanta {
namespace {

void Load(const Setting& setting) {
    if (!setting.take) return;
    const auto text = CurrentDesktop->Settings().Read(setting.application, setting.section, setting.key);
    if (!text || !setting.take(*text)) setting.take(setting.standard);
}

void Save(const Setting& setting) {
    SettingsStore& store = CurrentDesktop->Settings();
    const auto text = setting.give
                          ? setting.give()
                          : store.Read(setting.application, setting.section, setting.key).value_or(setting.standard);
    if (text) store.Write(setting.application, setting.section, setting.key, *text);
}

}  // namespace

void Append(Settings& all, Settings rows) {
    all.insert(all.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
}

void Load(const Settings& settings) {
    for (const Setting& setting : settings) Load(setting);
}

void Save(const Settings& settings) {
    for (const Setting& setting : settings) Save(setting);
}

std::string TruthText(bool value) { return value ? "True" : "False"; }

std::optional<bool> TruthOf(const std::string& text) {
    if (text == "True") return true;
    return text == "False" ? std::optional(false) : std::nullopt;
}

std::optional<std::int32_t> WholeOf(const std::string& text, std::int32_t least, std::int32_t greatest) {
    const auto number = ParseNumber(text);
    if (!number) return std::nullopt;
    const double whole = Round(*number);
    return whole >= least && whole <= greatest ? std::optional(WholeNumber(whole)) : std::nullopt;
}

std::optional<double> NumberOf(const std::string& text, double least, double greatest) {
    const auto number = ParseLeadingNumber(text);
    return number && *number >= least && *number <= greatest ? number : std::nullopt;
}

Setting WrittenRow(std::string_view section, std::string_view key, std::string_view text) {
    return {std::string(section), std::string(key), std::string(text), {}, [text = std::string(text)] { return text; }};
}

void DeleteAllPrefs() { CurrentDesktop->Settings().DeleteApplication(ProgramSettings); }

std::string FlushSettings() {
    const auto [failure, kept] = CurrentDesktop->Settings().Flush();
    if (!kept.empty()) CurrentDesktop->ShowStatus(kept);
    if (failure.empty()) return failure;
    Refuse(failure);
    return failure;
}

}  // namespace horvanta
