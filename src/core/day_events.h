#pragma once

#include "core/controls.h"

#include <string>
#include <string_view>
#include <vector>

/// What happens on the displayed day. The list is emptied when an update pass begins; each window adds its own.
namespace horvanta::day_events {

struct Event {
    std::string calendar;
    std::string date;
    std::string text;
    std::optional<ColorPair> colors;
};

/// The day's events in the order in which they were added.
const std::vector<Event>& List();

void Clear();

/// Appends an event to the list, in the colours of the control that shows its date.
void Add(std::string_view calendar, std::string_view date, std::string_view text, const Control& control);

/// Appends what the day of a date is, one event a text.
void AddAll(std::string_view calendar, std::string_view date, const std::vector<std::string>& texts,
            const Control& control);

}  // namespace horvanta::day_events
