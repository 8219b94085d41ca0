#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

namespace tessaline {

/// A disk of 64 KiB, for as long as it lives.
class SmallDisk {
public:
    explicit SmallDisk(const QString& mountPoint) : folder(mountPoint) {
        const QString kind = QStringLiteral("tmpfs");
        mounted = QProcess::execute(QStringLiteral("mount"),
                                    {QStringLiteral("-t"), kind, QStringLiteral("-o"),
                                     QStringLiteral("size=64k"), kind, folder}) == 0;
    }
    ~SmallDisk() {
        if (mounted) QProcess::execute(QStringLiteral("umount"), {folder});
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// Whether this user may mount disks.
    bool exists() const { return mounted; }

    /// Uses up what is left.
    void fill() const {
        QFile file(fillerPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (file.write(QByteArray(4096, 'x')) > 0) {
        }
    }

    /// Makes room again.
    void empty() const { ASSERT_TRUE(QFile::remove(fillerPath())); }

private:
    QString fillerPath() const { return folder + QStringLiteral("/filler"); }

    QString folder;
    bool mounted = false;
};

} // namespace tessaline
