#include "app/remote/InstanceAddress.h"

#include "app/remote/InstanceLock.h"
#include "app/remote/TemporaryFolder.h"
#include "platform/DisplaySession.h"
#include "settings/FilePath.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>

#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the path is a folder of ours that nobody else can enter. A symbolic link is none.
bool isPrivateFolder(const QString& path) {
    struct stat status {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0) return false;
    return S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() && (status.st_mode & 077) == 0;
}

bool makePrivateFolder(const QString& path) {
    constexpr mode_t ownerOnly = 0700;
    if (isPrivateFolder(path)) return true;
    ::mkdir(QFile::encodeName(path).constData(), ownerOnly); // another start may be faster
    return isPrivateFolder(path);
}

/// A file name for the display.
QString displayName(const QString& display) {
    if (display.isEmpty()) return u"main"_s;
    const QByteArray name = display.toUtf8().toPercentEncoding(":");
    constexpr qsizetype longestReadable = 32;
    if (name.size() <= longestReadable) return QString::fromLatin1(name);
    return QString::fromLatin1(
        QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex().first(longestReadable));
}

bool fitsSocketAddress(const QString& path) {
    // While it is made, the socket has a longer name of Qt's own in the same folder.
    constexpr qsizetype reserve = 24;
    return QFile::encodeName(path).size() + reserve < qsizetype(sizeof(sockaddr_un::sun_path));
}

/// Our folder in the session's folder for such things, which is made if nobody has done so yet;
/// empty where that cannot be had. The toolkit cannot listen where the name is not UTF-8.
QString runtimeFolderOfOurs(const QString& runtimeFolder) {
    if (!runtimeFolder.startsWith(u'/') || hasForeignBytes(runtimeFolder)) return {};
    return makePrivateFolder(runtimeFolder) ? runtimeFolder + u"/tessaline"_s : QString();
}

bool isUsable(const InstanceAddress& address) {
    return fitsSocketAddress(address.socketPath()) && makePrivateFolder(address.folder);
}

} // namespace

std::optional<InstanceAddress> InstanceAddress::ofSession(const Variable& variable,
                                                          const QString& temporaryFolder,
                                                          QString* problem) {
    const QString display = displayName(displayOfSession(variable));
    const InstanceAddress usual{runtimeFolderOfOurs(variable("XDG_RUNTIME_DIR")), display};
    const InstanceAddress other{temporaryFolder + u"/tessaline-%1"_s.arg(::geteuid()), display};
    // Whoever runs may have started while there was no usual place.
    const bool isElsewhere =
        isPrivateFolder(other.folder) && InstanceLock::isHeld(other.lockPath());
    if (!isElsewhere && !usual.folder.isEmpty() && isUsable(usual)) return usual;
    if (isUsable(other)) return other;
    *problem = u"%1 cannot be used as a private folder"_s.arg(other.folder);
    return std::nullopt;
}

std::optional<InstanceAddress> InstanceAddress::ofThisSession(QString* problem) {
    return ofSession([](const char* name) { return pathText(qgetenv(name)); }, temporaryFolder(),
                     problem);
}

} // namespace tessaline
