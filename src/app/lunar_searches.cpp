#include "app/lunar_searches.h"

#include "astro/crescents.h"
#include "astro/ephemeris_files.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"

#include <cstdint>

namespace horvanta {
namespace {

/// The Moon at a multiple of 90° in a lunation by its true number: as the file of quarters has it, else from its own
/// new Moon on, so that it has one moment from wherever it is searched for.
Moment QuarterOf(std::int64_t n, double phase) {
    if (const auto listed = ephemeris::ListedQuarter(n - FirstNewMoonOf2000, phase)) return *listed;
    return phase == 0 ? NthNewMoon(n) : PhaseAfter(NthNewMoon(n), phase);
}

/// The first of them after a moment, or the last before it.
Moment QuarterBeside(Moment from, double phase, int direction) {
    constexpr int farthest = 3;  // lunations by which the first number may be off
    std::int64_t n = ApproxNthMoon(from) - direction * farthest;
    Moment found = QuarterOf(n, phase);
    while (direction * (found - from) <= 0) found = QuarterOf(n += direction, phase);
    return found;
}

Moment QuarterAfter(Moment from, double phase) { return QuarterBeside(from, phase, 1); }
Moment QuarterBefore(Moment from, double phase) { return QuarterBeside(from, phase, -1); }

/// The first crescent after a new Moon, and the last before it.
Moment CrescentAfter(Moment newMoon) { return StandardToUniversal(VisibleCrescentAfter(UniversalToStandard(newMoon))); }
Moment OldCrescentBefore(Moment newMoon) {
    return StandardToUniversal(VisibleOldCrescentBefore(UniversalToStandard(newMoon)));
}

/// In tenths of a degree; a whole quarter at its own moment, whatever the series say there.
double TenthsOfPhase(Moment universal) {
    constexpr double fewMinutes = 0.003;  // days
    const double phase = lunar::Phase(universal);
    const double quarter = Degrees(Round(phase / 90) * 90);
    const bool isQuarter = universal - QuarterBefore(universal + fewMinutes, quarter) < fewMinutes;
    return isQuarter ? quarter : Degrees(Round(phase, 1));
}

Moment PreviousLunarEvent(Moment from) {
    const double phase = TenthsOfPhase(from);
    if (phase <= 90) {
        if (phase == 0) {
            const Moment old = OldCrescentBefore(from);
            return isNever(old) ? QuarterBefore(from, 270) : old;
        }
        const Moment newMoon = QuarterBefore(from, 0);
        const Moment crescent = CrescentAfter(newMoon);
        return crescent < from ? crescent : newMoon;
    }
    if (phase <= 180) return QuarterBefore(from + 1, 90);
    if (phase <= 270) return QuarterBefore(from + 1, 180);
    const Moment old = OldCrescentBefore(QuarterAfter(from, 0));
    return old < from ? old : QuarterBefore(from + 1, 270);
}

Moment NextLunarEvent(Moment from) {
    const double phase = TenthsOfPhase(from);
    if (phase < 90) {
        constexpr double reach = 10;  // days, in which the new Moon lies
        const Moment crescent = CrescentAfter(NewMoonAfter(from - reach));
        return from < crescent && !isNever(crescent) ? crescent : QuarterAfter(from - 1, 90);
    }
    if (phase < 180) return QuarterAfter(from - 1, 180);
    if (phase < 270) return QuarterAfter(from - 1, 270);
    const Moment newMoon = QuarterAfter(from, 0);
    const Moment old = OldCrescentBefore(newMoon);
    return from < old && !isNever(old) ? old : newMoon;
}

}  // namespace

Moment JumpLunarEvent(Moment from, int direction) {
    return direction > 0 ? NextLunarEvent(from) : PreviousLunarEvent(from);
}

Moment JumpNewMoon(Moment from, int direction) { return QuarterBeside(from, 0, direction); }

Moment JumpQuarter(Moment from, double phase, int direction) {
    constexpr double farEnough = 3;  // days
    const bool isPresent = direction < 0 && Round(lunar::Phase(from)) == phase;
    return QuarterBeside(isPresent ? from - farEnough : from, phase, direction);
}

}  // namespace horvanta
