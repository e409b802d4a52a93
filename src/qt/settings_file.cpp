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

/// A mark within the file is a damaged line, or an earlier version's: what clears all settings has to be sure.
std::optional<std::string> SettingsFile::Read(std::string_view application, std::string_view section,
                                              std::string_view key) {
    const File& file = FileOf(application);
    if (file.isStarting && isMark(section, key)) return "";
    const auto keys = file.values.find(section);
    if (keys == file.values.end()) return std::nullopt;
    const auto found = keys->second.find(key);
    if (found == keys->second.end() || (isMark(section, key) && found->second.empty())) return std::nullopt;
    return found->second;
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

/// What can't be cleared for good stays in use.
void SettingsFile::DeleteApplication(std::string_view application) {
    File& file = FileOf(application);
    file.isForgotten = file.isDamaged || isWorthKeeping(file.stored);
    if (file.refusal.empty()) file.values.clear();
}

/// Even if the new settings do not fit on the disk, the old ones must not be read again.
std::string SettingsFile::PutAside(File& file) {
    std::string failure = isFile(file.path) ? MoveFile(file.path, KeptOf(file.path)) : "";
    if (!failure.empty()) return failure;
    file.isForgotten = file.isDamaged = false;
    file.stored.clear();
    return "";
}

std::string SettingsFile::Bring(std::string_view application, File& file) {
    const bool isOnDisk = file.values == file.stored && isFile(file.path);
    if (isOnDisk || file.values.empty()) return "";
    const std::string kept = file.isDamaged ? KeptOf(file.path) : "";
    std::string failure = ReplaceFile(file.path, SettingsText(application, file.values), kept);
    if (!failure.empty()) return failure;
    file.isDamaged = false;
    file.stored = file.values;
    return "";
}

std::string SettingsFile::Flush(std::string_view application, File& file, FlushReport& report) {
    const bool isSame = file.values == file.stored && !file.isForgotten;
    if (!file.refusal.empty()) return isSame ? "" : file.refusal;
    SetMark(file.path, file.isStarting);
    const bool isToBeKept = file.isForgotten || (file.isDamaged && !isSame);
    std::string failure = file.isForgotten ? PutAside(file) : "";
    if (failure.empty()) failure = Bring(application, file);
    const bool isKept = isToBeKept && !file.isForgotten && !file.isDamaged;
    if (isKept) report.kept = "The former settings are kept in " + KeptOf(file.path) + ".";
    return failure;
}

FlushReport SettingsFile::Flush() {
    FlushReport report;
    for (auto& [application, file] : files_) {
        const std::string failure = Flush(application, file, report);
        if (failure.empty()) continue;
        if (!report.failure.empty()) report.failure += "\n";
        report.failure +=
            "The settings could not be saved in " + PathOf(application).toStdString() + ": " + failure + ".";
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
