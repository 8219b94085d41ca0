#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace tessaline {

/// A home folder of its own, which the environment names for as long as this lives.
class TemporaryHome {
public:
    TemporaryHome() { qputenv("HOME", folder.path().toUtf8()); }
    ~TemporaryHome() { qputenv("HOME", previous); }
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

    QString path() const { return folder.path(); }

private:
    QByteArray previous = qgetenv("HOME");
    QTemporaryDir folder;
};

} // namespace tessaline
