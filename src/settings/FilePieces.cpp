#include "settings/FilePieces.h"

#include <utility>

namespace tessaline {

FilePieces inOnePiece(const QByteArray& bytes) {
    return [rest = bytes]() mutable { return std::exchange(rest, QByteArray()); };
}

} // namespace tessaline
