#include "astro/crescents.h"

#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "core/memo.h"

#include <cstdint>

namespace horvanta {
namespace {

constexpr double depression = 4.5;  // degrees

/// The old crescent is the mirror image in time of the new one.
struct Crescent {
    Moment (*twilight)(Moment, double, const LocaleRecord&);
    double leastPhase, greatestPhase;  ///< Neither included.
    int away;                          ///< The sense of time in which it leaves the new moon.
    Moment (*newMoonTowards)(Moment);  ///< The next new moon in the other sense, and in this one.
    Moment (*newMoonAway)(Moment);
};

constexpr Crescent newCrescent{Dusk, 0, 90, 1, NewMoonBefore, NewMoonAfter};
constexpr Crescent oldCrescent{Dawn, 270, 360, -1, NewMoonAfter, NewMoonBefore};

double ArcOfLight(Moment universal) {
    return ArcCosDeg(CosDeg(lunar::Phase(universal)) * CosDeg(lunar::Latitude(universal)));
}

double Visible(const Crescent& crescent, Moment date, const LocaleRecord& place) {
    const Moment standardTime = crescent.twilight(date, depression, place);
    if (isNever(standardTime)) return NeverMoment;
    const Moment universal = StandardToUniversal(standardTime, place);
    const double phase = lunar::Phase(universal);
    if (phase <= crescent.leastPhase || phase >= crescent.greatestPhase) return 0;
    const double arc = ArcOfLight(universal);
    return arc >= 10.6 && arc <= 90 && lunar::Altitude(universal, place) > 4.1 ? arc : 0;
}

bool IsVisible(const Crescent& crescent, Moment date, const LocaleRecord& place) {
    const double arc = Visible(crescent, date, place);
    return arc > 0 && !isNever(arc);
}

Moment Search(const Crescent& crescent, Moment date, int step, const LocaleRecord& place) {
    for (int tries = 1; tries <= 5; ++tries) {
        const Moment day = date + step * tries;
        if (IsVisible(crescent, day, place)) return crescent.twilight(day, depression, place);
    }
    return NeverMoment;
}

/// A request for a lunation's crescent, with all that it depends on.
struct CrescentKey {
    Moment newMoon;
    int away;
    std::int64_t numbering;
    std::int64_t deltaT;
    LocaleRecord place;

    bool operator==(const CrescentKey&) const = default;
};

/// From the local day of the new moon on, that day included. The days about a new moon ask for the same two.
Moment SearchFromNewMoon(const Crescent& crescent, Moment newMoon, const LocaleRecord& place) {
    static Memo<2, CrescentKey, Moment> memo;
    return memo.Of({newMoon, crescent.away, NumberingSerial, DeltaTSerial, place}, [&] {
        const FixedDay day = Floor(UniversalToStandard(newMoon, place));
        return Search(crescent, day - crescent.away, crescent.away, place);
    });
}

/// In the sense of time towards the new moon: the crescent of the day's own lunation if it can be seen.
Moment TowardsNewMoon(const Crescent& crescent, Moment standardTime, const LocaleRecord& place) {
    FixedDay day = Floor(standardTime);
    if (IsVisible(crescent, day, place)) {
        while (IsVisible(crescent, day - crescent.away, place)) day -= crescent.away;
        return crescent.twilight(day, depression, place);
    }
    const Moment newMoon = crescent.newMoonTowards(StandardToUniversal(standardTime, place));
    const Moment found = SearchFromNewMoon(crescent, newMoon, place);
    if (isNever(found) || crescent.away * (found - standardTime) < 0) return found;
    return SearchFromNewMoon(crescent, crescent.newMoonTowards(newMoon), place);
}

Moment AwayFromNewMoon(const Crescent& crescent, Moment standardTime, const LocaleRecord& place) {
    const Moment newMoon = crescent.newMoonTowards(StandardToUniversal(standardTime, place) + crescent.away);
    const Moment found = SearchFromNewMoon(crescent, newMoon, place);
    if (isNever(found) || crescent.away * (found - standardTime) > 0) return found;
    return SearchFromNewMoon(crescent, crescent.newMoonAway(newMoon), place);
}

/// Goes by the lunations from one that is surely on the other side of the moment.
Moment Passage(const Crescent& crescent, Moment universal, int direction, const LocaleRecord& place) {
    constexpr double oneSecond = 1 / 86400.0;
    constexpr int patience = 14;
    std::int64_t n = ApproxNthMoon(universal) - 2 * direction;
    for (int lunations = 0; lunations < patience + 4; ++lunations, n += direction) {
        const Moment found = StandardToUniversal(SearchFromNewMoon(crescent, NthNewMoon(n), place), place);
        if (!isNever(found) && direction * (found - universal) > oneSecond) return found;
    }
    return NeverMoment;
}

}  // namespace

double VisibleCrescent(Moment date, const LocaleRecord& place) { return Visible(newCrescent, date, place); }
double VisibleOldCrescent(Moment date, const LocaleRecord& place) { return Visible(oldCrescent, date, place); }

Moment VisibleCrescentSearch(Moment date, int step, const LocaleRecord& place) {
    return Search(newCrescent, date, step, place);
}
Moment VisibleOldCrescentSearch(Moment date, int step, const LocaleRecord& place) {
    return Search(oldCrescent, date, step, place);
}

Moment VisibleCrescentBefore(Moment standardTime, const LocaleRecord& place) {
    return TowardsNewMoon(newCrescent, standardTime, place);
}
Moment VisibleCrescentAfter(Moment standardTime, const LocaleRecord& place) {
    return AwayFromNewMoon(newCrescent, standardTime, place);
}
Moment VisibleOldCrescentBefore(Moment standardTime, const LocaleRecord& place) {
    return AwayFromNewMoon(oldCrescent, standardTime, place);
}
Moment VisibleOldCrescentAfter(Moment standardTime, const LocaleRecord& place) {
    return TowardsNewMoon(oldCrescent, standardTime, place);
}

Moment CrescentPassage(Moment universal, int direction, const LocaleRecord& place) {
    return Passage(newCrescent, universal, direction, place);
}
Moment OldCrescentPassage(Moment universal, int direction, const LocaleRecord& place) {
    return Passage(oldCrescent, universal, direction, place);
}

}  // namespace horvanta
