#include "core/controls.h"

#include "core/text.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace horvanta {
namespace {

std::uint8_t ShadeChannel(std::uint8_t channel, int strength) {
    const int moved = channel < 128 ? channel + strength : channel - strength;
    return static_cast<std::uint8_t>(std::clamp(moved, 0, 255));
}

/// Of white 1, of black 0.
double Luminance(Color color) {
    const auto linear = [](std::uint8_t channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

bool isLegible(Color color, Color ground) {
    const auto [darker, brighter] = std::minmax({Luminance(color), Luminance(ground)});
    return brighter + 0.05 >= 4.5 * (darker + 0.05);
}

/// The colour so many tenths of the way to black or to white.
Color Toward(int end, Color color, int tenths) {
    const auto channel = [=](int from) { return static_cast<std::uint8_t>(from + (end - from) * tenths / 10); };
    return {channel(color.red), channel(color.green), channel(color.blue)};
}

bool hasWords(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](unsigned char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c >= 0x80;
    });
}

}  // namespace

Color Shade(Color color, int strength) {
    return {ShadeChannel(color.red, strength), ShadeChannel(color.green, strength), ShadeChannel(color.blue, strength)};
}

Color Legible(Color wish, Color ground) {
    const int end = isLegible({}, ground) ? 0 : 255;
    int tenths = 0;
    while (tenths < 10 && !isLegible(Toward(end, wish, tenths), ground)) ++tenths;
    return Toward(end, wish, tenths);
}

Color InkOf(Mark mark, Color ground, Color unmarked) {
    constexpr Color warm{190, 30, 20};
    constexpr Color cool{20, 80, 190};
    return mark == Mark::None ? unmarked : Legible(mark == Mark::Warm ? warm : cool, ground);
}

void Control::JoinForm() { form.controls.push_back(this); }

void Control::TakeFocus() { form.focusWish = this; }

namespace {

/// The field that the user changed last, if he has not left it.
TextField* editedField = nullptr;

}  // namespace

TextField::~TextField() {
    if (editedField == this) editedField = nullptr;
}

void TextField::Edit(const std::string& typed) {
    if (Typed) {
        text = typed;
        Typed();
        return;
    }
    edit_ = {isEdited() ? edit_->before : text, typed};
    text = typed;
    editedField = this;
}

void TextField::Leave() {
    edit_.reset();
    if (LostFocus) LostFocus();
}

void TextField::Enter() {
    Leave();
    if (Entered) Entered();
}

bool TextField::Restore() {
    const bool edited = isEdited();
    if (edited) text = edit_->before;
    edit_.reset();
    return edited;
}

void CommitEdit() {
    TextField* field = std::exchange(editedField, nullptr);
    if (field && field->isEdited()) field->Leave();
}

bool isWritingKey(int code) {
    constexpr int keys[] = {KeyBackspace, KeyShiftItself, KeyEnd,      KeyLeft,        KeyRight,
                            KeyNumeric0,  KeyNumeric2,    KeyNumeric4, KeyNumeric5,    KeyNumeric6,
                            KeyNumeric8,  KeyPlus,        KeyMinus,    KeyNumericPoint};
    return std::find(std::begin(keys), std::end(keys), code) != std::end(keys);
}

std::string NameOf(const Control& control) {
    if (!control.spoken.empty()) return control.spoken;
    return control.tooltip.starts_with("Click") ? "" : control.tooltip;
}

std::string AccessibleName(const Control& control) {
    if (dynamic_cast<const DayStrip*>(&control)) return control.text;
    const std::string words = hasWords(control.text) ? RemoveAmpersands(control.text) : "";
    const bool isLabel = dynamic_cast<const Label*>(&control);
    const std::string& name = control.spoken.empty() ? control.tooltip : control.spoken;
    if (isLabel && words.empty() && name.empty()) return control.form.text;
    if (name.empty()) return words.empty() ? control.name : words;
    const bool showsValue = isLabel && !words.empty();
    if (showsValue) return NameOf(control).empty() ? words : NameOf(control) + ": " + words;
    if (!control.spoken.empty()) return control.spoken;
    const bool hasCaption = dynamic_cast<const Button*>(&control) || dynamic_cast<const CheckBox*>(&control) ||
                            dynamic_cast<const OptionButton*>(&control) || dynamic_cast<const GroupBox*>(&control);
    const bool captioned = hasCaption && !words.empty();
    return captioned ? words : control.tooltip;
}

Control* Form::Find(std::string_view controlName) const {
    const auto found =
        std::find_if(controls.begin(), controls.end(), [&](const Control* c) { return c->name == controlName; });
    return found == controls.end() ? nullptr : *found;
}

MenuItem::MenuItem(MenuItem& above, std::string_view itemName, std::string_view itemCaption, std::string_view keys)
    : name(itemName), caption(itemCaption), shortcut(keys), parent(&above) {
    above.items.push_back(this);
}

void MenuItem::Shows(const bool& option) {
    ticked_ = [&option] { return option; };
}

void MenuItem::Shows(const std::int32_t& option, std::int32_t value) {
    ticked_ = [&option, value] { return option == value; };
}

bool MenuItem::isShown() const {
    return Click || std::any_of(items.begin(), items.end(), [](const MenuItem* item) { return item->isShown(); });
}

MenuItem* MenuItem::Find(std::string_view itemName) {
    if (name == itemName) return this;
    for (MenuItem* item : items) {
        if (MenuItem* found = item->Find(itemName)) return found;
    }
    return nullptr;
}

}  // namespace horvanta
