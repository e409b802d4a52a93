#include "app/places.h"

#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "locale/locale_text.h"
#include "locale/presets.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <type_traits>
#include <vector>

namespace horvanta {
namespace {

/// Chooses an access key for each item of a menu, no two alike: first letters of words as far as they go.
class AccessKeys {
  public:
    explicit AccessKeys(const std::vector<MenuItem*>& items) : items_(items) {
        for (const bool withinWords : {false, true}) {
            for (MenuItem* item : items_) {
                std::vector<bool> tried(letters);
                if (!hasKey(item)) Choose(item, withinWords, tried);
            }
        }
    }

    void Mark() const {
        for (const auto& [item, at] : owners_) {
            if (item) item->caption.insert(at, "&");
        }
    }

  private:
    static constexpr std::size_t letters = 26;
    struct Owner {
        MenuItem* item = nullptr;
        std::size_t at = 0;  ///< Of the letter in the caption.
    };

    bool hasKey(const MenuItem* item) const { return std::ranges::find(owners_, item, &Owner::item) != owners_.end(); }

    /// Gives an item one of its letters, if need be one whose owner finds another.
    bool Choose(MenuItem* item, bool withinWords, std::vector<bool>& tried) {
        const std::string& caption = item->caption;
        for (std::size_t i = 0; i < caption.size(); ++i) {
            const auto letter = static_cast<std::size_t>((caption[i] | 0x20) - 'a');
            const bool isStart = i == 0 || caption[i - 1] == ' ';
            if (letter >= letters || tried[letter] || !(isStart || withinWords)) continue;
            tried[letter] = true;
            Owner& owner = owners_[letter];
            if (owner.item && !Choose(owner.item, withinWords, tried)) continue;
            owner = {item, i};
            return true;
        }
        return false;
    }

    std::vector<MenuItem*> items_;
    std::array<Owner, letters> owners_{};
};

/// Puts the places of the menu in the order of their names, below the user's own.
void SortPlaces(MenuItem& menu, std::span<MenuItem> places) {
    const auto first = std::ranges::find(menu.items, &places.front());
    std::ranges::sort(first, first + static_cast<std::ptrdiff_t>(places.size()), {}, &MenuItem::caption);
    std::vector<MenuItem*> items(first, menu.items.end());
    items.push_back(menu.items.front());
    AccessKeys(items).Mark();
}

}  // namespace

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
    SortPlaces(frame_.LocaleMenu, frame_.Presets);
    frame_.MapLocale.Click = [this] { MapLocale_Click(); };
}

void Places::SelectLocale(const MenuItem& item, const LocaleRecord& place) {
    const bool moves = place != Locale && place.Name != Locale.Name && !Locale.Location.empty();
    if (moves) ReportMove(place);
    Return({&item, place});
}

void Places::Return(const Choice& choice) {
    chosen_ = choice.item;
    if (choice.place != Locale) {
        Locale = choice.place;
        fields_.SetDSTinfo();
        fields_.UpdateLocaleCaption();
        fields_.SetSunBelowHorizon();
    }
    UpdateStatus();
}

void Places::ReportMove(const LocaleRecord& place) {
    const std::string report = LocaleChangeReport(Locale, place);
    if (CurrentDesktop->ShowInformation(report, "New Locale")) {
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
    entries_[slot] = {place.Name, place.Latitude, place.Longitude, place.Elevation,
                      place.Zone, place.NoDST,    place.UseLMT};
    MenuItem& item = frame_.UserLoc[slot];
    item.caption = ReplaceAll(place.Name, "&", "&&");
    item.ShowsWhen([this, &item] { return chosen_ == &item; });
    item.Click = [this, slot] { UserLoc_Click(slot); };
}

void Places::ForgetUserLocale(std::size_t slot) {
    UserLocales[slot] = {};
    entries_[slot] = {};
    frame_.UserLoc[slot].Click = nullptr;
}

/// The keys of a slot. One without a name holds no place; only that is written, where there was one.
Settings Places::SlotRows(std::size_t slot) {
    constexpr double highest = 100'000;  // metres
    const std::string section = "User " + std::to_string(slot);
    PlaceEntry& entry = entries_[slot];
    Settings rows{{section, "Name", "",
                   [&entry](const std::string& text) {
                       entry.name = NameText(text);
                       return true;
                   },
                   [&entry] { return entry.name; }},
                  NumberRow(section, "Lat", entry, &PlaceEntry::latitude, -90, 90),
                  NumberRow(section, "Long", entry, &PlaceEntry::longitude, -360, 360),
                  NumberRow(section, "Elev", entry, &PlaceEntry::elevation, -highest, highest),
                  NumberRow(section, "Zone", entry, &PlaceEntry::zone, -24, 24),
                  TruthRow(section, "NoDST", entry, &PlaceEntry::noDST),
                  TruthRow(section, "UseLMT", entry, &PlaceEntry::useLMT),
                  {section, "Chk", TruthText(false),
                   [this, slot](const std::string& text) {
                       if (TakeEntry(slot) && TruthOf(text).value_or(false)) userSlot_ = slot;
                       return true;
                   },
                   [this, slot] { return TruthText(isUserLocaleChosen(slot)); }}};
    for (Setting& row : rows) {
        row.application = UserSettings;
        const bool isName = row.key == "Name";
        row.give = [&entry, section, isName, give = row.give]() -> std::optional<std::string> {
            const bool emptied = isName && CurrentDesktop->Settings().Read(UserSettings, section, "Name").has_value();
            return entry.name.empty() && !emptied ? std::nullopt : give();
        };
    }
    return rows;
}

/// Makes a place of what the settings told of a slot, if they told anything.
bool Places::TakeEntry(std::size_t slot) {
    const PlaceEntry& entry = entries_[slot];
    if (entry.name.empty()) return false;
    SetUserLocale(slot, MakeLocale(entry.name, entry.name, entry.latitude, entry.longitude, entry.elevation, entry.zone,
                                   entry.noDST, true, entry.useLMT));
    return true;
}

Settings Places::UserRows() {
    Settings rows;
    for (std::size_t slot = 1; slot < UserLocales.size(); ++slot) Append(rows, SlotRows(slot));
    return rows;
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
