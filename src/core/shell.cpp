#include "core/shell.h"

#include "core/desktop.h"
#include "core/text.h"

namespace horvanta {

MenuItem& ItemOf(EventMenu& menu, MenuEvent event) {
    const auto* found = std::ranges::find(EventItems, event, &EventItem::event);
    return menu[static_cast<std::size_t>(found - EventItems) + 1];
}

void HorvantaMDI::SetClipboardText(const std::string& clip) {
    CurrentDesktop->SetClipboard(clip);
    ShowClipboardText(ReplaceAll(clip, "\n", "|"));
}

void HorvantaMDI::CopyToClipboard(const Control& control) { SetClipboardText(control.tooltip + ": " + control.text); }

void HorvantaMDI::CopyOnClick(Label& label) {
    label.Click = [this, &label] { SetClipboardText(label.text); };
}

void HorvantaMDI::AskCopyToClipboard(const std::string& message, const std::string& title) {
    if (CurrentDesktop->AskYesNo(message + "\n\n\nCopy to Clipboard?", title)) {
        SetClipboardText(message + ":" + title);
    }
    TakeFocus();
}

void HorvantaMDI::OfferColors(WindowColors& colors) {
    colors.mainDate.DblClick = [this, &colors] { PickBackgroundColor(colors); };
    colors.mainDate.RightClick = [this, &colors] { PickForegroundColor(colors); };
    colors.mainDate.form.PickColor = [this, &colors](bool isBackground) { PickColor(colors, isBackground); };
}

void HorvantaMDI::PickColor(WindowColors& colors, bool isBackground) {
    const Color present = colors.Shown(isBackground);
    const auto chosen = CurrentDesktop->ChooseColor(present);
    if (!chosen) return;
    undoColor_ = {present, &colors, isBackground};
    UndoLastColorChange.enabled = true;
    colors.SetColor(*chosen, isBackground);
}

void HorvantaMDI::UndoLastColorChange_Click() {
    auto& [color, colors, isBackground] = undoColor_;
    const Color present = colors->Shown(isBackground);
    colors->SetColor(color, isBackground);
    color = present;
}

void HorvantaMDI::PickColorOfActive(bool isBackground) {
    if (activeForm && activeForm->PickColor) {
        activeForm->PickColor(isBackground);
    } else {
        CurrentDesktop->Beep();
    }
}

void HorvantaMDI::ColorPicking(bool enable) { PickBackColor.enabled = PickForeColor.enabled = enable; }

}  // namespace horvanta
