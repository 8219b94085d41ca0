#include "platform/SystemAdapters.h"
#include "platform/linux/desktop/DesktopApplicationLookup.h"
#include "platform/linux/desktop/DesktopFileIcons.h"

namespace tessaline {

namespace {

DesktopEntries installedEntries() {
    return DesktopEntries(DesktopEntries::standardFolders(
        [](const char* name) { return qEnvironmentVariable(name); }));
}

} // namespace

std::unique_ptr<ApplicationLookup> makeApplicationLookup() {
    return std::make_unique<DesktopApplicationLookup>(installedEntries());
}

std::unique_ptr<FileIcons> makeFileIcons() {
    return std::make_unique<DesktopFileIcons>(installedEntries());
}

} // namespace tessaline
