#pragma once

#include "core/controls.h"
#include "core/locale.h"
#include "core/numerics.h"

#include <string>

/// How the Moon looks from a place at a universal moment: for the eye, and in words.
namespace horvanta {

MoonPicture::Look LookOfMoon(Moment universal, const LocaleRecord& place = Locale);

/// "Waxing gibbous Moon", the name of a phase in degrees. The four quarters have theirs for about half a day to either
/// side.
std::string PhaseName(double phase);

/// "Waxing gibbous Moon, 78 % lit, 34° above the horizon in the south-east"
std::string MoonInWords(Moment universal, const LocaleRecord& place = Locale);

}  // namespace horvanta
