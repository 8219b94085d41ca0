#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace tessaline {

/// The bytes of the file at `path`; fails the test when it cannot be read.
inline QByteArray fileBytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.isOpen() ? file.readAll() : QByteArray();
}

/// Creates or overwrites the file at `path`; fails the test when it cannot be written.
inline void putFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
}

} // namespace tessaline
