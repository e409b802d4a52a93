#include "core/shell.h"

#include "core/desktop.h"
#include "core/text.h"

namespace horvanta {

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

namespace {

Color Shown(const Control& mainDate, bool isBackground) {
    return isBackground ? mainDate.colors->background : mainDate.colors->foreground;
}

}  // namespace

void HorvantaMDI::PickColor(const Control& mainDate, bool isBackground,
                            const std::function<void(Color, bool)>& setColor) {
    const Color present = Shown(mainDate, isBackground);
    const auto chosen = CurrentDesktop->ChooseColor(present);
    if (!chosen) return;
    undoColor_ = {present, &mainDate, isBackground, setColor};
    UndoLastColorChange.enabled = true;
    setColor(*chosen, isBackground);
}

void HorvantaMDI::UndoLastColorChange_Click() {
    const Color present = Shown(*undoColor_.mainDate, undoColor_.isBackground);
    undoColor_.setColor(undoColor_.color, undoColor_.isBackground);
    undoColor_.color = present;
}

void HorvantaMDI::PickBackColor_Click() { PickColorOfActive(true); }
void HorvantaMDI::PickForeColor_Click() { PickColorOfActive(false); }

void HorvantaMDI::PickColorOfActive(bool isBackground) {
    if (activeForm && activeForm->PickColor) {
        activeForm->PickColor(isBackground);
    } else {
        CurrentDesktop->Beep();
    }
}

void HorvantaMDI::ColorPicking(bool enable) { PickBackColor.enabled = PickForeColor.enabled = enable; }

}  // namespace horvanta
