#pragma once

#include "core/preferences.h"

#include <QSettings>

#include <map>
#include <memory>
#include <string>

namespace horvanta {

/// The settings in the user's configuration folder: a file in the INI format for each application. A file that may
/// not be written is read as usual and left as it is, which one line on standard error tells.
class SettingsFile final : public SettingsStore {
  public:
    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;
    void Write(std::string_view application, std::string_view section, std::string_view key,
               std::string_view text) override;
    void DeleteSection(std::string_view application, std::string_view section) override;
    void DeleteApplication(std::string_view application) override;
    void Flush() override;

    /// The file of an application.
    static QString PathOf(std::string_view application);

  private:
    struct File {
        std::unique_ptr<QSettings> settings;
        bool writable;
    };

    File& FileOf(std::string_view application);

    std::map<std::string, File, std::less<>> files_;
};

}  // namespace horvanta
