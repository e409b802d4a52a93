#include "qt/settings_file.h"

#include <QFile>

#include <cstdio>

namespace horvanta {
namespace {

std::unique_ptr<QSettings> Open(std::string_view application) {
    auto settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Horvanta"),
                                                QString::fromUtf8(application));
    settings->setFallbacksEnabled(false);
    return settings;
}

QString PathIn(std::string_view section, std::string_view key) {
    return QString::fromUtf8(section) + u'/' + QString::fromUtf8(key);
}

/// A file without write permission stays as it is even where its owner could replace it.
bool isWritable(const QSettings& settings) {
    const QString path = settings.fileName();
    const bool allowed = !QFile::exists(path) || QFile::permissions(path).testFlag(QFileDevice::WriteOwner);
    return allowed && settings.isWritable();
}

void Complain(const QSettings& settings, const char* what) {
    std::fprintf(stderr, "Horvanta: the settings file %s %s.\n", qPrintable(settings.fileName()), what);
}

}  // namespace

QString SettingsFile::PathOf(std::string_view application) { return Open(application)->fileName(); }

SettingsFile::File& SettingsFile::FileOf(std::string_view application) {
    if (const auto found = files_.find(application); found != files_.end()) return found->second;
    auto settings = Open(application);
    const bool writable = isWritable(*settings);
    if (!writable) Complain(*settings, "is read-only; changes will not be saved");
    return files_.emplace(application, File{std::move(settings), writable}).first->second;
}

/// An unquoted value with a comma, as an editor may leave it, comes as a list of its pieces.
std::optional<std::string> SettingsFile::Read(std::string_view application, std::string_view section,
                                              std::string_view key) {
    const QVariant value = FileOf(application).settings->value(PathIn(section, key));
    if (!value.isValid()) return std::nullopt;
    return value.toStringList().join(u',').toStdString();
}

void SettingsFile::Write(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view text) {
    File& file = FileOf(application);
    if (file.writable) file.settings->setValue(PathIn(section, key), QString::fromUtf8(text));
}

void SettingsFile::DeleteSection(std::string_view application, std::string_view section) {
    File& file = FileOf(application);
    if (file.writable) file.settings->remove(QString::fromUtf8(section));
}

void SettingsFile::DeleteApplication(std::string_view application) {
    File& file = FileOf(application);
    if (file.writable) file.settings->clear();
}

void SettingsFile::Flush() {
    for (auto& [application, file] : files_) {
        if (!file.writable) continue;
        file.settings->sync();
        if (file.settings->status() == QSettings::AccessError) Complain(*file.settings, "could not be written");
    }
}

}  // namespace horvanta
