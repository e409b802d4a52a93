#include "core/controls.h"

#include "core/text.h"

#include <algorithm>
#include <cmath>

namespace horvanta {
namespace {

std::uint8_t ShadeChannel(std::uint8_t channel, int strength) {
    const int moved = channel < 128 ? channel + strength : channel - strength;
    return static_cast<std::uint8_t>(std::clamp(moved, 0, 255));
}

/// How light a colour of the sRGB space is, from 0 to 1.
double Luminance(Color color) {
    const auto linear = [](std::uint8_t channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double Contrast(Color a, Color b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// A colour on its way to another, of `steps` steps.
Color Mixed(Color from, Color to, int step, int steps) {
    const auto mixed = [=](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(a + (b - a) * step / steps);
    };
    return {mixed(from.red, to.red), mixed(from.green, to.green), mixed(from.blue, to.blue)};
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

Color ReadableOn(Color background, Color color) {
    constexpr double enough = 4.5;
    constexpr int steps = 32;
    constexpr Color black{0, 0, 0};
    constexpr Color white{255, 255, 255};
    const Color end = Contrast(background, white) > Contrast(background, black) ? white : black;
    int step = 0;
    while (step < steps && Contrast(background, Mixed(color, end, step, steps)) < enough) ++step;
    return Mixed(color, end, step, steps);
}

void Control::JoinForm() { form.controls.push_back(this); }

void Control::TakeFocus() { form.focusWish = this; }

std::string AccessibleName(const Control& control) {
    if (!control.spoken.empty()) return control.spoken;
    const std::string words = hasWords(control.text) ? RemoveAmpersands(control.text) : "";
    if (control.tooltip.empty()) return words.empty() ? control.name : words;
    const bool showsValue = dynamic_cast<const Label*>(&control) && !words.empty();
    if (showsValue) return control.tooltip + ": " + words;
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
