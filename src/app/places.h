#pragma once

#include "core/locale.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/time_fields.h"

#include <array>
#include <cstddef>
#include <string>

namespace horvanta {

/// A place of the user's as the settings tell it.
struct PlaceEntry {
    std::string name;
    double latitude = 0;
    double longitude = 0;
    double elevation = 0;
    double zone = 0;
    bool noDST = false;
    bool useLMT = false;
};

/// The places of the Locale menu, and the choice of one.
class Places {
  public:
    Places(HorvantaMDI& frame, TimeFields& fields);

    /// Makes the place of a menu item current and updates. A move from a place of another name is reported first, with
    /// an offer to copy the report.
    void SelectLocale(const MenuItem& item, const LocaleRecord& place);

    /// Chooses the place of a start without any question: the user's own one that was ticked, else the preset whose
    /// short name the settings tell, else Greenwich.
    void ChooseFirst();

    /// The user's own places, and these with the choice of one.
    Settings UserRows();
    Settings StoredRows();

    /// A place that was chosen, with its menu item.
    struct Choice {
        const MenuItem* item = nullptr;
        LocaleRecord place;

        bool operator==(const Choice&) const = default;
    };
    Choice Chosen() const { return {chosen_, Locale}; }

    /// Makes a place current again that was, without a report, and updates.
    void Return(const Choice& choice);

    /// Stores a place in a slot of the user's, from 1, and shows it in the menu.
    void SetUserLocale(std::size_t slot, const LocaleRecord& place);

    /// Empties a slot and takes its item out of the menu.
    void ForgetUserLocale(std::size_t slot);

    /// True if the place of a slot is the chosen one.
    bool isUserLocaleChosen(std::size_t slot) { return chosen_ == &frame_.UserLoc[slot]; }

    void UserLoc_Click(std::size_t slot);

    /// Opens the current place on the chosen web map.
    void MapLocale_Click();

  private:
    void ReportMove(const LocaleRecord& place);
    Settings SlotRows(std::size_t slot);
    bool TakeEntry(std::size_t slot);

    HorvantaMDI& frame_;
    TimeFields& fields_;
    const MenuItem* chosen_ = nullptr;
    std::array<PlaceEntry, UserLocales.size()> entries_;  ///< The user's own places.
    std::size_t userSlot_ = 0;  ///< The one that the settings tell as the chosen place; 0 for none.
    std::string storedName_;    ///< Else the preset that they tell.
};

}  // namespace horvanta
