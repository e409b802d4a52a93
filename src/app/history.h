#pragma once

#include "app/places.h"
#include "core/shell.h"

#include <cstddef>
#include <deque>

namespace horvanta {

/// The moments that were displayed, with their places, and the way back and forward through them.
class History {
  public:
    History(HorvantaMDI& frame, Places& places);

    /// Notes what is displayed now, at the end of an update. What a held key runs through counts as one.
    void Note();

    void Back_Click() { Walk(-1); }
    void Forward_Click() { Walk(1); }

  private:
    /// A moment by both scales, so that it stays the same when Delta T is switched, and the number of January 1 of year
    /// 1 at the time: the numbering may change.
    struct Stop {
        Moment universal;  ///< Never where it was displayed without Delta T.
        Moment terrestrial;
        double gregorianEpoch;
        Places::Choice place;

        /// In the present scale and numbering.
        Moment Present() const;
    };

    bool isShown(const Stop& stop) const;
    void Walk(int direction);
    void EnableItems();

    HorvantaMDI& frame_;
    Places& places_;
    std::deque<Stop> stops_;
    std::size_t at_ = 0;  ///< The stop that is displayed.
};

}  // namespace horvanta
