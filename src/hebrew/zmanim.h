#pragma once

#include "core/locale.h"
#include "hebrew/holidays.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Zmanim, the times of day on which prayers, candles and the ends of holy days hang. All stand on sunrise and sunset,
/// on depressions of the Sun and on parts of the day. Moments are of the zone's standard time; one that rests on an
/// event that does not take place is `NeverMoment`.
namespace horvanta {

/// What a row of the day's times shows.
struct Zman {
    std::string_view key;
    std::string legend;
    std::string name;         ///< In words; empty where the key says it.
    std::string rule;         ///< How it is reckoned.
    std::string_view mark{};  ///< "<" before an event, ">" after it, "~" about it.
    Moment moment = NeverMoment;
    bool isDue = true;  ///< False for candles that are not lit.
};

/// The rows as they are before any day is asked.
std::vector<Zman> ZmanRows();

/// The times of a day, of which the next one is `tomorrow`, from dawn to nightfall.
std::vector<Zman> ZmanimOf(const HebrewDay& today, const HebrewDay& tomorrow, const LocaleRecord& place = Locale);

/// Light enough to recognise a person: the Sun 10.2° below the horizon.
Moment JewishRecognition(Moment date, const LocaleRecord& place = Locale);

/// The moment at which a clock of 24 temporal hours that begins at midnight has run to `hour` (0 to 24): 6 is sunrise,
/// 12 noon and 18 sunset. Night and day run by their own hours; about sunrise and sunset (4.5 to 7 and 17 to 19.5) the
/// longer hour of both sides counts.
Moment ZmanToStandard(Moment date, double hour, const LocaleRecord& place = Locale);

/// When candles are lit for the day to come, which `tomorrow` is. `tzait` is the end of a holy day.
struct Candles {
    bool areLit = false;
    std::string rule;
    std::string_view mark{};
    Moment moment = NeverMoment;
};
Candles CandleLighting(const HebrewDay& today, const HebrewDay& tomorrow, Moment sunset, Moment tzait);

/// "Shabbat HaGadol, Passover 1": what of a day ends at nightfall; empty for a day of work.
std::string ShabbatOrFestivalName(const HebrewDay& day);

/// The planet of an hour, 1 to 7 in the order of `MazzalNames`, where the hours are equal and the day begins at 18:00;
/// and its name.
std::int32_t MomentToMazzal(Moment moment);
std::string_view MomentToMazzalName(Moment moment);

/// The planets from the slowest on.
inline constexpr std::string_view MazzalNames[] = {"Shabbtai (Saturn)", "Tzedek (Jupiter)", "Ma'adim (Mars)",
                                                   "Chamah (Sun)",      "Nogah (Venus)",    "Kochav (Mercury)",
                                                   "Levanah (Moon)"};

/// The planets of the weekdays, from Sunday on.
inline constexpr std::string_view MazzalNamesByWeekday[] = {"Chamah = Sun",     "Levanah = Moon",   "Ma'adim = Mars",
                                                            "Kochav = Mercury", "Tzedek = Jupiter", "Nogah = Venus",
                                                            "Shabbtai = Saturn"};

}  // namespace horvanta
