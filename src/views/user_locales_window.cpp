#include "views/user_locales_window.h"

#include "core/desktop.h"
#include "core/numerics.h"
#include "core/text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace horvanta {
namespace {

constexpr int decimals = 4;              // 3 mm in seconds of latitude
constexpr double highest = 100'000;      // metres
constexpr double farthestZone = 24;      // hours
constexpr double suspectDifference = 3;  // hours between a zone and the one that the longitude suggests
constexpr double lastSecond = 59.9999;
constexpr double unitsInSeconds[] = {3600, 60, 1};  // of the fields of an angle

std::string FieldText(double x) { return GeneralText(Round(x, decimals)); }

std::string SlotName(std::size_t number) { return "User " + std::to_string(number); }

/// Degrees, minutes and seconds of a size in seconds.
std::array<double, 3> AngleParts(double seconds) {
    const double size = Round(seconds, decimals);
    const double degrees = Floor(size / 3600);
    const double minutes = Floor((size - degrees * 3600) / 60);
    return {degrees, minutes, size - degrees * 3600 - minutes * 60};
}

/// The steps that a key asks for.
double StepsOfKey(int code) {
    switch (code) {
        case KeyUp:
        case KeyPlus:
        case KeyNumericPlus: return 1;
        case KeyDown:
        case KeyMinus:
        case KeyNumericMinus: return -1;
        case KeyPageUp: return 10;
        case KeyPageDown: return -10;
        default: return 0;
    }
}

bool isSign(int code) {
    return code == KeyPlus || code == KeyMinus || code == KeyNumericPlus || code == KeyNumericMinus;
}

}  // namespace

UserLocalesWindow::UserLocalesWindow(HorvantaMDI& frame)
    : frame_(frame),
      fields_{{{LatDeg, 0, 90, ""},
               {LatMin, 0, 59, ""},
               {LatSec, 0, lastSecond, ""},
               {LongDeg, 0, 180, ""},
               {LongMin, 0, 59, ""},
               {LongSec, 0, lastSecond, ""},
               {Elevation, -highest, highest, ""},
               {TimeZone, -farthestZone, farthestZone, ""}}} {
    HangHandlers();
    HangFields();
    HangArrows();
    ShowSlot(1);
}

WindowRow UserLocalesWindow::Row() {
    return {.form = form,
            .first = LocName,
            .update = [this] { SetCopyLocToolText(); },
            .item = &frame_.SetUserLoc,
            .settings = StoredRows(),
            .mayToggle = [this] { return isDirty() != YesNoCancel::Cancel; }};
}

/// What no field uses does not go on to the time window: nobody who edits a place means to move the date.
void UserLocalesWindow::HangHandlers() {
    form.KeyDown = [this](int code, int) {
        if (code == KeyEscape) CancelLoc_Click();
        return code == KeyEscape || code == KeyPageUp || code == KeyPageDown;
    };
    LocName.KeyDown = [](int code, int) { return code == KeyUp || code == KeyCode::KeyDown; };
    LatHemi.Click = [this] { south_ = !south_, ShowHemispheres(); };
    LongHemi.Click = [this] { west_ = !west_, ShowHemispheres(); };
    LatLabel.Click = [this] { AskAngle(LatLabel, LatitudeFields, south_); };
    LongLabel.Click = [this] { AskAngle(LongLabel, LongitudeFields, west_); };
    ElevationFrame.Click = [this] { Clear(ElevationField); };
    TimeZoneFrame.Click = [this] { Clear(ZoneField); };
    ElevMeters.ShowsWhen([this] { return !inFeet_; });
    ElevFeet.ShowsWhen([this] { return inFeet_; });
    ElevMeters.Click = [this] { ChooseUnit(false); };
    ElevFeet.Click = [this] { ChooseUnit(true); };
    DisableDST.Shows(noDST_);
    UseLMT.Shows(useLMT_);
    DisableDST.Click = [this] { noDST_ = !noDST_; };
    UseLMT.Click = [this] { useLMT_ = !useLMT_; };
    GuessZone.Click = [this] { GuessZone_Click(); };
    CopyLoc.Click = [this] { CopyLoc_Click(); };
    ClearLoc.Click = [this] { ClearLoc_Click(); };
    ApplyLoc.Click = [this] { ApplyLoc_Click(); };
    OK.Click = [this] { OK_Click(); };
    CancelLoc.Click = [this] { CancelLoc_Click(); };
}

