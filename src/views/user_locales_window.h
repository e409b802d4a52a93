#pragma once

#include "core/controls.h"
#include "core/desktop.h"
#include "core/locale.h"
#include "core/preferences.h"
#include "core/shell.h"
#include "views/window_row.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace horvanta {

/// The editor of the user's own places. What has been entered becomes the place of the slot when it is applied.
class UserLocalesWindow {
  public:
    explicit UserLocalesWindow(HorvantaMDI& frame);

    /// What the program has to know of it.
    WindowRow Row();

    /// Shows the place of a slot, from 1; one that is clear as empty fields.
    void ShowSlot(std::size_t number);

    /// True if the slot holds no place.
    static bool isClear(std::size_t number) { return UserLocales[number].Name.empty(); }

    /// Where the fields differ from the slot, asks whether to apply them, and does so or gives them up. `Cancel` means
    /// that the command that would leave them behind is to stop; it is also the answer if they could not be applied.
    YesNoCancel isDirty();

    /// Which slot is edited.
    Settings StoredRows();

    /// Tells from which place the button copies, and to which slot.
    void SetCopyLocToolText();

    /// Stores what has been entered and makes it the current place. False if the user had second thoughts about the
    /// zone, or a field had to be given its old value back.
    bool ApplyLoc_Click();

    // Other commands of the controls.
    void OK_Click();
    void CancelLoc_Click();
    void ClearLoc_Click();
    void CopyLoc_Click();
    void GuessZone_Click();

    /// Stores a place in a slot and makes it current.
    std::function<void(std::size_t number, const LocaleRecord& place)> Choose;

    /// Empties a slot; the current place stays, whether it came from there or not.
    std::function<void(std::size_t number)> Forget;

    std::size_t slot = 1;  ///< The one that is edited.

    // clang-format off
    Form form{"User", "User-Defined Locales"};
    Label UDLlabel{form, "UDLlabel", Caption("Num&ber")};
    TextField UDLnum{form, "UDLnum", Tip("Click up or down arrow to select the desired user-defined locale number"), Widest("30"), Named("User-defined locale number")};
    UpDown UDLupDown{form, "UDLupDown", Tip("Click up or down arrow to select the desired user-defined locale number"), Named("User-defined locale number")};
    Label NameLabel{form, "NameLabel", Caption("Na&me")};
    TextField LocName{form, "LocName", Tip("Name of this user-defined locale")};
    Label DegLabel{form, "DegLabel", Caption("Degrees")};
    Label MinLabel{form, "MinLabel", Caption("Minutes")};
    Label SecLabel{form, "SecLabel", Caption("Seconds")};
    Button LatLabel{form, "LatLabel", Caption("La&titude..."), Tip("Equator = 0, North Pole = +90, South Pole = -90")};
    TextField LatDeg{form, "LatDeg", Tip(wholeKeys), Widest("180"), Named("Latitude, degrees")};
    UpDown LatDegUpDown{form, "LatDegUpDown", Tip(wholeKeys), Named("Latitude, degrees")};
    TextField LatMin{form, "LatMin", Tip(wholeKeys), Widest("180"), Named("Latitude, minutes")};
    UpDown LatMinUpDown{form, "LatMinUpDown", Tip(wholeKeys), Named("Latitude, minutes")};
    TextField LatSec{form, "LatSec", Tip(secondKeys), Widest("59.9999"), Named("Latitude, seconds")};
    UpDown LatSecUpDown{form, "LatSecUpDown", Tip(secondKeys), Named("Latitude, seconds")};
    Button LatHemi{form, "LatHemi", Caption("North"), Tip("Click this button to toggle the hemisphere (North or South)"), Widest("North")};
    Button LongLabel{form, "LongLabel", Caption("Long&itude..."), Tip("Prime Meridian = 0, East >0, West <0, maximum 180")};
    TextField LongDeg{form, "LongDeg", Tip(wholeKeys), Widest("180"), Named("Longitude, degrees")};
    UpDown LongDegUpDown{form, "LongDegUpDown", Tip(wholeKeys), Named("Longitude, degrees")};
    TextField LongMin{form, "LongMin", Tip(wholeKeys), Widest("180"), Named("Longitude, minutes")};
    UpDown LongMinUpDown{form, "LongMinUpDown", Tip(wholeKeys), Named("Longitude, minutes")};
    TextField LongSec{form, "LongSec", Tip(secondKeys), Widest("59.9999"), Named("Longitude, seconds")};
    UpDown LongSecUpDown{form, "LongSecUpDown", Tip(secondKeys), Named("Longitude, seconds")};
    Button LongHemi{form, "LongHemi", Caption("East"), Tip("Click this button to toggle the hemisphere (East or West)"), Widest("North")};
    GroupBox ElevationFrame{form, "ElevationFrame", Caption("Ele&vation"), Tip("Click frame to clear Elevation")};
    TextField Elevation{form, "Elevation", Tip("Above sea level. Change using up/down arrow or up/down page keys, Ctrl for hundreds"), Widest("-12345.6789"), Named("Elevation")};
    UpDown ElevScroll{form, "ElevScroll", Caption("1"), Tip("Change Elevation by one")};
    UpDown ElevScroll10{form, "ElevScroll10", Caption("10"), Tip("Change Elevation by 10")};
    UpDown ElevScroll100{form, "ElevScroll100", Caption("100"), Tip("Change Elevation by 100")};
    UpDown ElevScroll1000{form, "ElevScroll1000", Caption("1000"), Tip("Change Elevation by 1000")};
    OptionButton ElevMeters{form, "ElevMeters", Caption("Meters")};
    OptionButton ElevFeet{form, "ElevFeet", Caption("Feet")};
    GroupBox TimeZoneFrame{form, "TimeZoneFrame", Caption("Time &Zone"), Tip("Click frame to clear Time Zone")};
    TextField TimeZone{form, "TimeZone", Tip("Hours east of Universal Time. Change using up/down arrow keys, Shift for quarters"), Widest("-12.3456"), Named("Time zone, hours east of Universal Time")};
    UpDown ZoneUpDown{form, "ZoneUpDown", Tip("Change Time Zone by one hour")};
    Label ZoneUnit{form, "ZoneUnit", Caption("hours east")};
    Button GuessZone{form, "GuessZone", Caption("&Guess"), Tip("Take the Time Zone from the Longitude")};
    CheckBox DisableDST{form, "DisableDST", Caption("&Disable Daylight Saving Time"), Tip(habitTip)};
    CheckBox UseLMT{form, "UseLMT", Caption("&Use Local Mean Time"), Tip(habitTip)};
    Button CopyLoc{form, "CopyLoc"};
    Button ClearLoc{form, "ClearLoc", Caption("Clear"), Tip("Clear this user-defined locale")};
    Button ApplyLoc{form, "ApplyLoc", Caption("&Apply"), Tip("Set this user-defined locale")};
    Button OK{form, "OK", Caption("OK"), Tip("Set this user-defined locale and close")};
    Button CancelLoc{form, "CancelLoc", Caption("Cancel"), Tip("Close without changing this user-defined locale")};
    // clang-format on

