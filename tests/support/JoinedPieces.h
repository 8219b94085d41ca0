#pragma once

#include "settings/FilePieces.h"

namespace tessaline {

/// What a file made of these pieces would hold.
inline QByteArray joined(const FilePieces& pieces) {
    QByteArray bytes;
    for (QByteArray piece = pieces(); !piece.isEmpty(); piece = pieces())
        bytes += piece;
    return bytes;
}

} // namespace tessaline
