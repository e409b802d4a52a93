#include "views/lunar_events.h"

#include "astro/crescents.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/moon_events.h"
#include "clock/zone_time.h"
#include "core/text.h"
#include "lunar/lunar_options.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace horvanta {
namespace {

std::string TenthsOfDegree(double degrees) { return FormatNumber(degrees, "0.0") + "°"; }

Moment ClockTime(Moment universal, const LocaleRecord& place) {
    return StandardToDaylight(UniversalToStandard(universal, place), place);
}

/// "17:32:10 UT+2h 0m"
std::string TimeText(Moment standardTime, const LocaleRecord& place) {
    const Moment clockTime = StandardToDaylight(standardTime, place);
    const double ahead = clockTime - StandardToUniversal(standardTime, place);
    return FormatTime(clockTime, 0) + " UT" + (ahead < 0 ? "–" : "+") + FormatTime(std::fabs(ahead), 4);
}

std::string AzimuthText(Moment universal, const LocaleRecord& place) {
    return ", azimuth " + TenthsOfDegree(lunar::Bearing(universal, place));
}

/// What is said of a crescent, and the arc of light by which a day has it.
struct Crescent {
    std::string_view text;
    double (*arcOn)(Moment date, const LocaleRecord& place);
};

constexpr Crescent newCrescent{"First new crescent at local dusk", VisibleCrescent};
constexpr Crescent oldCrescent{"Last old crescent at local dawn", VisibleOldCrescent};

LunarEvent CrescentEvent(const Crescent& crescent, Moment standardTime, const LocaleRecord& place) {
    const Moment universal = StandardToUniversal(standardTime, place);
    return {TimeText(standardTime, place), std::string(crescent.text) + AzimuthText(universal, place) + ", arc " +
                                               TenthsOfDegree(crescent.arcOn(Floor(standardTime), place)) +
                                               ", phase of the next day " + PhaseText(lunar::Phase(universal + 1))};
}

/// Only about the new Moon are there crescents to look for.
void AddCrescents(std::vector<LunarEvent>& events, Moment universal, const LocaleRecord& place) {
    constexpr double youngest = 60;
    constexpr double oldest = 300;
    const double phase = lunar::Phase(universal);
    const FixedDay day = Floor(ClockTime(universal, place));
    const auto add = [&](const Crescent& crescent, Moment standardTime) {
        if (Floor(StandardToDaylight(standardTime, place)) != day || isNever(standardTime)) return;
        events.push_back(CrescentEvent(crescent, standardTime, place));
    };
    if (phase < youngest)
        add(newCrescent, VisibleCrescentAfter(UniversalToStandard(NewMoonBefore(universal + 1), place), place));
    if (phase > oldest)
        add(oldCrescent, VisibleOldCrescentBefore(UniversalToStandard(NewMoonAfter(universal - 1), place), place));
}

/// Within a day and a quarter of a quarter it may fall on the day.
void AddQuarter(std::vector<LunarEvent>& events, Moment universal, const LocaleRecord& place) {
    constexpr double reach = 15;  // degrees
    const double ahead = Modulo(lunar::Phase(universal) + reach, 90);
    if (ahead > 2 * reach) return;
    const double quarter = Degrees(Round(lunar::Phase(universal) / 90) * 90);
    const Moment found = PhaseAfter(universal - 2, quarter);
    if (Floor(found) != Floor(universal)) return;
    events.push_back({TimeText(UniversalToStandard(found, place), place), QuarterText(found, quarter)});
}

void AddApsides(std::vector<LunarEvent>& events, Moment universal, const LocaleRecord& place) {
    struct MeanApsis {
        double anomaly;
        std::string_view text;
    };
    constexpr MeanApsis apsides[] = {{0, "Mean Perigee"}, {180, "Mean Apogee"}};
    for (const auto& [anomaly, text] : apsides) {
        const Moment found = lunar::AnomalyPassage(Floor(universal) - 1, anomaly, 1);
        if (Floor(found) != Floor(universal)) continue;
        events.push_back({TimeText(UniversalToStandard(found, place), place), std::string(text)});
    }
}

void AddRiseAndSet(std::vector<LunarEvent>& events, FixedDay day, const LocaleRecord& place) {
    struct Passage {
        Moment standardTime;
        std::string_view text;
    };
    std::array<Passage, 2> passages{{{Moonrise(day, place), "Local Moonrise"}, {Moonset(day, place), "Local Moonset"}}};
    std::ranges::sort(passages, {}, &Passage::standardTime);
    for (const auto& [standardTime, text] : passages) {
        if (isNever(standardTime)) continue;
        const Moment universal = StandardToUniversal(standardTime, place);
        events.push_back(
            {TimeText(standardTime, place),
             std::string(text) + ", phase " + PhaseText(lunar::Phase(universal)) + AzimuthText(universal, place)});
    }
}

}  // namespace

std::vector<LunarEvent> LunarEventsOn(Moment universal, const LocaleRecord& place) {
    std::vector<LunarEvent> events;
    AddCrescents(events, universal, place);
    AddQuarter(events, universal, place);
    AddApsides(events, universal, place);
    AddRiseAndSet(events, Floor(universal), place);
    return events;
}

std::string QuarterText(Moment universal, double phase) {
    constexpr std::string_view names[] = {"New", "First Quarter", "Full", "Last Quarter"};
    const horvanta::LunationConvention& convention = ChosenLunationConvention();
    const double lunation = Round(MomentToLunation(universal) - phase / 360) + phase / 360 + convention.Offset;
    return std::string(names[WholeNumber<std::size_t>(Degrees(phase) / 90) % std::size(names)]) + " Moon, " +
           std::string(convention.Name) + " Lunation Number " + GeneralText(lunation);
}

std::string PhaseText(double phase) {
    const double tenths = Round(phase, 1);
    const double shown = lunar::options.SignedPhase ? ModuloRange(tenths, -180, 180) : Degrees(tenths);
    return (shown > 0 ? "+" : "") + TenthsOfDegree(shown);
}

}  // namespace horvanta
