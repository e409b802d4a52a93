#include "desk_rows.h"
#include "locale/distances.h"
#include "locale/locale_text.h"
#include "locale/presets.h"

namespace horvanta {

LocaleRecord Read<LocaleRecord>::From(const std::string& word) {
    if (word == "Locale") return Locale;
    const LocaleRecord* place = FindLocale(word);
    if (!place) throw BadLine("no such place: " + word);
    return *place;
}

std::vector<DeskFunction> LocaleFunctions() {
    return {
        Row(
            "PresetLocale", +[](const LocaleRecord& place) { return place; }),
        Row("SphericalDistance", SphericalDistance),
        Row("OblateDistance", OblateDistance),
        Row("DirectionTo", DirectionTo),
        Row("CompassPoint", CompassPoint),
        Row("LocaleSummary", LocaleSummary),
        Row("LocaleChangeReport", LocaleChangeReport),
        Row("MapLink", MapLink),
    };
}

std::vector<DeskVariable> LocaleVariables() {
    return {
        Variable("MapIndex", web_map::options.MapIndex),
    };
}

}  // namespace horvanta
