#pragma once

#include <QString>

namespace tessaline {

/// Keeps the user's other instances of the program, on other displays, from changing a file of a
/// folder while this one reads and replaces it. Only who takes the lock heeds it. Any thread.
class FolderLock {
public:
    /// Waits for whoever holds the lock. A folder that cannot be locked is used all the same.
    explicit FolderLock(const QString& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    const int descriptor; ///< of the folder; negative: none
};

} // namespace tessaline
