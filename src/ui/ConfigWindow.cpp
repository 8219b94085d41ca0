#include "ui/ConfigWindow.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

ConfigWindow::ConfigWindow(AppSettings& edited, SourceManager* manager, const WindowPorts& borrowed)
    : settings(edited), sourceManager(manager), ports(borrowed) {
    setWindowTitle(u"Settings"_s);
}

ConfigWindow::~ConfigWindow() = default;

void ConfigWindow::refreshUI() {}
void ConfigWindow::startPeriodicRefresh() {}
void ConfigWindow::rebuildScreenPopup() {}
void ConfigWindow::updateAccessibilityStatus() {}

} // namespace tessaline
