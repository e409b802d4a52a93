#include "views/events_window.h"

#include "core/day_events.h"
#include "core/desktop.h"
#include "core/text.h"

namespace horvanta {
namespace {

/// One dimension of the window, in twips. A window that was never stored has its standard one; 0 is as large as the
/// frame has room for.
Setting SizeRow(std::string_view key, std::string_view standard, double& size) {
    constexpr double farthest = 1e6;
    return {"Item", std::string(key), std::string(standard),
            [&size](const std::string& text) {
                return TakeIf(NumberOf(text, 0, farthest), [&size](double x) { size = x; });
            },
            [&size] { return GeneralText(Round(size)); }};
}

}  // namespace

EventsWindow::EventsWindow(HorvantaMDI& frame) : frame_(frame) {
    form.resizable = true;
    EventsGrid.headings = {"Calendar", "Date and/or Time", "Event"};
    EventsGrid.RowClick = [this](std::size_t row) { EventsGrid_Click(row); };
    EventsGrid.Click = [this] {
        if (EventsGrid.rows.empty()) Refuse("nothing happens on this day");
        frame_.TakeFocus();
    };
}

WindowRow EventsWindow::Row() {
    return {.form = form,
            .first = EventsGrid,
            .finish = [this] { Update(); },
            .item = &frame_.ShowEvents,
            .open = OpenAt::FirstStart,
            .settings = StoredRows()};
}

Settings EventsWindow::StoredRows() {
    return {SizeRow("EW", "9360", form.position.width), SizeRow("EH", "0", form.position.height)};
}

void EventsWindow::Update() {
    EventsGrid.rows.clear();
    for (const day_events::Event& event : day_events::List()) {
        EventsGrid.rows.push_back({{event.calendar, event.date, event.text}, event.colors});
    }
}

void EventsWindow::EventsGrid_Click(std::size_t row) {
    const auto& cells = EventsGrid.rows[row].cells;
    frame_.SetClipboardText(cells[2] + ", " + cells[1] + " (" + cells[0] + ")");
    frame_.TakeFocus();
}

}  // namespace horvanta
