#pragma once

#include <QTemporaryDir>

namespace tessaline {

/// Keeps a test program apart from the machine it runs on: a home folder of its own, which goes
/// away with this object, no usage reports, and one locale. Make it before the application object.
class TestEnvironment {
public:
    TestEnvironment();

private:
    QTemporaryDir home;
};

} // namespace tessaline
