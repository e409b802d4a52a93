#include "app/jumps.h"

#include "app/event_searches.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "clock/zone_time.h"
#include "core/desktop.h"
#include "core/moment.h"
#include "core/text.h"
#include "lunar/lunar_options.h"
#include "views/time_astro.h"

#include <cstdlib>

namespace horvanta {
namespace {

void JumpToMoment(Moment universal) {
    DisplayedMoment = universal;
    UpdateStatus();
}

const EventItem& ItemAt(std::int32_t index) { return EventItems[static_cast<std::size_t>(std::abs(index) - 1)]; }

}  // namespace

Jumps::Jumps(HorvantaMDI& frame, TimeAstro& time) : frame_(frame), time_(time) {
    frame_.SaveThisMoment.Click = [this] { SaveThisMoment_Click(); };
    frame_.JumpToSaved.Click = [this] { JumpToSaved_Click(); };
    frame_.MenuJumpToToday.Click = [this] { MenuJumpToToday_Click(); };
    frame_.MenuJumpToNow.Click = [this] { MenuJumpToNow_Click(); };
    frame_.FixedDayEpoch.Click = [this] { FixedDayEpoch_Click(); };
    frame_.LunationAtEpoch.Click = [this] { LunationAtEpoch_Click(); };
    frame_.ArbitraryLunation.Click = [this] { ArbitraryLunation_Click(); };
    frame_.JumpBy.Click = time_.IncrementDisplay.Click = [this] { JumpBy_Click(); };
    frame_.JumpAgain.Click = time_.JumpAgainButton.Click = [this] { JumpAgain_Click(); };
    HangSearches();
    SetAgainCaption();
}

void Jumps::HangSearches() {
    for (std::size_t number = 1; number <= EventCaptions.size(); ++number) {
        if (!FindEventSearch(EventItems[number - 1].event)) continue;
        const auto index = static_cast<std::int32_t>(number);
        frame_.PrevMenu[number].Click = [this, index] { PrevMenu_Click(index); };
        frame_.NextMenu[number].Click = [this, index] { NextMenu_Click(index); };
    }
}

void Jumps::MenuJumpToToday_Click() { JumpToMoment(Today()); }

void Jumps::MenuJumpToNow_Click() {
    JumpToMoment(StandardToUniversal(DaylightToStandard(Now())));
    time_.TakeFocus();
}

void Jumps::SaveThisMoment_Click() {
    SavedMoment = DisplayedMoment;
    UpdateStatus();
}

void Jumps::JumpToSaved_Click() { JumpToMoment(SavedMoment); }

void Jumps::FixedDayEpoch_Click() { JumpToMoment(FixedEpochValue); }

void Jumps::LunationAtEpoch_Click() {
    const LunationConvention& convention = ChosenLunationConvention();
    JumpToMoment(NumberedLunation(convention.FirstLunation, convention));
}

void Jumps::ArbitraryLunation_Click() {
    const LunationConvention& convention = ChosenLunationConvention();
    const double first = Ceiling(MomentToLunation(MinFixedDay)) + convention.Offset + 1;
    const double last = Floor(MomentToLunation(MaxFixedDay)) + convention.Offset - 1;
    const std::string name = std::string(convention.Name) + " Lunation Number";
    const auto answer = CurrentDesktop->AskText(
        "Enter or paste " + name + "\n(include decimal fraction for arbitrary phase)\nAllowed range " +
            GeneralText(first) + " to " + GeneralText(last) + "\n(else beep and no effect)",
        name, "");
    if (!answer) return;
    const auto number = ParseNumber(*answer);
    if (!number) return;
    if (*number >= first && *number <= last) {
        JumpToMoment(NumberedLunation(*number, convention));
    } else {
        Refuse("lunation numbers range from " + GeneralText(first) + " to " + GeneralText(last));
    }
}

void Jumps::JumpBy_Click() {
    const std::string steps = time_.StepCaption();
    const auto answer = CurrentDesktop->AskText(
        "Enter or paste the desired offset as the number of " + steps + " relative to the displayed " +
            (Increment == Floor(Increment) ? "day" : "moment") + ", optionally with a decimal fraction:",
        "Enter how many " + steps + " to jump", "");
    if (!answer) return;
    if (const auto count = ParseNumber(*answer)) time_.JumpDate(*count, false);
}

void Jumps::PrevMenu_Click(std::int32_t index) { JumpToEvent(-index); }
void Jumps::NextMenu_Click(std::int32_t index) { JumpToEvent(index); }
void Jumps::JumpAgain_Click() { JumpToEvent(nextPrevIndex_); }

void Jumps::JumpToEvent(std::int32_t index) {
    nextPrevIndex_ = index;
    SetAgainCaption();
    const Moment found = FindEventSearch(ItemAt(index).event)->jump(DisplayedMoment, Sign(index));
    if (isNever(found)) {
        Refuse("no " + EventName(index) + " within the range");
    } else {
        DisplayedMoment = found;
    }
    UpdateStatus();
    time_.TakeFocus();
}

std::string Jumps::EventName(std::int32_t index) const {
    return (index < 0 ? "Previous " : "Next ") +
           RemoveAmpersands(frame_.NextMenu[static_cast<std::size_t>(std::abs(index))].caption);
}

void Jumps::SetAgainCaption() {
    const bool known = nextPrevIndex_ != 0;
    frame_.JumpAgain.enabled = time_.JumpAgainButton.enabled = known;
    if (!known) return;
    const std::string event = EventName(nextPrevIndex_);
    frame_.JumpAgain.caption = "Again (" + event + ")";
    time_.JumpAgainButton.tooltip = "Again invoke the \"" + event + "\" command";
}

}  // namespace horvanta
