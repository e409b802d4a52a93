#pragma once

#include "core/shell.h"

#include <cstdint>
#include <string>

namespace horvanta {

class TimeAstro;

/// The commands that move the displayed moment to another one, known or searched for.
class Jumps {
  public:
    Jumps(HorvantaMDI& frame, TimeAstro& time);

    /// The computer's date at midnight, and its date with the time of day.
    void MenuJumpToToday_Click();
    void MenuJumpToNow_Click();

    /// Keeps the displayed moment as the saved one, and the way back to it.
    void SaveThisMoment_Click();
    void JumpToSaved_Click();

    /// The day that the numbering is told by.
    void FixedDayEpoch_Click();

    /// The first lunation of the chosen numbering, and any lunation, or phase of one, that the user tells.
    void LunationAtEpoch_Click();
    void ArbitraryLunation_Click();

    /// Asks for a number of steps and takes them.
    void JumpBy_Click();

    // The last event before and the first after the moment, by the number of its item. Where there is none the moment
    // stays.
    void PrevMenu_Click(std::int32_t index);
    void NextMenu_Click(std::int32_t index);

    /// Repeats the last of them.
    void JumpAgain_Click();

    /// Names the event that Again searches for, by the present caption of its item.
    void SetAgainCaption();

  private:
    void HangSearches();
    void JumpToEvent(std::int32_t index);

    /// What an item of the menus of events seeks and which way, its number below 0 for the previous one.
    std::string EventName(std::int32_t index) const;

    HorvantaMDI& frame_;
    TimeAstro& time_;
    std::int32_t nextPrevIndex_ = 0;  ///< Of the last event: its item, negative for a previous one.
};

}  // namespace horvanta
