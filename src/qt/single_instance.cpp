#include "qt/single_instance.h"

#include "qt/private_file.h"
#include "qt/settings_file.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace horvanta {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds patience{1900};  // for the first start to answer, or to end
constexpr milliseconds pause{20};       // between two tries
constexpr const char* lockName = "Horvanta.lock";
constexpr const char* socketName = "Horvanta.socket";
constexpr mode_t privateRights = S_IRUSR | S_IWUSR;

void Close(int& file) {
    if (file >= 0) close(std::exchange(file, -1));
}

/// The address of the socket in a folder that is open. An address holds about a hundred characters, which the path of
/// a folder can exceed; the way through the process's open files is short.
sockaddr_un AddressIn(int folder) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = "/proc/self/fd/" + std::to_string(folder) + "/" + socketName;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

int MakeSocket() { return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0); }

bool Reaches(int (*reach)(int, const sockaddr*, socklen_t), int socket, const sockaddr_un& address) {
    return reach(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// Whether the other end sends anything before it closes.
bool isAnswer(int socket, steady_clock::time_point deadline) {
    pollfd wait{socket, POLLIN, 0};
    const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
    if (poll(&wait, 1, static_cast<int>(std::max(left, milliseconds(0)).count())) != 1) return false;
    char byte = 0;
    return read(socket, &byte, 1) == 1;
}

}  // namespace

SingleInstance::SingleInstance() {
    const std::string path = QFile::encodeName(SettingsFile::Folder()).toStdString();
    MakeFolder(path);
    folder_ = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

SingleInstance::~SingleInstance() {
    notifier_.reset();
    if (listener_ >= 0) unlinkat(folder_, socketName, 0);
    Close(listener_);
    Close(lock_);
    Close(folder_);
}

/// The folder itself is locked where no file can be opened in it. Where there is no folder there are no settings to
/// guard, nor where the file system knows no locks.
bool SingleInstance::Lock() {
    if (folder_ < 0) return true;
    constexpr int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    if (lock_ < 0) lock_ = openat(folder_, lockName, flags, privateRights);
    if (lock_ < 0) lock_ = openat(folder_, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return flock(lock_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool SingleInstance::isAnswered(Time deadline) const {
    int call = MakeSocket();
    const bool answered = folder_ >= 0 && Reaches(connect, call, AddressIn(folder_)) && isAnswer(call, deadline);
    Close(call);
    return answered;
}

/// The first may still be on its way to its socket, or just be ending.
SingleInstance::Outcome SingleInstance::Claim() {
    const Time deadline = steady_clock::now() + patience;
    do {
        if (Lock()) {
            Listen();
            return Outcome::First;
        }
        if (isAnswered(deadline)) return Outcome::Answered;
        std::this_thread::sleep_for(pause);
    } while (steady_clock::now() < deadline);
    return Outcome::Silent;
}

void SingleInstance::Listen() {
    if (folder_ < 0) return;
    unlinkat(folder_, socketName, 0);
    listener_ = MakeSocket();
    const mode_t before = umask(S_IRWXG | S_IRWXO | S_IXUSR);
    const bool isBound = Reaches(bind, listener_, AddressIn(folder_));
    umask(before);
    if (!isBound || listen(listener_, SOMAXCONN) != 0) {
        Close(listener_);
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(listener_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { Answer(); });
}

void SingleInstance::Answer() {
    int call = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (call < 0) return;
    send(call, "", 1, MSG_NOSIGNAL);
    Close(call);
    if (ComeForward) ComeForward();
}

}  // namespace horvanta
