#include "core/shell.h"

#include "core/desktop.h"
#include "core/text.h"

namespace horvanta {

void HorvantaMDI::SetClipboardText(const std::string& clip) {
    CurrentDesktop->SetClipboard(clip);
    ShowClipboardText(ReplaceAll(clip, "\n", "|"));
}

void HorvantaMDI::CopyToClipboard(const Control& control) { SetClipboardText(control.tooltip + ": " + control.text); }

void HorvantaMDI::AskCopyToClipboard(const std::string& message, const std::string& title) {
    if (CurrentDesktop->AskYesNo(message + "\n\n\nCopy to Clipboard?", title)) {
        SetClipboardText(message + ":" + title);
    }
    TakeFocus();
}

void HorvantaMDI::PickColor(const Control& mainDate, bool isBackground,
                            const std::function<void(Color, bool)>& setColor) {
    const Color present = isBackground ? mainDate.colors->background : mainDate.colors->foreground;
    const auto chosen = CurrentDesktop->ChooseColor(present);
    if (chosen) setColor(*chosen, isBackground);
}

}  // namespace horvanta
