#include "hebrew/zmanim.h"

#include "astro/sun_events.h"
#include "core/text.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <utility>

namespace horvanta {
namespace {

constexpr double minute = 1.0 / 1440;

// Depressions of the Sun in degrees.
constexpr double dawnMaimonides = 16.033333333333335;
constexpr double recognition = 10.2;
constexpr double threeBrightStars = 4.666666666666667;
constexpr double ravOfLadi = 5.916666666666667;
constexpr double endOfHolyDay = 8.5;
constexpr double rabbeinuTam = 19.766666666666666;

/// base + count parts; never if either is.
Moment After(Moment base, double count, double part) {
    return isNever(base) || isNever(part) ? NeverMoment : base + count * part;
}

double Longer(double a, double b) { return isNever(a) || isNever(b) ? NeverMoment : std::max(a, b); }

/// A day between its sunrise and sunset.
struct SunDay {
    FixedDay day;
    const LocaleRecord& place;
    Moment sunrise = Sunrise(day, place);
    Moment sunset = Sunset(day, place);
    double daylight = MomentDifference(sunset, sunrise);
    double hour = PartOf(daylight, 12);

    Moment PartAfterSunrise(int part) const { return After(sunrise, 1, PartOf(daylight, part)); }
};

struct ZmanRow {
    std::string_view key;
    std::string_view legend;
    std::string_view name;
    std::string_view rule;
    Moment (*moment)(const SunDay& sun) = nullptr;
};

constexpr std::string_view candlesKey = "Candles";
constexpr std::string_view tzaitKey = "Tzait";
constexpr std::string_view starsKey = "DuskVG";

// clang-format off
/// Candles and the end of the day depend on what days they are, and are filled in afterwards.
constexpr ZmanRow rows[] = {
    {"Dawn", "Dawn", "Dawn (Maimonides)", "Solar depression 16°2' (Maimonides)", [](const SunDay& s) { return Dawn(s.day, dawnMaimonides, s.place); }},
    {"Recognition", "Recognition", "Recognition", "Solar depression 10.2°", [](const SunDay& s) { return JewishRecognition(s.day, s.place); }},
    {"Shma", "Shma", "Latest Shma (Vilna Gaon)", "Sunrise + 1/4 Day (Vilna Gaon)", [](const SunDay& s) { return s.PartAfterSunrise(4); }},
    {"Tefila", "Tefila", "Latest Tefila (Vilna Gaon)", "Sunrise + 1/3 Day (Vilna Gaon)", [](const SunDay& s) { return s.PartAfterSunrise(3); }},
    {"EarlyMinhah", "Early Minhah", "", "Local Apparent Noon + 1/2 Daytime Temporal Hour", [](const SunDay& s) { return After(SolarMidday(s.day, s.place), 0.5, s.hour); }},
    {"Plag", "Plag", "Plag HaMinhah", "Sunset - 5/4 Daytime Temporal Hour", [](const SunDay& s) { return After(s.sunset, -1.25, s.hour); }},
    {starsKey, "Dusk VG", "Dusk (3 bright stars, Vilna Gaon)", "Solar depression 4°40' Vilna Gaon, 3 bright stars", [](const SunDay& s) { return Dusk(s.day, threeBrightStars, s.place); }},
    {"DuskRL", "Dusk RL", "Dusk (Rav Ladi)", "Solar depression 5°55' (Rav of Ladi)", [](const SunDay& s) { return Dusk(s.day, ravOfLadi, s.place); }},
    {candlesKey, "Candles", "Light Candles", ""},
    {tzaitKey, "Three Stars", "", "Solar depression 8°30' (Rabbi YM Tucazinsky)", [](const SunDay& s) { return Dusk(s.day, endOfHolyDay, s.place); }},
    {"DuskRT", "Dusk RT", "Dusk (Rabbeinu Tam)", "Solar depression 19°46' (Rabbenu Tam)", [](const SunDay& s) { return Dusk(s.day, rabbeinuTam, s.place); }},
};
// clang-format on

Zman& Find(std::vector<Zman>& zmanim, std::string_view key) { return *std::ranges::find(zmanim, key, &Zman::key); }

void SetCandles(Zman& zman, const Candles& candles) {
    zman.isDue = candles.areLit;
    zman.mark = candles.mark;
    zman.moment = candles.moment;
    if (candles.areLit) zman.rule = candles.rule;
}

std::string MinutesBeforeSunset() {
    return std::to_string(hebrew::options.CandlesBeforeSunset) + " minutes before sunset";
}

bool isHoly(const HebrewDay& day) { return day.isShabbat() || !day.YomTov.empty(); }

/// A clock's hours between two bounds, counted by some length from a moment which is an hour of the clock.
struct ClockSpan {
    double before;  ///< The hour at which it ends.
    double base;
    Moment (*baseMoment)(Moment date, const LocaleRecord& place);
    double (*hour)(Moment date, const LocaleRecord& place);
};

double AboutSunrise(Moment date, const LocaleRecord& place) {
    return Longer(PreDawnTemporalHour(date, place), MorningTemporalHour(date, place));
}
double AboutSunset(Moment date, const LocaleRecord& place) {
    return Longer(AfternoonTemporalHour(date, place), EveningTemporalHour(date, place));
}
Moment NextMidnight(Moment date, const LocaleRecord& place) { return SolarMidnight(date + 1, place); }

constexpr double justPast17 = 17.000000000000004;  // the hour itself still counts from noon
constexpr double anyHour = std::numeric_limits<double>::infinity();

constexpr ClockSpan clockSpans[] = {
    {4.5, 0, SolarMidnight, PreDawnTemporalHour},
    {7, 6, Sunrise, AboutSunrise},
    {12, 12, SolarMidday, MorningTemporalHour},
    {justPast17, 12, SolarMidday, AfternoonTemporalHour},
    {19.5, 18, Sunset, AboutSunset},
    {anyHour, 24, NextMidnight, EveningTemporalHour},
};

}  // namespace

Moment JewishRecognition(Moment date, const LocaleRecord& place) { return Dawn(date, recognition, place); }

Moment ZmanToStandard(Moment date, double hour, const LocaleRecord& place) {
    const auto* span = std::ranges::find_if(clockSpans, [&](const ClockSpan& row) { return hour < row.before; });
    if (span == std::end(clockSpans)) return NeverMoment;
    const Moment base = span->baseMoment(date, place);
    return hour == span->base ? base : After(base, hour - span->base, span->hour(date, place));
}

Candles CandleLighting(const HebrewDay& today, const HebrewDay& tomorrow, Moment sunset, Moment tzait) {
    Candles candles;
    const auto light = [&](std::string rule, std::string_view mark, Moment base, double minutes) {
        const Moment moment = After(base, minutes, minute);
        candles = {true, std::move(rule), isNever(moment) ? "" : mark, moment};
    };
    const bool afterFestival = !tomorrow.YomTov.empty() && !tomorrow.isShabbat() && !today.YomTov.empty();
    if (isHoly(tomorrow)) {
        if (today.isShabbat()) {
            light("after Shabbat ends", ">", tzait, 1);
        } else if (afterFestival) {
            light("after Yom Tov ends", ">", tzait, 1);
        } else {
            light(MinutesBeforeSunset(), "<", sunset, -hebrew::options.CandlesBeforeSunset);
        }
    } else if (tomorrow.Chanukah) {
        const bool shabbat = today.isShabbat();
        light(shabbat ? "after Shabbat ends" : "when stars appear", shabbat ? ">" : "~", tzait, 0);
    }
    return candles;
}

std::string ShabbatOrFestivalName(const HebrewDay& day) {
    const std::string shabbat = day.isShabbat() ? "Shabbat" + WrapIfNotEmpty(day.ShabbatName, " ", "", "") : "";
    return shabbat + (shabbat.empty() || day.YomTov.empty() ? "" : ", ") + day.YomTov;
}

std::vector<Zman> ZmanRows() {
    std::vector<Zman> zmanim;
    for (const ZmanRow& row : rows) {
        zmanim.push_back({row.key, std::string(row.legend), std::string(row.name), std::string(row.rule)});
    }
    Find(zmanim, candlesKey).rule = MinutesBeforeSunset();
    return zmanim;
}

std::vector<Zman> ZmanimOf(const HebrewDay& today, const HebrewDay& tomorrow, const LocaleRecord& place) {
    const SunDay sun{today.date.Fixed, place};
    std::vector<Zman> zmanim = ZmanRows();
    for (std::size_t i = 0; i < zmanim.size(); ++i) {
        if (rows[i].moment != nullptr) zmanim[i].moment = rows[i].moment(sun);
    }
    Zman& tzait = Find(zmanim, tzaitKey);
    SetCandles(Find(zmanim, candlesKey), CandleLighting(today, tomorrow, sun.sunset, tzait.moment));
    if (isHoly(today)) {
        tzait.legend = ShabbatOrFestivalName(today) + " Ends";
    } else {
        const Zman& stars = Find(zmanim, starsKey);
        tzait.moment = stars.moment;
        tzait.rule = stars.rule;
    }
    return zmanim;
}

std::int32_t MomentToMazzal(Moment moment) {
    const Moment t = moment + 0.25;
    const auto hour = WholeNumber(Floor((t - Floor(t)) * 24));
    return ((DayOfWeek(t) + 4) * 24 + hour) % 7 + 1;
}

std::string_view MomentToMazzalName(Moment moment) { return MazzalNames[MomentToMazzal(moment) - 1]; }

}  // namespace horvanta
