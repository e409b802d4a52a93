#include "core/day_events.h"

#include "core/moment.h"

namespace horvanta::day_events {
namespace {

std::vector<Event> events;

}  // namespace

const std::vector<Event>& List() { return events; }

void Clear() { events.clear(); }

void Add(std::string_view calendar, std::string_view date, std::string& holidays, std::string_view text,
         const Control& control) {
    if (text.empty()) return;
    if (!holidays.empty()) holidays += ", ";
    holidays += text;
    if (BusyCount > 0) return;
    events.push_back({std::string(calendar), std::string(date), std::string(text), control.colors});
}

}  // namespace horvanta::day_events