void UserLocalesWindow::HangFields() {
    for (std::size_t i = 0; i < NumberFields; ++i) {
        fields_[i].field.LostFocus = [this, i] { TakeField(i); };
        fields_[i].field.KeyDown = [this, i](int code, int shift) { return ObeyKey(i, code, shift); };
    }
    UDLnum.LostFocus = [this] {
        const auto number = ParseNumber(UDLnum.text);
        const bool isWhole = number && *number == Floor(*number);
        if (!isWhole) RefuseEntry(UDLnum.text, "the number of a locale");
        SelectSlot(isWhole ? *number : static_cast<double>(slot));
    };
    UDLnum.KeyDown = [this](int code, int) {
        const double steps = StepsOfKey(code);
        if (steps != 0) SelectSlot(static_cast<double>(slot) + steps);
        return steps != 0;
    };
}

void UserLocalesWindow::HangArrows() {
    struct Row {
        UpDown& arrows;
        std::size_t index;
        double size;
    };
    const Row rows[] = {
        {LatDegUpDown, LatitudeFields, 1},
        {LatMinUpDown, LatitudeFields + 1, 1},
        {LatSecUpDown, LatitudeFields + 2, 1},
        {LongDegUpDown, LongitudeFields, 1},
        {LongMinUpDown, LongitudeFields + 1, 1},
        {LongSecUpDown, LongitudeFields + 2, 1},
        {ElevScroll, ElevationField, 1},
        {ElevScroll10, ElevationField, 10},
        {ElevScroll100, ElevationField, 100},
        {ElevScroll1000, ElevationField, 1000},
        {ZoneUpDown, ZoneField, 1},
    };
    for (const auto& [arrows, index, size] : rows) {
        arrows.Step = [this, index, size](int direction, int) { Step(index, direction * size); };
    }
    UDLupDown.Step = [this](int direction, int) { SelectSlot(static_cast<double>(slot) + direction); };
}

// Places as entries.

UserLocalesWindow::Entry UserLocalesWindow::EntryOf(const LocaleRecord& place) {
    Entry entry;
    entry.name = place.Location;
    const std::pair<std::size_t, double> angles[] = {{LatitudeFields, place.Latitude},
                                                     {LongitudeFields, place.Longitude}};
    for (const auto& [first, degrees] : angles) {
        std::ranges::transform(AngleParts(std::fabs(degrees) * 3600), &entry.numbers[first], FieldText);
    }
    entry.numbers[ZoneField] = FieldText(place.Zone);
    entry.elevation = place.Elevation;
    entry.south = place.South;
    entry.west = place.West;
    entry.noDST = place.NoDST;
    entry.useLMT = place.UseLMT;
    return entry;
}

UserLocalesWindow::Entry UserLocalesWindow::EntryOfSlot() const {
    const LocaleRecord& place = UserLocales[slot];
    return isClear(slot) ? Entry() : EntryOf(place);
}

UserLocalesWindow::Entry UserLocalesWindow::Entered() const {
    Entry entry;
    entry.name = NameText(LocName.text);
    for (std::size_t i = 0; i < NumberFields; ++i) {
        if (i != ElevationField) entry.numbers[i] = fields_[i].field.text;
    }
    entry.elevation = elevation_;
    entry.south = south_;
    entry.west = west_;
    entry.noDST = noDST_;
    entry.useLMT = useLMT_;
    return entry;
}

void UserLocalesWindow::Show(const Entry& entry) {
    LocName.text = entry.name;
    for (std::size_t i = 0; i < NumberFields; ++i) Write(i, entry.numbers[i]);
    elevation_ = entry.elevation;
    south_ = entry.south;
    west_ = entry.west;
    noDST_ = entry.noDST;
    useLMT_ = entry.useLMT;
    ShowElevation();
    ShowHemispheres();
}

void UserLocalesWindow::ShowHemispheres() {
    LatHemi.text = south_ ? "South" : "North";
    LongHemi.text = west_ ? "West" : "East";
}

void UserLocalesWindow::ShowElevation() {
    const auto shown = [this](double meters) { return FieldText(inFeet_ ? MetersToFeet(meters) : meters); };
    Write(ElevationField, elevation_ ? shown(*elevation_) : "");
}

void UserLocalesWindow::ShowAngle(std::size_t first, double seconds) {
    for (const double part : AngleParts(seconds)) Write(first++, FieldText(part));
}

void UserLocalesWindow::ShowSlot(std::size_t number) {
    slot = number;
    UDLnum.text = std::to_string(number);
    Show(EntryOfSlot());
    SetCopyLocToolText();
}

