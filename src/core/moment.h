#pragma once

#include "core/numbering.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// The one moment that every window shows, and the update cycle that shows it.
namespace horvanta {

inline Moment DisplayedMoment = 0;    ///< Universal Time. 0 at start means that none was ever set.
inline Moment SavedMoment = 0;        ///< Universal Time; what Save This Moment keeps.
inline double Increment = 1;          ///< Days to a step of the step keys.
inline std::int16_t BusyCount = 0;    ///< While above 0, `UpdateStatus` only clamps.
inline std::int16_t UpdateDepth = 0;  ///< How many runs of `UpdateStatus` are pending.
inline bool Quitting = false;         ///< The windows are being closed for good.
inline bool KeyHeld = false;          ///< The present act repeats the last one, by a key that is held.

namespace stepping {
struct Options {
    std::int32_t StepIndex = 1;    ///< Which item of the step menu is chosen, from 1.
    bool StepsBySolarYear = true;  ///< Steps of years keep the solar longitude, else the rotation-adjusted date.
    bool AlwaysToday = true;       ///< Each start shows the present day.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace stepping

/// Recomputes every open window from `DisplayedMoment`; one pass of `UpdateStatus`. The program hangs it here.
inline std::function<void()> UpdatePass;

/// Why a moment can't be displayed: "the range ends at year 12000"; nothing for one that can.
std::string_view WhyBeyondRange(Moment x);

/// A moment that can be displayed: x itself, or with a beep the nearer end of the range (the first for NaN).
Moment ClampToRange(Moment x);

/// Clamps `DisplayedMoment` and runs a pass. Called from within a pass, by an event that the pass let in, it returns at
/// once and the pass runs again.
void UpdateStatus();

/// Holds all updates while it lives.
class BusyHold {
  public:
    BusyHold() { ++BusyCount; }
    ~BusyHold() { --BusyCount; }
    BusyHold(const BusyHold&) = delete;
    BusyHold& operator=(const BusyHold&) = delete;
};

/// `SetFixedDayEpoch` such that the displayed and the saved moment keep their dates and times of day; then an update.
void ChangeFixedDayEpoch(Moment day, double value, const std::string& name);

/// The computer's local date, and the same with its time of day.
FixedDay Today();
Moment Now();

}  // namespace horvanta
