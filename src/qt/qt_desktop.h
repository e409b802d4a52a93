#pragma once

#include "core/desktop.h"
#include "qt/frame.h"
#include "qt/settings_file.h"

#include <QString>

#include <memory>

namespace horvanta {

/// The desktop by means of Qt.
class QtDesktop final : public Desktop {
  public:
    void LoadFrame(HorvantaMDI& shell) override;
    void LoadForm(Form& form) override;
    void LetEventsRun() override;
    void Beep() override;
    void ShowStatus(std::string_view line) override;
    bool AskYesNo(std::string_view question, std::string_view title) override;
    YesNoCancel AskYesNoCancel(std::string_view question, std::string_view title) override;
    bool AskOkCancel(std::string_view question, std::string_view title) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title,
                                       std::string_view initial) override;
    std::optional<std::string> ChooseFile(std::string_view title) override;
    std::optional<std::string> ChooseNewFile(std::string_view title, const std::string& name,
                                             const std::vector<FileKind>& kinds) override;
    void Tell(std::string_view message, std::string_view title) override;
    void OpenWithShell(const std::string& path) override;
    void SelectFile(const std::string& path) override;
    bool ShowInformation(std::string_view text, std::string_view title) override;
    std::optional<std::size_t> ChooseFromMenu(const std::vector<std::string>& captions) override;
    void ArrangeWindows() override { frame_->Arrange(); }
    std::optional<Color> ChooseColor(Color present, std::string_view title) override;
    void SetClipboard(const std::string& text) override;
    LocalClock Clock() override;
    SettingsStore& Settings() override { return settings_; }
    void End() override;

    /// The main window; null before it is loaded.
    Frame* frame() { return frame_.get(); }

  private:
    SettingsFile settings_;
    std::unique_ptr<Frame> frame_;
    QString newFilesFolder_;  ///< Where the user chose a file to be written last.
};

}  // namespace horvanta
