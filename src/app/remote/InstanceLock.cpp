#include "app/remote/InstanceLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tessaline {

std::unique_ptr<InstanceLock> InstanceLock::take(const QString& path) {
    constexpr mode_t ownerOnly = 0600;
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly);
    if (descriptor < 0) return nullptr;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<InstanceLock>(new InstanceLock(descriptor));
}

InstanceLock::~InstanceLock() {
    // The file stays: removing it would let two processes hold locks on different files of its
    // name.
    ::close(descriptor);
}

} // namespace tessaline
