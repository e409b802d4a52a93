#pragma once

#include "core/controls.h"
#include "core/preferences.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace horvanta {

class HorvantaMDI;

/// The machine's local date and time of day.
struct LocalClock {
    double daysSince1970 = 0;  ///< Whole days since January 1, 1970.
    double fractionOfDay = 0;
};

/// An answer to a question; the numbers are those by which desktops know them.
enum class YesNoCancel { Cancel = 2, Yes = 6, No = 7 };

/// A kind of file that the user can choose: "Web Page", whose names end in "htm".
struct FileKind {
    std::string_view name;
    std::string_view extension;
};

/// Everything the program asks of the desktop it runs on.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Makes the frame with its menu bar, or the window of a form, still hidden, and tells the form its size.
    virtual void LoadFrame(HorvantaMDI& frame) = 0;
    virtual void LoadForm(Form& form) = 0;

    /// Draws what has changed and handles what has come in since, in the midst of a long command. Of what the user did
    /// only the keys and clicks for controls with `whileBusy` count; the rest is lost.
    virtual void LetEventsRun() = 0;

    virtual void Beep() = 0;

    /// A line in the frame's status bar, until the user acts again.
    virtual void ShowStatus(std::string_view line) = 0;

    /// A box with a question; true for yes.
    virtual bool AskYesNo(std::string_view question, std::string_view title) = 0;

    /// A box with a question that may be left open, and stops what raised it then.
    virtual YesNoCancel AskYesNoCancel(std::string_view question, std::string_view title) = 0;

    /// A box that waits for the user to see to something; false if he would rather stop what raised it.
    virtual bool AskOkCancel(std::string_view question, std::string_view title) = 0;

    /// A box with a line to fill in; nothing when cancelled.
    virtual std::optional<std::string> AskText(std::string_view prompt, std::string_view title,
                                               std::string_view initial) = 0;

    /// A file that the user chooses to be read, by its path; nothing when cancelled.
    virtual std::optional<std::string> ChooseFile(std::string_view title) = 0;

    /// A file that the user chooses to be written, by its path, which ends as one of the kinds; nothing when cancelled.
    /// `name` is a bare name to begin with. Where there is such a file, the user wants it replaced.
    virtual std::optional<std::string> ChooseNewFile(std::string_view title, const std::string& name,
                                                     const std::vector<FileKind>& kinds) = 0;

    /// A box that tells something.
    virtual void Tell(std::string_view message, std::string_view title) = 0;

    /// A window with a text to read at leisure; true if the user wants a copy of it.
    virtual bool ShowInformation(std::string_view text, std::string_view title) = 0;

    /// A menu where the user asked for one, with captions of which "-" is a line; the number of the chosen one.
    virtual std::optional<std::size_t> ChooseFromMenu(const std::vector<std::string>& captions) = 0;

    /// Puts the open windows side by side, where they fit into the frame, and the others so that their titles can be
    /// reached.
    virtual void ArrangeWindows() = 0;

    /// Opens a file or a web address with the program that the desktop has for it.
    virtual void OpenWithShell(const std::string& path) = 0;

    /// Shows a file selected in the file manager, or the folder it is in.
    virtual void SelectFile(const std::string& path) = 0;

    /// The colour the user chooses, starting from the present one; nothing when cancelled. The title says for what.
    virtual std::optional<Color> ChooseColor(Color present, std::string_view title) = 0;

    /// Puts a text on the clipboard; failures are ignored.
    virtual void SetClipboard(const std::string& text) = 0;

    virtual LocalClock Clock() = 0;
    virtual SettingsStore& Settings() = 0;

    /// Ends the program once the present command returns.
    virtual void End() = 0;
};

/// The desktop the program runs on. It is set before the program starts and outlives it.
inline Desktop* CurrentDesktop = nullptr;

/// Tells the user, by a beep and in the status bar, why nothing came of what he did.
inline void Refuse(std::string_view why) {
    CurrentDesktop->Beep();
    CurrentDesktop->ShowStatus(why);
}

/// The same for an entry that can't be read.
inline void RefuseEntry(std::string_view entry, std::string_view wanted) { Refuse(NotText(entry, wanted)); }

}  // namespace horvanta
