#include "views/panel_bars.h"

#include "clock/zone_time.h"
#include "core/text.h"

namespace horvanta {

std::string ClockText(Moment standardTime) { return FormatTime(StandardToDaylight(standardTime), 0); }

void AddPanel(StatusBar& legends, StatusBar& times, std::string_view key, std::string_view legend) {
    legends.panels.push_back({std::string(key), std::string(legend), ""});
    times.panels.push_back({std::string(key), "", ""});
}

void HangPanels(StatusBar& legends, StatusBar& times, const std::function<void(std::size_t index)>& click) {
    legends.legends = times.legends = &legends;
    legends.PanelClick = times.PanelClick = click;
}

}  // namespace horvanta
