#include "ui/OnboardingWindow.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

OnboardingWindow::OnboardingWindow(PermissionManager& manager, AppSettings& shared,
                                   SourceManager* sources, const WindowPorts& borrowed)
    : permissionManager(manager), settings(shared), sourceManager(sources), ports(borrowed) {
    setWindowTitle(u"Welcome to Tessaline"_s);
}

OnboardingWindow::~OnboardingWindow() = default;

} // namespace tessaline
