#pragma once

#include "core/controls.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <string>

namespace horvanta {

/// The Moon at the displayed moment: how it looks from the place, where it stands, its phase, and the Yerm date.
class LunarWindow {
  public:
    explicit LunarWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// The list of Yerm eras.
    Settings StoredRows();

    /// Recomputes what is shown from the displayed moment and posts the lunar events of its day.
    void Update();

    /// Tells of the Yerm calendar.
    void InfoYLC_Click();

    /// Lets the user choose a list of eras, and goes back to the fixed cycle.
    void OpenYermEraList_Click();
    void RevertYerm52_Click();

    // clang-format off
    Form form{"Lunar", "Lunar"};
    Label Dummy{form, "Dummy"};  ///< Shows nothing; holds the focus while no button should.
    MoonPicture Moon{form, "Moon"};
    Label MoonName{form, "MoonName", Tip("Phase of the Moon"), Widest("Waning crescent Moon")};
    Label Tithi{form, "Tithi", Tip("Thirtieth part of the lunation by the Vedic count"), Widest("Vedic Krishna Paksha Tithi 15 = Amavasya (new)")};
    Label AgeLabel{form, "AgeLabel", Caption("Age")};
    Label MoonAge{form, "MoonAge", Tip("Time since the last new Moon"), Widest("29d 23h 59m")};
    Label PhaseLabel{form, "PhaseLabel", Caption("Phase")};
    Label MoonPhase{form, "MoonPhase", Tip("Lunar phase = longitude of the Moon – longitude of the Sun"), Widest("+359.9°"), Named("Lunar phase")};
    Label LongitudeLabel{form, "LongitudeLabel", Caption("Longitude")};
    Label MoonLongitude{form, "MoonLongitude", Tip("Lunar longitude"), Widest("359.9°")};
    Label LatitudeLabel{form, "LatitudeLabel", Caption("Latitude")};
    Label MoonLatitude{form, "MoonLatitude", Tip("Lunar latitude"), Widest("5.3° N")};
    Label DeclinationLabel{form, "DeclinationLabel", Caption("Declination")};
    Label MoonDeclination{form, "MoonDeclination", Tip("Lunar declination"), Widest("28.7° N")};
    Label DistanceLabel{form, "DistanceLabel", Caption("Distance")};
    Label MoonDistance{form, "MoonDistance", Tip("Distance of the Moon from the centre of the Earth"), Widest("406720 km")};
    Label LunationConvention{form, "LunationConvention", Widest("Goldstine Mean Lunation #")};
    Label LunationNumber{form, "LunationNumber", Tip("Mean lunations, with their fraction"), Widest("-85000.00")};
    Label YermLabel{form, "YermLabel", Caption("Yerm date")};
    Label YLCdate{form, "YLCdate", Tip("Yerm Lunar Calendar date"), Widest("-100+52(17(30")};
    Label YLCera{form, "YLCera", Tip("Yerms of the era, or of the cycle of the fixed calendar"), Widest("Cycle -100 = 52 yerms"), Named("Yerm era")};
    Button InfoYLC{form, "InfoYLC", Caption("Info"), Named("Yerm info"), Tip("Click here for Yerm Lunar Calendar information")};
    // clang-format on
    WindowColors colors{"L", {Color::FromNumber(6250335), Color::FromNumber(16777215)}, MoonName};

  private:
    void HangHandlers();
    void ShowMoon(Moment universal);
    void ShowPhase(Moment universal);
    void ShowNumbers(Moment universal);

    HorvantaMDI& frame_;
    std::string storedList_;  ///< The path of the list to come back to, even if it can't be read for now.
};

}  // namespace horvanta
