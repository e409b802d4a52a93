#include "recording_desktop.h"

#include "core/text.h"

#include <algorithm>
#include <utility>

namespace horvanta {

std::optional<std::string> MemorySettings::Read(std::string_view application, std::string_view section,
                                                std::string_view key) {
    const auto foundApplication = values.find(application);
    if (foundApplication == values.end()) return std::nullopt;
    const auto foundSection = foundApplication->second.find(section);
    if (foundSection == foundApplication->second.end()) return std::nullopt;
    const auto found = foundSection->second.find(key);
    return found == foundSection->second.end() ? std::nullopt : std::optional(found->second);
}

void MemorySettings::Write(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view text) {
    values[std::string(application)][std::string(section)][std::string(key)] = text;
}

void MemorySettings::DeleteSection(std::string_view application, std::string_view section) {
    values[std::string(application)].erase(std::string(section));
}

void MemorySettings::DeleteApplication(std::string_view application) {
    const auto found = values.find(application);
    if (found == values.end()) return;
    if (isWorthKeeping(found->second)) forgotten_[found->first] = found->second;
    values.erase(found);
}

FlushReport MemorySettings::Flush() {
    if (!refusal.empty()) return {refusal, ""};
    flushed = values;
    if (forgotten_.empty()) return {};
    kept = std::exchange(forgotten_, {});
    return {"", "The former settings are kept."};
}

void RecordingDesktop::LoadForm(Form& form) {
    form.position.width = 5000;
    form.position.height = 3000;
    forms.push_back(&form);
}

void RecordingDesktop::LetEventsRun() {
    Settle();
    const bool before = std::exchange(busy, true);
    if (duringEvents) duringEvents();
    busy = before;
}

const Form* RecordingDesktop::ModalForm() const {
    const auto found = std::ranges::find_if(forms, [](const Form* form) { return form->modal && form->visible; });
    return found == forms.end() ? nullptr : *found;
}

bool RecordingDesktop::isHeard(const Control& control) const {
    const Form* modal = ModalForm();
    return (!modal || modal == &control.form) && (!busy || control.whileBusy);
}

void RecordingDesktop::Beep() { asked.emplace_back("beep"); }

BoxAnswer RecordingDesktop::NextAnswer() {
    if (answers.empty()) return {};
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

BoxAnswer::Kind RecordingDesktop::AnswerBox(std::string_view question, std::string_view title) {
    constexpr const char* words[] = {"yes", "no", "cancel", "cancel", "cancel"};
    const BoxAnswer answer = NextAnswer();
    asked.push_back("box " + Quoted(title) + " " + Quoted(question) + " " + words[answer.kind]);
    return answer.kind;
}

bool RecordingDesktop::AskYesNo(std::string_view question, std::string_view title) {
    return AnswerBox(question, title) == BoxAnswer::yes;
}

YesNoCancel RecordingDesktop::AskYesNoCancel(std::string_view question, std::string_view title) {
    const BoxAnswer::Kind answer = AnswerBox(question, title);
    if (answer == BoxAnswer::yes) return YesNoCancel::Yes;
    return answer == BoxAnswer::no ? YesNoCancel::No : YesNoCancel::Cancel;
}

std::optional<std::string> RecordingDesktop::AskText(std::string_view prompt, std::string_view title,
                                                     std::string_view initial) {
    const BoxAnswer answer = NextAnswer();
    const bool typed = answer.kind == BoxAnswer::text;
    asked.push_back("input " + Quoted(title) + " " + Quoted(prompt) + " " + Quoted(initial) + " " +
                    (typed ? Quoted(answer.typed) : "cancel"));
    return typed ? std::optional(answer.typed) : std::nullopt;
}

std::optional<std::string> RecordingDesktop::ChooseFile(std::string_view title) {
    const BoxAnswer answer = NextAnswer();
    const bool chosen = answer.kind == BoxAnswer::text;
    asked.push_back("file " + Quoted(title) + " " + (chosen ? Quoted(answer.typed) : "cancel"));
    return chosen ? std::optional(answer.typed) : std::nullopt;
}

std::optional<std::string> RecordingDesktop::ChooseNewFile(std::string_view title, const std::string& name,
                                                           const std::vector<FileKind>& kinds) {
    const BoxAnswer answer = NextAnswer();
    const bool chosen = answer.kind == BoxAnswer::text;
    std::string record = "save " + Quoted(title) + " " + Quoted(name);
    for (const FileKind& kind : kinds)
        record += " " + Quoted(std::string(kind.name) + " *." + std::string(kind.extension));
    asked.push_back(record + " " + (chosen ? Quoted(answer.typed) : "cancel"));
    return chosen ? std::optional(answer.typed) : std::nullopt;
}

void RecordingDesktop::Tell(std::string_view message, std::string_view title) {
    asked.push_back("box " + Quoted(title) + " " + Quoted(message));
}

void RecordingDesktop::OpenWithShell(const std::string& path) { asked.push_back("open " + Quoted(path)); }

bool RecordingDesktop::ShowInformation(std::string_view text, std::string_view title) {
    return AskYesNo(std::string(text) + "\n\n\nCopy to Clipboard?", title);
}

/// The answer is the text of a caption.
std::optional<std::size_t> RecordingDesktop::ChooseFromMenu(const std::vector<std::string>& captions) {
    const BoxAnswer answer = NextAnswer();
    std::string record = "menu";
    for (const std::string& caption : captions) record += " " + Quoted(RemoveAmpersands(caption));
    const auto found = std::ranges::find_if(captions, [&](const std::string& caption) {
        return answer.kind == BoxAnswer::text && RemoveAmpersands(caption) == answer.typed;
    });
    const bool chosen = found != captions.end();
    asked.push_back(record + " " + (chosen ? Quoted(answer.typed) : "cancel"));
    return chosen ? std::optional(static_cast<std::size_t>(found - captions.begin())) : std::nullopt;
}

std::optional<Color> RecordingDesktop::ChooseColor(Color present, std::string_view) {
    const BoxAnswer answer = NextAnswer();
    const bool chosen = answer.kind == BoxAnswer::color;
    const std::string outcome = chosen ? std::to_string(answer.chosen.Number()) : "cancel";
    asked.push_back("color " + std::to_string(present.Number()) + " " + outcome);
    return chosen ? std::optional(answer.chosen) : std::nullopt;
}

void RecordingDesktop::SetClipboard(const std::string& text) { asked.push_back("clipboard " + Quoted(text)); }

/// A focused button keeps Space and Enter, a text field Enter and what it uses itself; other keys go to the focused
/// window. A control that was hidden or disabled since has no keys any more, but its window has.
bool RecordingDesktop::Press(int code, int shift) {
    if (!focused || !focused->form.visible || !isHeard(*focused)) return false;
    const bool reached = isInReach(*focused);
    auto* field = dynamic_cast<TextField*>(focused);
    if (reached && field && code == KeyEscape && field->Restore()) return true;
    if (!(reached && field && isWritingKey(code))) CommitEdit();
    if (reached && TakesClicks(*focused) && (code == KeySpace || code == KeyEnter)) {
        if (focused->Click) focused->Click();
    } else if (reached && field && code == KeyEnter) {
        field->Enter();
    } else if (reached && focused->KeyDown && focused->KeyDown(code, shift)) {
        return true;
    } else if (focused->form.KeyDown) {
        focused->form.KeyDown(code, shift);
    }
    return true;
}

bool RecordingDesktop::Type(TextField& field, std::string_view text) {
    if (field.readOnly || !Focus(field)) return false;
    field.Edit(std::string(text));
    LeaveField();
    return true;
}

bool RecordingDesktop::Edit(TextField& field, std::string_view text) {
    if (field.readOnly || !Focus(field)) return false;
    field.Edit(std::string(text));
    return true;
}

void RecordingDesktop::LeaveField() {
    auto* field = dynamic_cast<TextField*>(focused);
    if (field && isInReach(*field)) field->Leave();
}

bool RecordingDesktop::Focus(Control& control) {
    if (!isInReach(control)) return false;
    if (focused != &control) LeaveField();
    Activate(control);
    return focused == &control;
}

void RecordingDesktop::Activate(Control& control) {
    if (!control.form.visible) return;
    if (isInReach(control)) focused = &control;
    for (Form* form : forms) form->inFront = form == &control.form;
    if (frame_) frame_->activeForm = &control.form;
}

void RecordingDesktop::Settle() {
    for (Form* form : forms) {
        if (Control* wished = std::exchange(form->focusWish, nullptr)) Activate(*wished);
    }
}

bool isInReach(const Control& control) { return control.form.visible && control.visible && control.enabled; }

bool TakesClicks(const Control& control) {
    return dynamic_cast<const Button*>(&control) || dynamic_cast<const CheckBox*>(&control) ||
           dynamic_cast<const OptionButton*>(&control);
}

std::string Quoted(std::string_view text) {
    std::string escaped = ReplaceAll(text, "\\", "\\\\");
    escaped = ReplaceAll(escaped, "\"", "\\\"");
    return "\"" + ReplaceAll(escaped, "\n", "\\n") + "\"";
}

}  // namespace horvanta
