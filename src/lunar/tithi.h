#pragma once

#include "core/numerics.h"

#include <string>

/// The thirtieth parts of a lunation by the phase of the Moon, 12° each, as the calendars of India count them, and
/// steps from a phase to the same one. Moments are universal.
namespace horvanta {

/// "Vedic Sukla Paksha Tithi 3 = Tritiya", the tithi of a phase in degrees, of [0, 360] or signed.
std::string VedicTithi(double phase);

/// The start of the next tithi (direction 1), or of this one or the one before (-1).
Moment JumpTithi(Moment from, int direction);

/// So many lunations later, to the phase that the Moon has at `from`; a fraction of a lunation moves the phase as far
/// round. A search that would begin out of the displayable range begins at its end, with a beep.
Moment JumpCycles(Moment from, double cycles);

}  // namespace horvanta