Settings UserLocalesWindow::StoredRows() {
    constexpr auto lastSlot = static_cast<std::int32_t>(UserLocales.size() - 1);
    return {{"UserNum", "Num", "1",
             [this](const std::string& text) {
                 return TakeIf(WholeOf(text, 1, lastSlot),
                               [this](std::int32_t number) { ShowSlot(static_cast<std::size_t>(number)); });
             },
             [this] { return std::to_string(slot); }, UserSettings}};
}

// Fields.

void UserLocalesWindow::Write(std::size_t index, const std::string& text) {
    fields_[index].field.text = fields_[index].good = text;
}

bool UserLocalesWindow::Refuse(std::size_t index) {
    TextField& field = fields_[index].field;
    const bool isNumber = ParseNumber(field.text).has_value();
    RefuseEntry(field.text, (isNumber ? "possible as " : "a number, as needed for ") + field.spoken);
    field.text = fields_[index].good;
    return false;
}

void UserLocalesWindow::Clear(std::size_t index) {
    Write(index, "");
    if (index == ElevationField) elevation_.reset();
}

/// Takes what was typed if it is a number, brought within the ends. Angles have their sign in the hemisphere, and no
/// fractions but in the seconds. False if the old text had to come back.
bool UserLocalesWindow::TakeField(std::size_t index) {
    const auto& [field, least, greatest, good] = fields_[index];
    if (field.text == good) return true;
    if (Trimmed(field.text).empty()) {
        Clear(index);
        return true;
    }
    const auto number = ParseNumber(field.text);
    const bool isWhole = index < ElevationField && index % 3 != 2;
    if (!number || (isWhole && *number != Floor(*number)) || (least == 0 && *number < 0)) return Refuse(index);
    if (index != ElevationField) {
        Write(index, FieldText(std::clamp(*number, least, greatest)));
        return true;
    }
    elevation_ = std::clamp(inFeet_ ? FeetToMeters(*number) : *number, least, greatest);
    ShowElevation();
    return true;
}

/// A command may come by its access key while a field is still being edited.
bool UserLocalesWindow::TakeFields() {
    bool taken = true;
    for (std::size_t i = 0; i < NumberFields; ++i) taken = TakeField(i) && taken;
    return taken;
}

double UserLocalesWindow::ValueOf(std::size_t index) const {
    return ParseNumber(fields_[index].field.text).value_or(0);
}

double UserLocalesWindow::SizeOfAngle(std::size_t first) const {
    return DegMinSec(ValueOf(first), ValueOf(first + 1), ValueOf(first + 2));
}

double UserLocalesWindow::LongitudeEntered() const { return SizeOfAngle(LongitudeFields) * (west_ ? -1 : 1); }

/// Steps of an angle carry over to its other fields, and end at the equator or the pole, the prime meridian or the one
/// opposite; those of degrees keep the minutes and seconds down there.
void UserLocalesWindow::Step(std::size_t index, double count) {
    TakeField(index);
    const auto& [field, lowest, greatest, good] = fields_[index];
    if (index < ElevationField) {
        const std::size_t first = index - index % 3;
        const double size = SizeOfAngle(first) * 3600;
        const double stepped = size + count * unitsInSeconds[index % 3];
        const double least = index == first ? Modulo(size, 3600) : 0;
        ShowAngle(first, std::clamp(stepped, least, fields_[first].greatest * 3600));
    } else if (index == ElevationField) {
        const double step = inFeet_ ? FeetToMeters(count) : count;
        elevation_ = std::clamp(elevation_.value_or(0) + step, lowest, greatest);
        ShowElevation();
    } else {
        Write(index, FieldText(std::clamp(ValueOf(index) + count, lowest, greatest)));
    }
}

/// Where a number may be negative, its sign is typed.
bool UserLocalesWindow::ObeyKey(std::size_t index, int code, int shift) {
    const bool shifted = (shift & ShiftKey) != 0;
    double count = StepsOfKey(code);
    if (count == 0 || (index >= ElevationField && isSign(code))) return false;
    if (index < ElevationField && index % 3 == 2 && shifted) count /= 10;
    if (index == ElevationField && (shift & ControlKey) != 0) count *= 100;
    if (index == ZoneField && shifted) count /= 4;
    Step(index, count);
    return true;
}

// Commands.

