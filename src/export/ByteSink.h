#pragma once

#include <QByteArrayView>

namespace tessaline {

/// Takes the bytes of a rendering, piece by piece.
class ByteSink {
public:
    /// Whoever writes much gathers so many bytes for each piece.
    static constexpr qsizetype pieceSize = 1 << 16;

    virtual ~ByteSink() = default;

    /// Takes the next bytes. Returns false when it cannot, and from then on.
    virtual bool write(QByteArrayView bytes) = 0;
};

} // namespace tessaline
