#pragma once

#include "calendars/calendar_contract.h"
#include "core/controls.h"
#include "core/preferences.h"
#include "core/window_colors.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace horvanta {

/// A calendar as the month grid takes it: its place in the list, its answers, the control whose colours the grid wears,
/// and the item that shows its window.
struct GridCalendar {
    std::size_t place = 0;
    const CalendarContract* contract = nullptr;
    const Control* date = nullptr;
    MenuItem* window = nullptr;
};

/// How many places the list of calendars has.
inline constexpr std::size_t GridCalendarCount = 9;

/// When a window is open at a start that no settings tell otherwise, or whatever they tell.
enum class OpenAt { NoStart, FirstStart, EveryStart };

/// All that the program has to know of a window: loading, showing, storing, updating and unloading walk such rows.
struct WindowRow {
    Form& form;
    Control& first;                  ///< Gets the focus when the window is shown.
    std::function<void()> update{};  ///< Recomputes what it shows.
    std::function<void()> finish{};  ///< The same, when all windows have updated, for what needs the others' results. A
                                     ///< window with neither is not there yet.
    MenuItem* item = nullptr;        ///< Shows and hides it; the time window has none.
    OpenAt open = OpenAt::NoStart;
    WindowColors* colors = nullptr;
    std::vector<MenuItem*> needing{};  ///< The menu items that are of use only while it is open.
    std::vector<GridCalendar> calendars{};
    Settings settings{};                ///< What it keeps beside its position and colours.
    bool* check = &form.visible;        ///< What is kept along with its position.
    std::function<bool()> mayToggle{};  ///< Asked before it is shown or hidden, if there.
    std::function<void()> prepare{};    ///< Called before it is shown, if there.

    std::function<Position()> standardPosition{};  ///< Where it stands if no one has moved it; the program sets it.

    bool isThere() const { return update || finish; }
};

}  // namespace horvanta
