#pragma once

#include "core/numerics.h"

/// The searches of the menus for what the Moon does. Each takes a universal moment and finds the first after it
/// (direction 1) or the last before it (-1); crescents are those that the current place sees.
namespace horvanta {

/// New Moon, first crescent, first quarter, full Moon, last quarter or old crescent, whichever it is. Where the place
/// sees no crescent of a lunation it is passed over.
Moment JumpLunarEvent(Moment from, int direction);

Moment JumpNewMoon(Moment from, int direction);

/// The Moon at a phase of 90, 180 or 270 degrees. Backwards, one less than half a degree ago counts as the present.
Moment JumpQuarter(Moment from, double phase, int direction);

}  // namespace horvanta
