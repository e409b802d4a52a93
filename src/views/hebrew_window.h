#pragma once

#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "hebrew/holidays.h"
#include "hebrew/zmanim.h"
#include "views/window_row.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace horvanta {

/// The displayed moment in the Hebrew calendar: its date and year, what the day is, and its times.
class HebrewWindow {
  public:
    explicit HebrewWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Recomputes what is shown from the displayed moment and posts the events of its day.
    void Update();

    /// How long before sunset candles are lit, and how a molad is told.
    Settings StoredRows();

    /// Chooses so many minutes before sunset for the candles, and updates.
    void SetCandlesBeforeSunset(std::int32_t minutes);

    /// Chooses the style of time in which a molad is told, and updates.
    void SetMoladTimeFormat(std::int32_t format);

    // Commands of the controls.
    void HebrewCycleInfo_Click();
    void Info_Click();

    // clang-format off
    Form form{"Hebrew", "Hebrew"};
    Label Dummy{form, "Dummy"};  ///< Shows nothing; holds the focus while no button should.
    Label HebrewDate{form, "HebrewDate", Tip("Hebrew date (sunset to sunset)"), Widest("Yom Chamishi, 30 Adar Rishon, -15000 ")};
    Label HebrewCycleInfo{form, "HebrewCycleInfo", Tip("Click for Hebrew cycle status information"), Widest("7P5* non-leap year 19/19, day 353+30=383, month -234567"), Named("Cycle")};
    Button Info{form, "Info", Caption("Info"), Named("Hebrew info"), Tip("Click here for Hebrew Calendar information")};
    StatusBar DawnDuskLegends{form, "DawnDuskLegends", Tip("What the times are"), Widest("Shabbat, Rosh Hashanah 1 (Hebrew New Year) Ends")};
    StatusBar DawnDusk{form, "DawnDusk", Tip("The times of the displayed day"), Widest(">00:00:00")};
    // clang-format on
    WindowColors colors{"H", {Color::FromNumber(16777152), Color::FromNumber(0)}, HebrewDate};

  private:
    void HangMenus();
    void ShowYear(const HebrewDateRecord& date);
    void ShowZmanim(const HebrewDay& today, const HebrewDay& tomorrow);
    void ShowZman(std::size_t index, const Zman& zman);
    void CopyZman(std::size_t index);

    HorvantaMDI& frame_;
    std::vector<Zman> shown_ = ZmanRows();  ///< The times of the bars.
};

}  // namespace horvanta
