#include "app/lunar_searches.h"

#include "astro/crescents.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"

#include <cmath>

namespace horvanta {
namespace {

constexpr double fewMinutes = 0.002;  // days
constexpr double reach = 10;          // days between a new Moon and what belongs to it

/// A quarter is found again from its own new Moon, so that it has one moment from wherever it is searched for.
Moment Settled(Moment quarter, double phase) { return PhaseAfter(NewMoonBefore(quarter), phase); }

Moment QuarterAfter(Moment from, double phase) { return Settled(PhaseAfter(from, phase), phase); }
Moment QuarterBefore(Moment from, double phase) { return Settled(PhaseBefore(from, phase), phase); }

Moment CrescentAfter(Moment from) { return StandardToUniversal(VisibleCrescentAfter(UniversalToStandard(from))); }
Moment OldCrescentBefore(Moment from) {
    return StandardToUniversal(VisibleOldCrescentBefore(UniversalToStandard(from)));
}

/// In tenths of a degree; 0 at a new Moon.
double TenthsOfPhase(Moment universal) {
    if (std::fabs(NewMoonNearest(universal) - universal) < fewMinutes) return 0;
    return Degrees(Round(lunar::Phase(universal), 1));
}

Moment PreviousLunarEvent(Moment from) {
    const double phase = TenthsOfPhase(from);
    if (phase <= 90) {
        const Moment crescent = CrescentAfter(from - reach);
        if (crescent < from) return crescent;
        if (phase > 0) return NewMoonBefore(from + 1);
        const Moment old = OldCrescentBefore(from);
        return isNever(old) ? QuarterBefore(from, 270) : old;
    }
    if (phase <= 180) return QuarterBefore(from + 1, 90);
    if (phase <= 270) return QuarterBefore(from + 1, 180);
    const Moment old = OldCrescentBefore(from + reach);
    return old < from ? old : QuarterBefore(from + 1, 270);
}

Moment NextLunarEvent(Moment from) {
    const double phase = TenthsOfPhase(from);
    if (phase < 90) {
        const Moment crescent = CrescentAfter(NewMoonAfter(from - reach));
        return from < crescent && !isNever(crescent) ? crescent : QuarterAfter(from - 1, 90);
    }
    if (phase < 180) return QuarterAfter(from - 1, 180);
    if (phase < 270) return QuarterAfter(from - 1, 270);
    const Moment old = StandardToUniversal(VisibleOldCrescentAfter(UniversalToStandard(from - reach)));
    return from < old && !isNever(old) ? old : NewMoonAfter(from - 1);
}

}  // namespace

Moment JumpLunarEvent(Moment from, int direction) {
    return direction > 0 ? NextLunarEvent(from) : PreviousLunarEvent(from);
}

Moment JumpNewMoon(Moment from, int direction) { return direction > 0 ? NewMoonAfter(from) : NewMoonBefore(from); }

Moment JumpQuarter(Moment from, double phase, int direction) {
    constexpr double farEnough = 3;  // days
    if (direction < 0) {
        const bool atQuarter = Round(lunar::Phase(from)) == phase;
        return QuarterBefore(atQuarter ? from - farEnough : from, phase);
    }
    const Moment found = QuarterAfter(from, phase);
    return found - from > fewMinutes ? found : QuarterAfter(from + farEnough, phase);
}

}  // namespace horvanta
