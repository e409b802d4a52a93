#pragma once

#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <cstddef>

namespace horvanta {

/// What happens on the displayed day in all windows that are open.
class EventsWindow {
  public:
    explicit EventsWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Its size.
    Settings StoredRows();

    /// Lists the day's events, each in the colours of its calendar.
    void Update();

    /// Copies a row.
    void EventsGrid_Click(std::size_t row);

    // clang-format off
    Form form{"Events", "Events and Holidays"};
    RowTable EventsGrid{form, "EventsGrid", Named("Events of the displayed day"), Tip("Click an event to copy it")};
    // clang-format on

  private:
    HorvantaMDI& frame_;
};

}  // namespace horvanta
