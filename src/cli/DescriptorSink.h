#pragma once

#include "export/ByteSink.h"

#include <QString>

namespace tessaline {

/// Writes to an open file descriptor, such as standard output, without a buffer of its own. Needs
/// SIGPIPE ignored to report a reader that has gone.
class DescriptorSink final : public ByteSink {
public:
    /// A descriptor that is closed now counts as failed, even if another file gets its number.
    explicit DescriptorSink(int fileDescriptor);

    bool write(QByteArrayView bytes) override;

    /// Why a write failed; empty when none did.
    QString error() const { return failure; }

private:
    int descriptor;
    QString failure;
};

} // namespace tessaline
