#include "reports/report_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace horvanta {
namespace {

namespace fs = std::filesystem;

std::string Words(int failure) { return std::generic_category().message(failure); }

/// The file that a link names; the path itself where there is no link, or nothing at its end.
std::string TargetOf(const std::string& path) {
    std::error_code none;
    const fs::path target = fs::canonical(path, none);
    return none ? path : target.string();
}

/// Why the file that stands there may not be replaced; empty if it may, or if there is none.
std::string RefusalOf(const std::string& path) {
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (status.type() == fs::file_type::not_found) return "";
    if (!fs::status_known(status)) return failure.message();
    if (fs::is_directory(status)) return Words(EISDIR);
    if (!fs::is_regular_file(status)) return "Not a file";
    std::FILE* file = std::fopen(path.c_str(), "r+b");
    if (!file) return Words(errno);
    std::fclose(file);
    return "";
}

}  // namespace

/// What stands beside is left from a run that was killed. It is not opened but made anew, so that no link leads astray.
ReportFile::ReportFile(const std::string& path)
    : path_(TargetOf(path)), beside_(path_ + ".unfinished"), failure_(RefusalOf(path_)) {
    if (hasFailed()) return;
    std::remove(beside_.c_str());
    file_.reset(std::fopen(beside_.c_str(), "wbx"));
    isBegun_ = file_ != nullptr;
    if (!isBegun_) Fail();
}

ReportFile::~ReportFile() { Remove(); }

void ReportFile::Fail() {
    if (!hasFailed()) failure_ = Words(errno);
    file_.reset();
}

void ReportFile::Write(std::string_view text) {
    if (file_ && std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size()) Fail();
}

void ReportFile::Complete() {
    if (file_ && std::fclose(file_.release()) != 0) Fail();
}

bool ReportFile::TakePlace() {
    std::error_code failure;
    const fs::file_status older = fs::status(path_, failure);
    hasOlder_ = fs::is_regular_file(older);
    if (hasOlder_) fs::permissions(beside_, older.permissions(), failure);
    fs::rename(beside_, path_, failure);
    failure_ = failure ? failure.message() : "";
    isBegun_ = failure.operator bool();
    return !isBegun_;
}

std::string ReportFile::Remove() {
    file_.reset();
    if (isBegun_ && std::remove(beside_.c_str()) != 0 && errno != ENOENT) return Words(errno);
    isBegun_ = false;
    return "";
}

}  // namespace horvanta
