#pragma once

#include <QByteArrayView>

namespace tessaline {

/// Takes the bytes of a rendering, piece by piece.
class ByteSink {
public:
    virtual ~ByteSink() = default;

    /// Takes the next bytes. Returns false when it cannot, and from then on.
    virtual bool write(QByteArrayView bytes) = 0;
};

} // namespace tessaline
