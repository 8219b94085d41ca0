#pragma once

#include <QByteArray>

#include <functional>

namespace tessaline {

/// Hands out what a file is to hold, one piece at each call; an empty piece is the end.
using FilePieces = std::function<QByteArray()>;

/// All at once.
FilePieces inOnePiece(const QByteArray& bytes);

} // namespace tessaline
