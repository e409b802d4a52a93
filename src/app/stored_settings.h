#pragma once

#include <cstddef>
#include <string>

/// What is kept from one run to the next, as one table of every key.
namespace horvanta {

class Horvanta;
class HorvantaMDI;

/// The place that the last run left: one of the user's own by its slot, or if that is 0 a preset by its short name.
struct StoredPlace {
    std::string name;
    std::size_t userSlot = 0;
};

/// How the frame stood; before the frame is made.
void LoadFramePrefs(HorvantaMDI& frame);

/// Everything else: numbering, windows, the user's places, colours, moments and options. A value that can't be read,
/// or that no version writes, is its default. Settings without the mark of this layout are cleared.
StoredPlace LoadPrefs(Horvanta& program);

/// Writes everything and brings it onto the disk in one step. What has no owner yet stays as it was found.
void SavePrefs(Horvanta& program);

/// Writes the user's own places alone: the others may be forgotten, they are not.
void SaveUserPlaces(Horvanta& program);

/// Forgets the colours alone.
void DeleteColorPrefs();

}  // namespace horvanta
