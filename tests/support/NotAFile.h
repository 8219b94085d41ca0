#pragma once

#include <QString>

#include <ostream>

namespace tessaline {

/// Things that may stand where a file is expected.
enum class NotAFile { folder, danglingLink, fifo };

inline constexpr NotAFile allNotAFile[] = {NotAFile::folder, NotAFile::danglingLink,
                                           NotAFile::fifo};

/// Puts one at `path`, in place of the file that is there. A failure fails the test.
void placeNotAFile(NotAFile what, const QString& path);

void PrintTo(NotAFile what, std::ostream* out);

} // namespace tessaline
