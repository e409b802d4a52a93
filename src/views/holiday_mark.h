#pragma once

#include "calendars/day_text.h"
#include "core/controls.h"

namespace horvanta {

/// How a day stands out by its kind.
constexpr Mark MarkOf(DayKind kind) {
    switch (kind) {
        case DayKind::Church:
        case DayKind::Public: return Mark::Warm;
        case DayKind::Civic: return Mark::Cool;
        default: return Mark::None;
    }
}

}  // namespace horvanta
