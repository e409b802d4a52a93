#include "app/history.h"

#include "astro/timescales.h"
#include "core/moment.h"

#include <cmath>

namespace horvanta {
namespace {

constexpr std::size_t longest = 1000;  // stops

}  // namespace

History::History(HorvantaMDI& frame, Places& places) : frame_(frame), places_(places) {
    frame_.Back.Click = [this] { Back_Click(); };
    frame_.Forward.Click = [this] { Forward_Click(); };
    EnableItems();
}

Moment History::Stop::Present() const {
    const auto renumbered = [this](Moment x) {
        return gregorianEpoch == GregorianEpoch ? x : x - gregorianEpoch + GregorianEpoch;
    };
    if (DeltaTDisabled) return renumbered(terrestrial);
    return isNever(universal) ? TerrestrialToUniversal(renumbered(terrestrial)) : renumbered(universal);
}

bool History::isShown(const Stop& stop) const {
    constexpr double same = 1e-9;  // days
    return std::fabs(stop.Present() - DisplayedMoment) < same && stop.place == places_.Chosen();
}

void History::Note() {
    if (!stops_.empty() && isShown(stops_[at_])) return;
    const bool runsOn = KeyHeld && at_ > 0 && at_ + 1 == stops_.size();
    stops_.resize(runsOn ? at_ : stops_.empty() ? 0 : at_ + 1, {0, 0, 0, places_.Chosen()});
    if (stops_.size() == longest) stops_.pop_front();
    stops_.push_back({DeltaTDisabled ? NeverMoment : DisplayedMoment, UniversalToTerrestrial(DisplayedMoment),
                      GregorianEpoch, places_.Chosen()});
    at_ = stops_.size() - 1;
    EnableItems();
}

void History::Walk(int direction) {
    at_ = direction < 0 ? at_ - 1 : at_ + 1;
    const Stop& stop = stops_[at_];
    DisplayedMoment = stop.Present();
    places_.Return(stop.place);
    EnableItems();
}

void History::EnableItems() {
    frame_.Back.enabled = at_ > 0;
    frame_.Forward.enabled = at_ + 1 < stops_.size();
}

}  // namespace horvanta
