#include "settings/FolderLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tessaline {

FolderLock::FolderLock(const QString& folder)
    : descriptor(
          ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (descriptor >= 0 && ::flock(descriptor, LOCK_EX) != 0 && errno == EINTR) {
    }
}

FolderLock::~FolderLock() {
    if (descriptor >= 0) ::close(descriptor);
}

} // namespace tessaline
