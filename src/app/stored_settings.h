#pragma once

#include "core/preferences.h"

/// What is kept from one run to the next.
namespace horvanta {

class Horvanta;
class HorvantaMDI;

/// Every key, in the order of loading: what is read first may decide how the rest is read.
Settings StoredRows(Horvanta& program);

/// How the frame stood; before the frame is made.
void LoadFramePrefs(HorvantaMDI& frame);

/// Everything else. Settings without the mark of this layout are cleared.
void LoadPrefs(Horvanta& program);

/// Writes everything; what has no owner yet stays as it was found. The second also brings it onto the disk in one step
/// and returns what `FlushSettings` does.
void WritePrefs(Horvanta& program);
std::string SavePrefs(Horvanta& program);

/// Forgets the colours alone.
void DeleteColorPrefs();

}  // namespace horvanta
