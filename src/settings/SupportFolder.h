#pragma once

#include <QString>

namespace tessaline {

/// The user's home folder as the environment's HOME names it, without a slash at its end.
QString homeFolderPath();

/// The folder below the home folder that holds all of the program's own files. It may not exist.
QString supportFolderPath();

} // namespace tessaline
