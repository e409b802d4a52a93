#pragma once

#include "core/numerics.h"

#include <string_view>

/// What the menus of previous and next events search for.
namespace horvanta {

/// An event of the menus by its caption, and the universal moments at which it happens last before and first after a
/// universal moment. A moment that the event itself was found at counts as the event.
struct EventSearch {
    std::string_view caption;
    Moment (*before)(Moment universal);
    Moment (*after)(Moment universal);
};

/// The search for the event of that caption; null if nothing can find it yet.
const EventSearch* FindEventSearch(std::string_view caption);

}  // namespace horvanta
