#include "qt/settings_file.h"

#include "qt/private_file.h"

#include <QDir>
#include <QStandardPaths>

#include <csignal>
#include <cstdio>
#include <sys/stat.h>
#include <utility>

namespace horvanta {
namespace {

bool isMark(std::string_view section, std::string_view key) { return section == "Prog" && key == "Launch"; }

std::string MarkOf(const std::string& path) { return path + ".starting"; }
std::string KeptOf(const std::string& path) { return path + ".bad"; }

/// A file without write permission stays as it is even where its owner could replace it.
bool isReadOnly(const std::string& path) {
    struct stat facts {};
    return stat(path.c_str(), &facts) == 0 && (facts.st_mode & S_IWUSR) == 0;
}

void SetMark(const std::string& path, bool isStarting) {
    const std::string mark = MarkOf(path);
    if (isStarting) {
        TouchFile(mark);
    } else if (isFile(mark)) {
        std::remove(mark.c_str());
    }
}

}  // namespace

/// A file that grows past the limit set for the process is then a failure like others.
SettingsFile::SettingsFile() { std::signal(SIGXFSZ, SIG_IGN); }

QString SettingsFile::Folder() {
    const QDir settings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return settings.filePath(QStringLiteral("Horvanta"));
}

QString SettingsFile::PathOf(std::string_view application) {
    return Folder() + u'/' + QString::fromUtf8(application) + QStringLiteral(".ini");
}

SettingsFile::File SettingsFile::Load(const std::string& path) {
    File file;
    file.path = TargetOf(path);
    const auto [text, failure, isThere] = ReadFile(file.path);
    file.refusal = failure.empty() && isReadOnly(file.path) ? "Read-only" : failure;
    auto [values, isWhole] = ReadSettingsText(text);
    file.values = file.stored = std::move(values);
    file.isDamaged = isThere && !isWhole;
    file.isStarting = file.refusal.empty() && isFile(MarkOf(file.path));
    return file;
}

SettingsFile::File& SettingsFile::FileOf(std::string_view application) {
    if (const auto found = files_.find(application); found != files_.end()) return found->second;
    MakeFolder(QDir::toNativeSeparators(Folder()).toStdString());
    return files_.emplace(application, Load(PathOf(application).toStdString())).first->second;
}

std::optional<std::string> SettingsFile::Read(std::string_view application, std::string_view section,
                                              std::string_view key) {
    const File& file = FileOf(application);
    if (file.isStarting && isMark(section, key)) return "";
    const auto keys = file.values.find(section);
    if (keys == file.values.end()) return std::nullopt;
    const auto found = keys->second.find(key);
    return found == keys->second.end() ? std::nullopt : std::optional(found->second);
}

void SettingsFile::Write(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view text) {
    File& file = FileOf(application);
    if (isMark(section, key)) file.isStarting = text.empty();
    if (isMark(section, key) && text.empty()) return;
    file.values[std::string(section)][std::string(key)] = text;
}

void SettingsFile::DeleteSection(std::string_view application, std::string_view section) {
    FileOf(application).values.erase(std::string(section));
}

void SettingsFile::DeleteApplication(std::string_view application) {
    File& file = FileOf(application);
    file.isForgotten = file.isDamaged || isWorthKeeping(file.stored);
    file.values.clear();
}

/// Replaces a file that differs, and returns why that failed; empty if it did not. What was forgotten is moved aside
/// before: even if the new settings do not fit on the disk the old ones must not be read again.
std::string SettingsFile::Replace(std::string_view application, File& file, FlushReport& report) {
    const bool isSame = file.values == file.stored && !file.isForgotten;
    if (!file.refusal.empty()) return isSame ? "" : file.refusal;
    SetMark(file.path, file.isStarting);
    if (isSame && (file.stored.empty() || isFile(file.path))) return "";

    const std::string kept = KeptOf(file.path);
    const bool isKept = file.isDamaged || file.isForgotten;
    if (std::exchange(file.isForgotten, false)) {
        if (std::string failure = MoveFile(file.path, kept); !failure.empty()) {
            file.isForgotten = true;
            return failure;
        }
        file.isDamaged = false;
        file.stored.clear();
    }
    const std::string failure = file.values.empty() ? ""
                                                    : ReplaceFile(file.path, SettingsText(application, file.values),
                                                                  file.isDamaged ? kept : "");
    if (failure.empty()) {
        file.stored = file.values;
        file.isDamaged = false;
    }
    if (isKept && !file.isDamaged) report.kept = "The former settings are kept in " + kept + ".";
    return failure;
}

FlushReport SettingsFile::Flush() {
    FlushReport report;
    for (auto& [application, file] : files_) {
        const std::string failure = Replace(application, file, report);
        if (failure.empty()) continue;
        if (!report.failure.empty()) report.failure += "\n";
        report.failure += "The settings could not be saved in " + file.path + ": " + failure + ".";
    }
    Complain(report);
    return report;
}

void SettingsFile::Complain(const FlushReport& report) {
    if (!report.kept.empty()) std::fprintf(stderr, "Horvanta: %s\n", report.kept.c_str());
    const bool isNew = std::exchange(complained_, report.failure) != report.failure;
    if (isNew && !report.failure.empty()) std::fprintf(stderr, "Horvanta: %s\n", report.failure.c_str());
}

}  // namespace horvanta