  private:
    static constexpr const char* wholeKeys = "Change using  +/-  or  up/down arrow  or  up/down page  keys";
    static constexpr const char* secondKeys = "Change using  +/-  or up/down arrow/page  keys, Shift for tenths";
    static constexpr const char* habitTip = "Set this if locale doesn't use DST or Horvanta has wrong start/end dates";

    enum { LatitudeFields = 0, LongitudeFields = 3, ElevationField = 6, ZoneField = 7, NumberFields };

    /// A field for a number between two ends, or for none.
    struct NumberField {
        TextField& field;
        double least;
        double greatest;
        std::string good;  ///< The text it goes back to.
    };

    /// What has been entered. Numbers are their texts, empty where there is none; but the elevation, which may be shown
    /// in another unit than it was entered in, is itself, in metres.
    struct Entry {
        std::string name;
        std::array<std::string, NumberFields> numbers;
        std::optional<double> elevation;
        bool south = false;
        bool west = false;
        bool noDST = false;
        bool useLMT = false;

        bool operator==(const Entry&) const = default;
    };

    void HangHandlers();
    void HangFields();
    void HangArrows();

    static Entry EntryOf(const LocaleRecord& place);
    Entry EntryOfSlot() const;
    Entry Entered() const;
    void Show(const Entry& entry);
    void ShowHemispheres();
    void ShowElevation();
    void ShowAngle(std::size_t first, double seconds);

    bool TakeField(std::size_t index);
    bool TakeFields();
    bool Refuse(std::size_t index);
    void Write(std::size_t index, const std::string& text);
    void Clear(std::size_t index);

    double ValueOf(std::size_t index) const;
    double SizeOfAngle(std::size_t first) const;
    double LongitudeEntered() const;
    void Step(std::size_t index, double count);
    bool ObeyKey(std::size_t index, int code, int shift);

    void SelectSlot(double number);
    void ChooseUnit(bool feet);
    void AskAngle(const Button& label, std::size_t first, bool& negative);
    bool isZoneMeant() const;

    HorvantaMDI& frame_;
    std::array<NumberField, NumberFields> fields_;
    std::optional<double> elevation_;  ///< Metres.
    bool inFeet_ = false;
    bool south_ = false;
    bool west_ = false;
    bool noDST_ = false;
    bool useLMT_ = false;
};

}  // namespace horvanta
