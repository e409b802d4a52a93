#pragma once

#include "core/preferences.h"
#include "core/shell.h"

#include <cstdint>
#include <optional>
#include <string>

namespace horvanta {

namespace day_numbering {
struct Options {
    std::int32_t FixedDayOption = 4;  ///< The item of the numbering menu that was chosen last, from 1.
    bool operator==(const Options&) const = default;
};
inline Options options;
}  // namespace day_numbering

/// The commands of the Options menu that change how things are counted, told and linked.
class Options {
  public:
    explicit Options(HorvantaMDI& frame);

    /// The numbering, which has to be read first of all, in the order of its rows; and the formats.
    Settings NumberingRows();
    static Settings StoredRows();

    /// Numbers the days by an item of the numbering menu, from 1. The displayed and the saved moment keep their dates
    /// and times of day.
    void SetFixedDayNumberingOption(std::int32_t index);

    /// Chooses the form of temporal hours, 1 to 3.
    void SetTempHourFormat(std::int32_t format);

    /// Lets Easter stand by the moon of the sky for all churches, or not.
    static void UniformEaster_Click();

    /// Chooses the way to number lunations, from 1, and whether phases run to both sides of the new Moon.
    void SetLunationOption(std::int32_t index);
    void SetSignedPhase(bool isSigned);

    /// Names that way in the jumps to lunations; to be called when settings have chosen it.
    void SetLunationCaptions();

    /// Chooses the web map that places are looked up on, by its place in the menu, from 1.
    void MapServer_Click(std::int32_t index);

  private:
    /// What the settings tell of the numbering, as far as it can be read.
    struct ReadNumbering {
        std::optional<std::int32_t> option;
        std::optional<double> first;  ///< The day number of January 1 of year 1.
        std::optional<double> value;
        std::string name;
    };

    void Settle(const ReadNumbering& read);

    HorvantaMDI& frame_;
    ReadNumbering read_;
};

}  // namespace horvanta
