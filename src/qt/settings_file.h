#pragma once

#include "core/preferences.h"
#include "core/settings_text.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace horvanta {

/// The settings in the user's configuration folder, a file for each application, read once and written as a whole.
///
/// The mark of a start that has not finished is an empty file beside them: it comes and goes at every start, and so
/// needs no room on the disk and leaves the settings alone. A file that may not be written or can't be read stays as it
/// is. What is cleared is kept under another name, and so is a file with damaged lines when it is replaced.
class SettingsFile final : public SettingsStore {
  public:
    SettingsFile();

    std::optional<std::string> Read(std::string_view application, std::string_view section,
                                    std::string_view key) override;
    void Write(std::string_view application, std::string_view section, std::string_view key,
               std::string_view text) override;
    void DeleteSection(std::string_view application, std::string_view section) override;
    void DeleteApplication(std::string_view application) override;
    FlushReport Flush() override;

    /// The file of an application, and the folder of all, which has to be there before.
    static QString PathOf(std::string_view application);
    static QString Folder();

  private:
    struct File {
        std::string path;
        StoredApplication values;
        StoredApplication stored;  ///< What can be read of the file.
        std::string refusal;       ///< Why the file is not to be replaced; empty if it may be.
        bool isStarting = false;   ///< Marked.
        bool isDamaged = false;    ///< A copy is to be kept when the file is replaced.
        bool isForgotten = false;  ///< The file is to be moved aside.
    };

    File& FileOf(std::string_view application);
    static File Load(const std::string& path);

    // Each returns why it failed; empty if it did not.
    static std::string Flush(std::string_view application, File& file, FlushReport& report);
    static std::string PutAside(File& file);
    static std::string Bring(std::string_view application, File& file);

    void Complain(const FlushReport& report);

    std::map<std::string, File, std::less<>> files_;
    std::string complained_;  ///< The last failure that was told.
};

}  // namespace horvanta
