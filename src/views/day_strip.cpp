#include "views/day_strip.h"

#include "astro/local_time.h"
#include "astro/sun.h"
#include "astro/sun_events.h"
#include "astro/timescales.h"
#include "clock/zone_time.h"
#include "core/memo.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <tuple>
#include <vector>

namespace horvanta {
namespace {

using Light = DayStrip::Light;

/// When the Sun is above a depression, as fractions of a clock's day; from one end to the other where it always is.
struct Passage {
    double up;
    double down;

    bool isUp(double time) const {
        return std::ranges::any_of(std::initializer_list<double>{-1, 0, 1},
                                   [&](double day) { return up + day < time && time < down + day; });
    }
};

double OnClock(Moment standardTime, FixedDay date, const LocaleRecord& place) {
    return StandardToDaylight(standardTime, place) - date;
}

/// Where the Sun comes up and does not go down, or goes down and did not come up, the other passage is taken to lie as
/// far from noon.
Passage PassageOf(FixedDay date, double noon, double depression, const LocaleRecord& place) {
    constexpr Passage always{-2, 3};
    constexpr Passage never{2, 2};
    const Moment up = Dawn(date, depression, place);
    const Moment down = Dusk(date, depression, place);
    if (!isNever(up) || !isNever(down)) {
        return {isNever(up) ? 2 * noon - OnClock(down, date, place) : OnClock(up, date, place),
                isNever(down) ? 2 * noon - OnClock(up, date, place) : OnClock(down, date, place)};
    }
    const double declination = SolarDeclination(StandardToUniversal(date + 0.5, place));
    return 90 - std::fabs(place.Latitude - declination) > -depression &&
                   std::fabs(place.Latitude + declination) - 90 > -depression
               ? always
               : never;
}

/// The lights by the depression at which each begins, the darkest first.
struct Stage {
    Light light;
    double depression;
};

std::array<Stage, 4> StagesAt(const LocaleRecord& place) {
    return {{{Light::AstronomicalTwilight, 18},
             {Light::NauticalTwilight, 12},
             {Light::CivilTwilight, 6},
             {Light::Daylight, SunDepression(place)}}};
}

DayStrip::Day FindDay(FixedDay date, const LocaleRecord& place) {
    DayStrip::Day day;
    day.noon = OnClock(SolarMidday(date, place), date, place);
    std::vector<std::pair<Light, Passage>> passages;
    std::vector<double> cuts{0, 1};
    for (const auto& [light, depression] : StagesAt(place)) {
        const Passage passage = PassageOf(date, day.noon, depression, place);
        passages.emplace_back(light, passage);
        for (const double time : {passage.up, passage.down}) {
            for (const double beside : {-1, 0, 1}) {
                if (time + beside > 0 && time + beside < 1) cuts.push_back(time + beside);
            }
        }
    }
    std::ranges::sort(cuts);
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
        Light light = Light::Night;
        for (const auto& [stage, passage] : passages) {
            if (passage.isUp((cuts[i] + cuts[i + 1]) / 2)) light = stage;
        }
        if (day.spans.empty() || day.spans.back().light != light) day.spans.push_back({cuts[i], light});
    }
    return day;
}

std::string ClockText(double fraction) { return FormatTime(fraction, 2); }

constexpr const char* names[] = {"night", "astronomical twilight", "nautical twilight", "civil twilight", "daylight"};

std::string SunText(double degrees) {
    return "Sun " + FormatNumber(std::fabs(degrees), "0.0") + "° " + (degrees < 0 ? "below" : "above") + " the horizon";
}

double AltitudeAt(Moment universal, const LocaleRecord& place) {
    return SolarAltitude(LocalToApparent(UniversalToLocal(universal, place), place), place);
}

}  // namespace

DayStrip::Day DayOfLight(FixedDay date, const LocaleRecord& place) {
    using Key = std::tuple<FixedDay, std::int64_t, std::int64_t, LocaleRecord, horizon::Options, zone_time::Options>;
    static Memo<1, Key, DayStrip::Day> memo;
    return memo.Of(Key(date, NumberingSerial, DeltaTSerial, place, horizon::options, zone_time::options),
                   [&] { return FindDay(date, place); });
}

std::string SunAtText(Moment universal, const LocaleRecord& place) {
    const Moment clock = StandardToDaylight(UniversalToStandard(universal, place), place);
    return ClockText(clock) + ", " + SunText(AltitudeAt(universal, place));
}

std::string StripSentence(const DayStrip::Day& day, Moment universal, const LocaleRecord& place) {
    std::string text = "Light of the day: ";
    for (std::size_t i = 0; i < day.spans.size(); ++i) {
        const bool isLast = i + 1 == day.spans.size();
        text += std::string(i > 0 ? ", " : "") + names[static_cast<std::size_t>(day.spans[i].light)] +
                (isLast ? "" : " until " + ClockText(day.spans[i + 1].from));
    }
    return text + (day.spans.size() == 1 ? " all day" : " until midnight") + ". At " + SunAtText(universal, place) +
           ".";
}

}  // namespace horvanta
