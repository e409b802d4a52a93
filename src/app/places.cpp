#include "app/places.h"

#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "locale/locale_text.h"
#include "locale/presets.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace horvanta {

static_assert(std::extent_v<decltype(HorvantaMDI::Presets)> == MenuLocaleCount);

Places::Places(HorvantaMDI& frame, TimeFields& fields) : frame_(frame), fields_(fields) {
    Locale = {};
    UserLocales = {};
    for (std::size_t i = 0; i < MenuLocaleCount; ++i) {
        MenuItem& item = frame_.Presets[i];
        const LocaleRecord& place = Locales()[i];
        item.caption = place.Location;
        item.ShowsWhen([this, &item] { return chosen_ == &item; });
        item.Click = [this, &item, &place] { SelectLocale(item, place); };
    }
    frame_.MapLocale.Click = [this] { MapLocale_Click(); };
}

void Places::SelectLocale(const MenuItem& item, const LocaleRecord& place) {
    if (place != Locale) {
        const bool moves = place.Name != Locale.Name && !Locale.Location.empty();
        if (moves) ReportMove(place);
        Locale = place;
        fields_.SetDSTinfo();
        fields_.UpdateLocaleCaption();
        fields_.SetSunBelowHorizon();
    }
    chosen_ = &item;
    UpdateStatus();
}

void Places::ReportMove(const LocaleRecord& place) {
    const std::string report = LocaleChangeReport(Locale, place);
    if (CurrentDesktop->AskYesNo(report + "\n\nCopy this information to the Clipboard?", "New Locale")) {
        frame_.SetClipboardText("New Locale:\n\n" + report);
    }
}

void Places::ChooseFirst() {
    if (userSlot_ != 0) {
        UserLoc_Click(userSlot_);
        return;
    }
    const auto presets = Locales().first(MenuLocaleCount);
    const auto named = std::ranges::find(presets, storedName_, &LocaleRecord::Name);
    const auto& place = named == presets.end() ? PresetLocale("Greenwich") : *named;
    SelectLocale(frame_.Presets[&place - presets.data()], place);
}

void Places::SetUserLocale(std::size_t slot, const LocaleRecord& place) {
    UserLocales[slot] = place;
    MenuItem& item = frame_.UserLoc[slot];
    item.caption = ReplaceAll(place.Name, "&", "&&");
    item.ShowsWhen([this, &item] { return chosen_ == &item; });
    item.Click = [this, slot] { UserLoc_Click(slot); };
}

namespace {

/// A key of a place of the user's, its default, and what its text sets and comes of.
struct PlaceKey {
    const char* key;
    const char* standard;
    bool (*take)(PlaceEntry& entry, const std::string& text);
    std::string (*give)(const LocaleRecord& place);
};

/// A number within a limit to both sides.
template <double PlaceEntry::*Field, int Limit>
bool TakeNumber(PlaceEntry& entry, const std::string& text) {
    return TakeIf(NumberOf(text, -Limit, Limit), [&](double x) { entry.*Field = x; });
}

template <bool PlaceEntry::*Field>
bool TakeTruth(PlaceEntry& entry, const std::string& text) {
    return TakeIf(TruthOf(text), [&](bool x) { entry.*Field = x; });
}

constexpr int highest = 100'000;  // metres

// clang-format off
constexpr PlaceKey placeKeys[] = {
    {"Name", "", [](PlaceEntry& e, const std::string& text) { e.name = text; return true; }, [](const LocaleRecord& p) { return p.Name; }},
    {"Lat", "0", TakeNumber<&PlaceEntry::latitude, 90>, [](const LocaleRecord& p) { return ExactText(p.Latitude); }},
    {"Long", "0", TakeNumber<&PlaceEntry::longitude, 360>, [](const LocaleRecord& p) { return ExactText(p.Longitude); }},
    {"Elev", "0", TakeNumber<&PlaceEntry::elevation, highest>, [](const LocaleRecord& p) { return ExactText(p.Elevation); }},
    {"Zone", "0", TakeNumber<&PlaceEntry::zone, 24>, [](const LocaleRecord& p) { return ExactText(p.Zone); }},
    {"NoDST", "False", TakeTruth<&PlaceEntry::noDST>, [](const LocaleRecord& p) { return TruthText(p.NoDST); }},
    {"UseLMT", "False", TakeTruth<&PlaceEntry::useLMT>, [](const LocaleRecord& p) { return TruthText(p.UseLMT); }},
};
// clang-format on

}  // namespace

/// A slot without a name was never filled, and is not written.
Settings Places::UserRows() {
    Settings rows;
    for (std::size_t slot = 1; slot < UserLocales.size(); ++slot) {
        const std::string section = "User " + std::to_string(slot);
        const auto writing = [slot](const auto& give) {
            return [slot, give]() -> std::optional<std::string> {
                if (UserLocales[slot].Name.empty()) return std::nullopt;
                return give();
            };
        };
        for (const PlaceKey& row : placeKeys) {
            rows.push_back({section, row.key, row.standard,
                            [this, slot, take = row.take](const std::string& text) { return take(read_[slot], text); },
                            writing([slot, give = row.give] { return give(UserLocales[slot]); }), UserSettings});
        }
        rows.push_back({section, "Chk", "False",
                        [this, slot](const std::string& text) {
                            StoreRead(slot);
                            if (TruthOf(text).value_or(false) && !UserLocales[slot].Name.empty()) userSlot_ = slot;
                            return true;
                        },
                        writing([this, slot] { return TruthText(isUserLocaleChosen(slot)); }), UserSettings});
    }
    return rows;
}

void Places::StoreRead(std::size_t slot) {
    const PlaceEntry& entry = read_[slot];
    if (entry.name.empty()) return;
    SetUserLocale(slot, MakeLocale(entry.name, entry.name, entry.latitude, entry.longitude, entry.elevation, entry.zone,
                                   entry.noDST, true, entry.useLMT));
}

Settings Places::StoredRows() {
    Settings rows = UserRows();
    rows.push_back({"Item", "LOC", "Greenwich",
                    [this](const std::string& text) {
                        storedName_ = text;
                        return true;
                    },
                    [] { return Locale.Name; }});
    return rows;
}

void Places::UserLoc_Click(std::size_t slot) { SelectLocale(frame_.UserLoc[slot], UserLocales[slot]); }

void Places::MapLocale_Click() {
    const std::string link = MapLink(Locale, false);
    if (!link.empty()) {
        CurrentDesktop->OpenWithShell(link);
        return;
    }
    const std::string server =
        RemoveAmpersands(frame_.MapServer[static_cast<std::size_t>(web_map::options.MapIndex)].caption);
    CurrentDesktop->Tell("No form of link to " + server + " is known. Choose another map server.", "Map Server");
}

}  // namespace horvanta
