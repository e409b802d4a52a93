#pragma once

#include "core/controls.h"
#include "core/shell.h"

/// Texts that the windows of several calendars show and copy.
namespace horvanta {

/// Makes a click on a label copy what it shows.
inline void CopyOnClick(HorvantaMDI& frame, Label& label) {
    label.Click = [&frame, &label] { frame.SetClipboardText(label.text); };
}

}  // namespace horvanta
