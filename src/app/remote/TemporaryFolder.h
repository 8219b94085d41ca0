#pragma once

#include <QString>

namespace tessaline {

/// The folder for temporary files, or the system's own where the one that the environment names is
/// not there. Any thread.
QString temporaryFolder();

} // namespace tessaline
