#include "cli/DescriptorSink.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tessaline {

DescriptorSink::DescriptorSink(int fileDescriptor) : descriptor(fileDescriptor) {
    if (::fcntl(descriptor, F_GETFD) < 0) failure = qt_error_string(errno);
}

bool DescriptorSink::write(QByteArrayView bytes) {
    while (failure.isEmpty() && !bytes.isEmpty()) {
        const auto count = ::write(descriptor, bytes.data(), std::size_t(bytes.size()));
        if (count >= 0) {
            bytes = bytes.sliced(count);
        } else if (errno == EAGAIN) {
            // Another program made the terminal or pipe that we share non-blocking.
            pollfd ready{.fd = descriptor, .events = POLLOUT, .revents = 0};
            ::poll(&ready, 1, -1);
        } else if (errno != EINTR) {
            failure = qt_error_string(errno);
        }
    }
    return failure.isEmpty();
}

} // namespace tessaline
