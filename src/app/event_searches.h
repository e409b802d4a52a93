#pragma once

#include "core/numerics.h"
#include "core/shell.h"

/// What the menus of previous and next events search for.
namespace horvanta {

/// An event of the menus, and the universal moment at which it happens first after a universal moment (direction 1) or
/// last before it (-1); `NeverMoment` where it does not. A moment that the event itself was found at counts as the
/// event.
struct EventSearch {
    MenuEvent event;
    Moment (*jump)(Moment from, int direction);
};

/// The search for an event; null if nothing can find it yet.
const EventSearch* FindEventSearch(MenuEvent event);

}  // namespace horvanta
