#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace tessaline {

/// Hears which files the system wants the program to open, as the Finder of a Mac does for those
/// that the user opens with it. Install it as an event filter of the application.
class FileOpenRequests final : public QObject {
public:
    /// Calls `open` with the path from the root of each file.
    explicit FileOpenRequests(std::function<void(const QString& path)> open);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::function<void(const QString& path)> openFile;
};

} // namespace tessaline
