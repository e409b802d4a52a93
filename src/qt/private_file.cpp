#include "qt/private_file.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace horvanta {
namespace {

constexpr mode_t fileRights = S_IRUSR | S_IWUSR;
constexpr mode_t folderRights = S_IRWXU;
constexpr mode_t othersRights = S_IRWXG | S_IRWXO;
constexpr off_t largest = 1 << 20;  // bytes; settings are a hundredth of that

std::string LastFailure() { return std::generic_category().message(errno); }

/// A file that is open until the end of the block.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    operator int() const { return number_; }
    int Close() { return number_ < 0 ? 0 : close(std::exchange(number_, -1)); }

  private:
    int number_;
};

bool WriteAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Some file systems have nothing to bring onto a disk, and say so.
bool Sync(int file) { return fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP; }

/// The file goes on to belong to whom it belonged, even if another user is at work who may do that.
bool WriteNew(const std::string& path, const std::string& text, const struct stat* old) {
    std::remove(path.c_str());  // what a start that was killed may have left
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileRights));
    if (file < 0) return false;
    if (old && fchown(file, old->st_uid, old->st_gid) != 0) errno = 0;
    return fchmod(file, fileRights) == 0 && WriteAll(file, text) && Sync(file) && file.Close() == 0;
}

void SyncFolderOf(const std::string& path) {
    const Descriptor folder(open(path.substr(0, path.rfind('/') + 1).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder >= 0) fsync(folder);
}

/// By a second name, so that the first is never missing, where the disk knows second names.
bool KeepFile(const std::string& path, const std::string& kept) {
    std::remove(kept.c_str());
    return link(path.c_str(), kept.c_str()) == 0 || std::rename(path.c_str(), kept.c_str()) == 0;
}

FileRead Unreadable(std::string failure) { return {"", std::move(failure), true}; }

FileRead ReadOpened(int file, std::size_t size) {
    std::string text(size, '\0');
    std::size_t length = 0;
    while (length < size) {
        const ssize_t read = ::read(file, text.data() + length, size - length);
        if (read < 0 && errno == EINTR) continue;
        if (read < 0) return Unreadable(LastFailure());
        if (read == 0) break;
        length += static_cast<std::size_t>(read);
    }
    text.resize(length);
    return {std::move(text), "", true};
}

}  // namespace

FileRead ReadFile(const std::string& path) {
    struct stat facts {};
    if (stat(path.c_str(), &facts) != 0) {
        const int failure = errno;
        const bool isAbsent = failure == ENOENT && lstat(path.c_str(), &facts) != 0;
        return isAbsent ? FileRead() : Unreadable(std::generic_category().message(failure));
    }
    if (!S_ISREG(facts.st_mode)) return Unreadable("Not a file");
    if (facts.st_size > largest) return Unreadable(std::generic_category().message(EFBIG));
    const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file < 0) return Unreadable(LastFailure());
    if ((facts.st_mode & othersRights) != 0) fchmod(file, facts.st_mode & S_IRWXU);
    return ReadOpened(file, static_cast<std::size_t>(facts.st_size));
}

std::string ReplaceFile(const std::string& path, const std::string& text, const std::string& kept) {
    const std::string fresh = path + ".new";
    struct stat old {};
    const bool isThere = stat(path.c_str(), &old) == 0;
    const bool isWritten = WriteNew(fresh, text, isThere ? &old : nullptr);
    const bool isKept = isWritten && (kept.empty() || !isThere || KeepFile(path, kept));
    if (isKept && std::rename(fresh.c_str(), path.c_str()) == 0) {
        SyncFolderOf(path);
        return "";
    }
    std::string failure = LastFailure();
    unlink(fresh.c_str());
    return failure;
}

std::string MoveFile(const std::string& path, const std::string& other) {
    return std::rename(path.c_str(), other.c_str()) == 0 ? "" : LastFailure();
}

void TouchFile(const std::string& path) {
    const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileRights));
}

void MakeFolder(const std::string& path) {
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        mkdir(path.substr(0, slash).c_str(), folderRights);
    }
    if (mkdir(path.c_str(), folderRights) == 0 || errno != EEXIST) return;
    struct stat facts {};
    const bool isWide =
        stat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode) && (facts.st_mode & othersRights) != 0;
    if (isWide) chmod(path.c_str(), facts.st_mode & S_IRWXU);
}

std::string TargetOf(const std::string& path) {
    char* const target = realpath(path.c_str(), nullptr);
    if (!target) return path;
    std::string found = target;
    std::free(target);
    return found;
}

bool isFile(const std::string& path) {
    struct stat facts {};
    return lstat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

}  // namespace horvanta
