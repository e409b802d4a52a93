#pragma once

#include "calendars/gregorian.h"
#include "core/day_events.h"
#include "core/moment.h"
#include "core/text.h"
#include "desk.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace horvanta {

/// Does what the lines say, all of which have to be possible.
inline void ObeyAll(Desk& desk, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) EXPECT_FALSE(desk.Obey(line).starts_with("error")) << line;
}

/// What the program leaves when it is ended.
inline StoredSettings LeftBy(Desk& desk) {
    desk.Obey("menu MenuExit");
    return desk.desktop.settings.flushed;
}

/// The program on the recording desktop, at whatever moment a test wants to see.
class DeskTest : public testing::Test {
  protected:
    static void Show(Moment universal) {
        DisplayedMoment = universal;
        UpdateStatus();
    }

    /// The noon of a Gregorian day.
    static void Show(std::int32_t year, std::int32_t month, std::int32_t day) {
        Show(GregorianToFixed(year, month, day) + 0.5);
    }

    /// What a calendar tells of the displayed day.
    static std::string Events(std::string_view calendar) {
        std::string texts;
        for (const day_events::Event& event : day_events::List()) {
            if (event.calendar == calendar) texts += event.text + "; ";
        }
        return texts;
    }

    void Obey(const std::vector<std::string>& lines) { ObeyAll(desk, lines); }

    /// What the desktop was asked by one line.
    std::string AskedBy(const std::string& line) {
        desk.Obey("asked");
        desk.Obey(line);
        return desk.Obey("asked");
    }

    Desk desk;
};

}  // namespace horvanta
