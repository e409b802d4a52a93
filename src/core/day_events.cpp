#include "core/day_events.h"

namespace horvanta::day_events {
namespace {

std::vector<Event> events;

}  // namespace

const std::vector<Event>& List() { return events; }

void Clear() { events.clear(); }

void Add(std::string_view calendar, std::string_view date, std::string_view text, const Control& control) {
    events.push_back({std::string(calendar), std::string(date), std::string(text), control.colors});
}

void AddAll(std::string_view calendar, std::string_view date, const std::vector<std::string>& texts,
            const Control& control) {
    for (const std::string& text : texts) Add(calendar, date, text, control);
}

}  // namespace horvanta::day_events
