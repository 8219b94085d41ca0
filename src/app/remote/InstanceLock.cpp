#include "app/remote/InstanceLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// For reading only, which a lock that was made before allows also where nothing can be written any
/// more; without waiting, whatever lies there.
int openLock(const QString& path, int flags) {
    constexpr mode_t ownerOnly = 0600;
    return ::open(QFile::encodeName(path).constData(),
                  O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | flags, ownerOnly);
}

} // namespace

std::unique_ptr<InstanceLock> InstanceLock::take(const QString& path, QString* problem) {
    problem->clear();
    const int descriptor = openLock(path, O_CREAT);
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return std::unique_ptr<InstanceLock>(new InstanceLock(descriptor));
    if (errno != EWOULDBLOCK) *problem = u"cannot lock %1: %2"_s.arg(path, qt_error_string(errno));
    if (descriptor >= 0) ::close(descriptor);
    return nullptr;
}

bool InstanceLock::isHeld(const QString& path) {
    const int descriptor = openLock(path, 0);
    if (descriptor < 0) return false;
    const bool held = ::flock(descriptor, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(descriptor);
    return held;
}

InstanceLock::~InstanceLock() {
    // The file stays: removing it would let two processes hold locks on different files of its
    // name.
    ::close(descriptor);
}

} // namespace tessaline
