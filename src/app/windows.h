#pragma once

#include "views/window_row.h"

#include <functional>

namespace horvanta {

/// The row of a window that stands to the right of another one, or under it, as long as no one has moved it.
WindowRow Beside(const Form& form, WindowRow row);
WindowRow Below(const Form& form, WindowRow row);

// The keys of a window.

/// Where it stands, and whether it is open.
Settings PositionRows(WindowRow& row);

/// Its colours. What wears a shade is told too, but not read: it follows from the colour.
Settings ColorRows(WindowColors& colors);

}  // namespace horvanta
