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

void Places::ChooseFirst(const std::string& name, std::size_t userSlot) {
    if (userSlot != 0) {
        UserLoc_Click(userSlot);
        return;
    }
    const auto presets = Locales().first(MenuLocaleCount);
    const auto named = std::ranges::find(presets, name, &LocaleRecord::Name);
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

void Places::UserLoc_Click(std::size_t slot) { SelectLocale(frame_.UserLoc[slot], UserLocales[slot]); }

void Places::MapLocale_Click() {
    const std::string link = MapLink(Locale, false);
    if (!link.empty()) {
        CurrentDesktop->OpenWithShell(link);
        return;
    }
    const std::string server = RemoveAmpersands(frame_.MapServer[static_cast<std::size_t>(MapIndex)].caption);
    CurrentDesktop->Tell("No form of link to " + server + " is known. Choose another map server.", "Map Server");
}

}  // namespace horvanta
