#pragma once

#include "app/time_fields.h"
#include "core/shell.h"
#include "locale/locale.h"

#include <cstddef>
#include <string>

namespace horvanta {

/// The places of the Locale menu, and the choice of one.
class Places {
  public:
    Places(HorvantaMDI& frame, TimeFields& fields);

    /// Makes the place of a menu item current and updates. A move from a place of another name is reported first, with
    /// an offer to copy the report.
    void SelectLocale(const MenuItem& item, const LocaleRecord& place);

    /// Chooses the place of a start without any question: the user's own one that was ticked, else the preset of that
    /// short name, else Greenwich.
    void ChooseFirst(const std::string& name, std::size_t userSlot);

    /// Stores a place in a slot of the user's, from 1, and shows it in the menu.
    void SetUserLocale(std::size_t slot, const LocaleRecord& place);

    /// True if the place of a slot is the chosen one.
    bool isUserLocaleChosen(std::size_t slot) { return chosen_ == &frame_.UserLoc[slot]; }

    void UserLoc_Click(std::size_t slot);

    /// Opens the current place on the chosen web map.
    void MapLocale_Click();

  private:
    void ReportMove(const LocaleRecord& place);

    HorvantaMDI& frame_;
    TimeFields& fields_;
    const MenuItem* chosen_ = nullptr;
};

}  // namespace horvanta
