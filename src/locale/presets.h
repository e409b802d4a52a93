#pragma once

#include "core/locale.h"

#include <span>
#include <string_view>

/// The places that come with the program.
namespace horvanta {

/// All of them, those of the menu first, in the menu's order.
std::span<const LocaleRecord> Locales();

/// How many of them stand in the menu.
inline constexpr std::size_t MenuLocaleCount = 25;

/// The first of them with that short name; null if there is none.
const LocaleRecord* FindLocale(std::string_view name);

/// The same for a name that is known to be there.
const LocaleRecord& PresetLocale(std::string_view name);

/// Tehran on the meridian of its zone, 52.5° E, where the Persian year is decided.
const LocaleRecord& TehranMeridian();

}  // namespace horvanta
