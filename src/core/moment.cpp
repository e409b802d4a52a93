#include "core/moment.h"

#include "core/desktop.h"

namespace horvanta {
namespace {

/// The moment of the same date and time of day after the numbering moved by `shift`.
Moment Renumbered(Moment x, double shift) {
    constexpr int decimals = 9;  // behind them the day number's own digits leave nothing but noise
    return Floor(Round(x, decimals)) + shift + Round(DayFraction(x), decimals);
}

}  // namespace

std::string_view WhyBeyondRange(Moment x) {
    if (x > MaxFixedDay) return "the range ends at year 12000";
    return x >= MinFixedDay ? "" : "the range begins at year -6937";
}

Moment ClampToRange(Moment x) {
    const std::string_view why = WhyBeyondRange(x);
    if (why.empty()) return x;
    Refuse(why);
    return x > MaxFixedDay ? MaxFixedDay : MinFixedDay;
}

void UpdateStatus() {
    DisplayedMoment = ClampToRange(DisplayedMoment);
    if (BusyCount > 0) return;
    if (++UpdateDepth > 1) return;
    do {
        if (UpdatePass) UpdatePass();
    } while (--UpdateDepth > 0);
    if (BusyCount < 0) BusyCount = 0;
}

void ChangeFixedDayEpoch(Moment day, double value, const std::string& name) {
    const double before = GregorianEpoch;
    SetFixedDayEpoch(day, value, name);
    const double shift = GregorianEpoch - before;
    DisplayedMoment = Renumbered(DisplayedMoment, shift);
    SavedMoment = Renumbered(SavedMoment, shift);
    UpdateStatus();
}

FixedDay Today() { return UnixEpoch + CurrentDesktop->Clock().daysSince1970; }

Moment Now() {
    const LocalClock clock = CurrentDesktop->Clock();
    return UnixEpoch + clock.daysSince1970 + clock.fractionOfDay;
}

}  // namespace horvanta
