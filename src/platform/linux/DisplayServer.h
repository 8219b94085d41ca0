#pragma once

#include <memory>

namespace tessaline {

struct Platform;

/// What shows the program's windows, and may keep it from other applications' input. Chosen once,
/// when the platform is made: nothing else asks which one it is.
class DisplayServer {
public:
    /// The one that Qt is connected to. Needs the QGuiApplication.
    static std::unique_ptr<const DisplayServer> connected();

    virtual ~DisplayServer() = default;

    /// Puts the adapters into the platform that this display server has a hand in. Those of Qt and
    /// of the desktop are there already.
    virtual void addAdapters(Platform& platform) const = 0;
};

} // namespace tessaline
