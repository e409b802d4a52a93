#pragma once

namespace horvanta {

class Horvanta;
class HorvantaMDI;

/// How the frame stood; before the frame is made.
void LoadFramePrefs(HorvantaMDI& frame);

/// Everything else: the moments, the options, the colours and the windows' places.
void LoadPrefs(Horvanta& program);

/// Writes everything and brings it onto the disk.
void SavePrefs(Horvanta& program);

/// Forgets the colours alone.
void DeleteColorPrefs();

}  // namespace horvanta
