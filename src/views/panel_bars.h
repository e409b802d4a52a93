#pragma once

#include "core/controls.h"
#include "core/numerics.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// Two bars of which one names what the other shows, panel by panel: the events of a day and their times.
namespace horvanta {

/// The time on the clocks of the current place, of a moment of the zone's standard time; "never" for `NeverMoment`.
std::string ClockText(Moment standardTime);

/// Adds a panel to both bars, known by its key.
void AddPanel(StatusBar& legends, StatusBar& times, std::string_view key, std::string_view legend);

/// Makes a click on a panel of either bar one command, and has the one bar name the other's panels.
void HangPanels(StatusBar& legends, StatusBar& times, const std::function<void(std::size_t index)>& click);

}  // namespace horvanta
