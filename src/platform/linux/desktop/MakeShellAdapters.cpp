#include "platform/SystemAdapters.h"
#include "platform/linux/desktop/LinuxActivationPolicy.h"
#include "platform/linux/desktop/LinuxBundleInformation.h"

#include <QCoreApplication>
#include <QImage>

namespace tessaline {

std::unique_ptr<BundleInformation> makeBundleInformation() {
    return std::make_unique<LinuxBundleInformation>(QCoreApplication::applicationDirPath());
}

std::unique_ptr<ActivationPolicy> makeActivationPolicy() {
    return std::make_unique<LinuxActivationPolicy>();
}

QImage systemSymbol(const QString&, const QString&) {
    return {};
}

bool statusItemOpensItsMenu() {
    return false;
}

} // namespace tessaline
