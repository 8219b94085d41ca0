#include "support/NotAFile.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

bool place(NotAFile what, const QString& path) {
    switch (what) {
    case NotAFile::folder:
        return QDir().mkdir(path);
    case NotAFile::danglingLink:
        return QFile::link(path + ".missing"_L1, path);
    case NotAFile::fifo:
        return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
    }
    return false;
}

} // namespace

void placeNotAFile(NotAFile what, const QString& path) {
    QFile::remove(path);
    ASSERT_TRUE(place(what, path)) << path.toStdString();
}

void PrintTo(NotAFile what, std::ostream* out) {
    switch (what) {
    case NotAFile::folder:
        *out << "folder";
        break;
    case NotAFile::danglingLink:
        *out << "danglingLink";
        break;
    case NotAFile::fifo:
        *out << "fifo";
        break;
    }
}

} // namespace tessaline
