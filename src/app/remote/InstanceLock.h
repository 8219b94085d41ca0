#pragma once

#include <QString>

#include <memory>

namespace tessaline {

/// Says that this process is the one instance. The system releases it when the process ends,
/// however that happens.
class InstanceLock {
public:
    /// The lock on the file, which is made if need be. Null while another process holds it, and
    /// where the file cannot be opened or locked: only then, `problem` is not empty. Any thread.
    static std::unique_ptr<InstanceLock> take(const QString& path, QString* problem);

    /// Whether a process holds the lock now. Makes no file.
    static bool isHeld(const QString& path);

    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

private:
    explicit InstanceLock(int file) : descriptor(file) {}

    const int descriptor;
};

} // namespace tessaline
