#pragma once

#include "export/ByteSink.h"

#include <QByteArray>

namespace tessaline {

/// Keeps all bytes.
class MemorySink final : public ByteSink {
public:
    bool write(QByteArrayView more) override {
        bytes.append(more);
        return true;
    }

    QByteArray bytes;
};

} // namespace tessaline