YesNoCancel UserLocalesWindow::isDirty() {
    TakeFields();
    if (Entered() == EntryOfSlot()) return YesNoCancel::No;
    const YesNoCancel answer = CurrentDesktop->AskYesNoCancel(
        "User-Defined Locale " + std::to_string(slot) + " has been changed.\n\nApply the changes?", form.text);
    if (answer == YesNoCancel::Yes && !ApplyLoc_Click()) return YesNoCancel::Cancel;
    if (answer == YesNoCancel::No) ShowSlot(slot);
    return answer;
}

/// The nearest slot there is.
void UserLocalesWindow::SelectSlot(double number) {
    const auto nearest = WholeNumber<std::size_t>(std::clamp(number, 1.0, static_cast<double>(UserLocales.size() - 1)));
    if (nearest != slot && isDirty() != YesNoCancel::Cancel) ShowSlot(nearest);
    UDLnum.text = std::to_string(slot);
}

void UserLocalesWindow::SetCopyLocToolText() {
    const std::string number = "User-Defined Locale " + std::to_string(slot);
    constexpr std::size_t room = 30;  // characters, so that the buttons below stay in the window
    CopyLoc.text = "&Copy  \"" + ReplaceAll(Elided(Locale.Location, room), "&", "&&") + "\"\nto " + number;
    CopyLoc.tooltip = "Copy locale settings from \"" + Locale.Location + "\" to " + number;
}

/// The angle in degrees with its sign, in place of its fields.
void UserLocalesWindow::AskAngle(const Button& label, std::size_t first, bool& negative) {
    const std::string name = first == LatitudeFields ? "Latitude" : "Longitude";
    TakeFields();
    const std::string initial =
        fields_[first].field.text.empty() ? "" : GeneralText(SizeOfAngle(first) * (negative ? -1 : 1));
    const auto typed = CurrentDesktop->AskText(
        "Enter or Paste " + name + " (as degrees with decimal point)\n" + label.tooltip, name, initial);
    if (!typed) return;
    const auto degrees = ParseNumber(*typed);
    if (!degrees || std::fabs(*degrees) > fields_[first].greatest) {
        RefuseEntry(*typed, first == LatitudeFields ? "a latitude in degrees" : "a longitude in degrees");
        return;
    }
    negative = *degrees < 0;
    ShowAngle(first, std::fabs(*degrees) * 3600);
    ShowHemispheres();
}

void UserLocalesWindow::ChooseUnit(bool feet) {
    TakeField(ElevationField);
    inFeet_ = feet;
    ShowElevation();
}

void UserLocalesWindow::GuessZone_Click() {
    TakeFields();
    Write(ZoneField, FieldText(ZoneFromLongitude(LongitudeEntered())));
}

bool UserLocalesWindow::isZoneMeant() const {
    const double ideal = ZoneFromLongitude(LongitudeEntered());
    const double difference = std::fabs(ValueOf(ZoneField) - ideal);
    if (useLMT_ || TimeZone.text.empty() || difference < suspectDifference) return true;
    return CurrentDesktop->AskYesNo("Time Zone differs by " + GeneralText(difference) + " hours from ideal " +
                                        GeneralText(ideal) +
                                        " based on Longitude.\n\n"
                                        "Check Longitude, East/West Hemisphere, and Time Zone.\n\n"
                                        "Apply anyway?",
                                    "Check Time Zone");
}

bool UserLocalesWindow::ApplyLoc_Click() {
    if (!TakeFields() || !isZoneMeant()) return false;
    const std::string entered = NameText(LocName.text);
    const std::string name = entered.empty() ? SlotName(slot) : entered;
    const auto zone = TimeZone.text.empty() ? std::nullopt : std::optional(ValueOf(ZoneField));
    const double latitude = SizeOfAngle(LatitudeFields) * (south_ ? -1 : 1);
    Choose(slot,
           MakeLocale(name, name, latitude, LongitudeEntered(), elevation_.value_or(0), zone, noDST_, true, useLMT_));
    ShowSlot(slot);
    return true;
}

/// An untouched slot is not made a place by looking at it.
void UserLocalesWindow::OK_Click() {
    if (!TakeFields()) return;
    if (Entered() == EntryOfSlot() || ApplyLoc_Click()) frame_.SetUserLoc.Click();
}

void UserLocalesWindow::CancelLoc_Click() {
    ShowSlot(slot);
    frame_.SetUserLoc.Click();
}

void UserLocalesWindow::ClearLoc_Click() {
    Forget(slot);
    ShowSlot(slot);
}

/// By the long name, which tells whether the place lies in Israel.
void UserLocalesWindow::CopyLoc_Click() { Show(EntryOf(Locale)); }

}  // namespace horvanta
