#pragma once

#include "core/desktop.h"
#include "core/settings_text.h"
#include "core/shell.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace horvanta {

/// A text within double quotes, with quotes, backslashes and line ends escaped.
std::string Quoted(std::string_view text);

/// Settings that last as long as the object.
class MemorySettings final : public SettingsStore {
  public:
    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;
    void Write(std::string_view application, std::string_view section, std::string_view key,
               std::string_view text) override;
    void DeleteSection(std::string_view application, std::string_view section) override;
    void DeleteApplication(std::string_view application) override;
    FlushReport Flush() override;

    StoredSettings values;
    StoredSettings flushed;  ///< What is on the disk.
    StoredSettings kept;     ///< What was forgotten.
    std::string refusal;     ///< Why the disk takes nothing; empty while it does.

  private:
    StoredSettings forgotten_;  ///< Since the last flush.
};

/// What the user does with the next box.
struct BoxAnswer {
    enum Kind { yes, no, cancel, color, text } kind = cancel;
    Color chosen;
    std::string typed;
};

/// A desktop without a display. It records what it was asked, answers boxes from a queue (an empty queue cancels),
/// and keeps who has the focus. Its clock stands still.
class RecordingDesktop : public Desktop {
  public:
    void LoadFrame(HorvantaMDI& frame) override { frame_ = &frame; }
    void LoadForm(Form& form) override;
    void LetEventsRun() override;
    void Beep() override;
    void ShowStatus(std::string_view line) override { status = line; }
    bool AskYesNo(std::string_view question, std::string_view title) override;
    YesNoCancel AskYesNoCancel(std::string_view question, std::string_view title) override;
    bool AskOkCancel(std::string_view question, std::string_view title) override { return AskYesNo(question, title); }
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title,
                                       std::string_view initial) override;
    std::optional<std::string> ChooseFile(std::string_view title) override;
    std::optional<std::string> ChooseNewFile(std::string_view title, const std::string& name,
                                             const std::vector<FileKind>& kinds) override;
    void Tell(std::string_view message, std::string_view title) override;
    void OpenWithShell(const std::string& path) override;
    void SelectFile(const std::string& path) override { asked.push_back("select " + Quoted(path)); }
    bool ShowInformation(std::string_view text, std::string_view title) override;
    std::optional<std::size_t> ChooseFromMenu(const std::vector<std::string>& captions) override;
    void ArrangeWindows() override { asked.emplace_back("arrange"); }
    std::optional<Color> ChooseColor(Color present, std::string_view title) override;
    void SetClipboard(const std::string& text) override;
    LocalClock Clock() override { return clock; }
    SettingsStore& Settings() override { return settings; }
    void End() override { ended = true; }

    // What a user does. Each returns false where there is nothing to act on.
    bool Press(int code, int shift);
    bool Type(TextField& field, std::string_view text);
    bool Edit(TextField& field, std::string_view text);  ///< Without leaving the field.
    bool Focus(Control& control);

    /// The window that keeps the user from the others; null if there is none.
    const Form* ModalForm() const;

    /// Whether the user can act on a control, as far as other windows and long commands go.
    bool isHeard(const Control& control) const;

    /// Grants the wishes for focus, as a drawing desktop does when an act has returned.
    void Settle();

    std::vector<std::string> asked;  ///< Beeps, boxes and clipboard texts, in their order.
    std::string status;              ///< The line in the status bar.
    std::deque<BoxAnswer> answers;
    std::vector<Form*> forms;
    std::function<void()> duringEvents;  ///< What else happens when a long command lets events run.
    bool busy = false;                   ///< It does just now.
    Control* focused = nullptr;
    LocalClock clock{19737, 0.4375};  // January 15, 2024 at 10:30
    MemorySettings settings;
    bool ended = false;

  private:
    BoxAnswer NextAnswer();
    BoxAnswer::Kind AnswerBox(std::string_view question, std::string_view title);
    void Activate(Control& control);
    void LeaveField();

    HorvantaMDI* frame_ = nullptr;
};

/// Whether a user can act on a control: it is shown and enabled.
bool isInReach(const Control& control);

/// True for buttons, check boxes and option buttons, which take the focus when they are clicked, and keys as clicks.
bool TakesClicks(const Control& control);

}  // namespace horvanta
