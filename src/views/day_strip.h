#pragma once

#include "core/controls.h"
#include "core/locale.h"
#include "core/numerics.h"

#include <string>

/// The light of a day, as a strip from midnight to midnight on the clock of a place.
namespace horvanta {

/// The stretches of light of a date, the twilights by the Sun's centre 6°, 12° and 18° down and daylight by its rising
/// and setting, with the mark of noon. Where the Sun does not come to one of these depressions, the whole day lies on
/// one side of it. What reaches over midnight is taken from the same day. Remembered for its day and place.
DayStrip::Day DayOfLight(FixedDay date, const LocaleRecord& place = Locale);

/// The Sun at a universal moment, as "14:20, Sun 34.0° above the horizon".
std::string SunAtText(Moment universal, const LocaleRecord& place = Locale);

/// The strip in a sentence: its twilights, sunrise and sunset, and where the Sun stands at the moment.
std::string StripSentence(const DayStrip::Day& day, Moment universal, const LocaleRecord& place = Locale);

}  // namespace horvanta
