#include "lunar/yerm_eras.h"

#include "lunar/yerm_era_list.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace horvanta {
namespace {

/// How far an era lies from the first one, or how long it is, by each key. All whole.
struct Extent {
    double days = 0;
    double months = 0;
    double yerms = 0;
    double eras = 0;

    Extent operator+(const Extent& x) const {
        return {days + x.days, months + x.months, yerms + x.yerms, eras + x.eras};
    }
    Extent operator*(double x) const { return {days * x, months * x, yerms * x, eras * x}; }
};

struct EraSpan {
    Extent start;
    Extent length;
};

struct Eras {
    YermForm form;
    std::vector<EraSpan> spans;  ///< At least one. The last repeats; the fixed cycle has but one, repeated both ways.

    double FirstNumber() const { return form.Progressive ? 1 : 0; }
};

constexpr double daysOfSubcycle = 1447;
constexpr double daysOfLongYerm = 502;

bool BeginsWithYermZero(double days) { return Modulo(days, daysOfSubcycle) > daysOfLongYerm; }

/// An era is a row of subcycles of three yerms and one of 17 months at its end, with a yerm 0 or without.
Extent LengthOf(double days) {
    const double yerms = 3 * Floor(days / daysOfSubcycle) + (BeginsWithYermZero(days) ? 2 : 1);
    return {days, Floor((2 * days - yerms) / 59), yerms, 1};
}

Eras FixedCycle() {
    constexpr double days = 25101;
    constexpr Epoch start{JDEpoch.fromGregorianEpoch + 1923278};
    return {{"", "Yerm Lunar Calendar fixed 52-yerm cycle", 108000, false, start, -17889}, {{{}, LengthOf(days)}}};
}

Eras ErasOf(const YermEraList& list, const std::string& path) {
    Eras eras{{path, list.description, list.dayOffsetUnits, true, list.firstDay, list.firstLunation}, {}};
    Extent start;
    for (const double days : list.lengths) {
        eras.spans.push_back({start, LengthOf(days)});
        start = start + eras.spans.back().length;
    }
    return eras;
}

struct {
    Eras eras = FixedCycle();
    std::int64_t serial = 0;
} present;

void Use(Eras eras) {
    present.eras = std::move(eras);
    ++present.serial;
}

/// What a key is counted in, and what it is for the first era.
struct Scale {
    double Extent::*unit;
    double first;
};

Scale ScaleOf(YermKey key) {
    switch (key) {
        case YermKey::Day: return {&Extent::days, present.eras.form.EpochFixed};
        case YermKey::Lunation: return {&Extent::months, present.eras.form.EpochLunation};
        case YermKey::Yerm: return {&Extent::yerms, 0};
        default: return {&Extent::eras, present.eras.FirstNumber()};
    }
}

YermEra EraAt(const Extent& start, const Extent& length) {
    const auto& [form, spans] = present.eras;
    const Extent end = start + length;
    return {.EraNumber = WholeNumber(start.eras + present.eras.FirstNumber()),
            .EraStart = form.EpochFixed + start.days,
            .EraEnd = form.EpochFixed + end.days,
            .LunationStart = form.EpochLunation + start.months,
            .LunationEnd = form.EpochLunation + end.months,
            .EraDays = WholeNumber(length.days),
            .EraMonths = WholeNumber(length.months),
            .EraYerms = WholeNumber(length.yerms),
            .HasYermZero = BeginsWithYermZero(length.days),
            .YermsBefore = start.yerms};
}

}  // namespace

const YermForm& PresentYermForm() { return present.eras.form; }
std::int64_t YermSerial() { return present.serial; }

bool OpenYermEraList(const std::string& path) {
    const auto list = ReadYermEraList(path);
    Use(list ? ErasOf(*list, path) : FixedCycle());
    return list.has_value();
}

void RevertToFixedYermCycle() { Use(FixedCycle()); }

std::optional<YermEra> YermEraLookup(double key, YermKey byWhat) {
    const auto& [form, spans] = present.eras;
    const auto [unit, first] = ScaleOf(byWhat);
    const double reached = Floor(key - first);
    const auto& [start, length] = spans.back();
    const double repeats = Quotient(reached - start.*unit, length.*unit);
    if (repeats >= 0 || !form.Progressive) return EraAt(start + length * repeats, length);
    const auto next = std::ranges::upper_bound(spans, reached, {}, [&](const EraSpan& era) { return era.start.*unit; });
    if (next == spans.begin()) return std::nullopt;
    return EraAt(std::prev(next)->start, std::prev(next)->length);
}

}  // namespace horvanta
