#include "platform/SystemAdapters.h"
#include "platform/qt/QtFolderChooser.h"

namespace tessaline {

std::unique_ptr<FolderChooser> makeFolderChooser() {
    return std::make_unique<QtFolderChooser>();
}

} // namespace tessaline
