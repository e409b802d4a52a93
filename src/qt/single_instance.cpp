#include "qt/single_instance.h"

#include "qt/settings_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

namespace horvanta {
namespace {

constexpr int patience = 2000;  // milliseconds for the first start to answer

/// A short name of the settings folder: socket paths may not be longer than about a hundred characters.
QString FolderKey() {
    const QByteArray path = SettingsFile::PathOf(ProgramSettings).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16));
}

}  // namespace

SingleInstance::SingleInstance() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    address_ = folder.filePath(QStringLiteral("horvanta-") + FolderKey());
    lock_ = std::make_unique<QLockFile>(address_ + QStringLiteral(".lock"));
    lock_->setStaleLockTime(0);
}

/// The lock tells who is first, even if two start at once or one was killed; the socket only carries the call.
bool SingleInstance::Claim() {
    if (!lock_->tryLock() && lock_->error() == QLockFile::LockFailedError) {
        QLocalSocket call;
        call.connectToServer(address_);
        call.waitForConnected(patience);
        return false;
    }
    QLocalServer::removeServer(address_);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        delete server_.nextPendingConnection();
        if (ComeForward) ComeForward();
    });
    server_.listen(address_);
    return true;
}

}  // namespace horvanta
