#pragma once

/// The commands that move the displayed moment to another one that is known.
namespace horvanta {

/// The computer's date, at midnight.
void MenuJumpToToday_Click();

/// Keeps the displayed moment as the saved one, and the way back to it.
void SaveThisMoment_Click();
void JumpToSaved_Click();

}  // namespace horvanta
