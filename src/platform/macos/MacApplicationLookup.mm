#include "platform/ApplicationLookup.h"
#include "platform/macos/CfHolder.h"
#include "platform/macos/MacAdapters.h"

#import <AppKit/AppKit.h>
#import <CoreServices/CoreServices.h>

namespace tessaline {

namespace {

class MacApplicationLookup final : public ApplicationLookup {
public:
    QStringList applicationPaths(const QString& bundleIdentifier) const override {
        const CfHolder<CFStringRef> identifier(bundleIdentifier.toCFString());
        NSArray<NSURL*>* urls =
            CFBridgingRelease(LSCopyApplicationURLsForBundleIdentifier(identifier.get(), nullptr));
        QStringList paths;
        for (NSURL* url in urls)
            paths += QString::fromNSString(url.path);
        return paths;
    }

    std::optional<QString>
    workspaceApplicationPath(const QString& bundleIdentifier) const override {
        NSURL* url = [NSWorkspace.sharedWorkspace
            URLForApplicationWithBundleIdentifier:bundleIdentifier.toNSString()];
        if (!url) return std::nullopt;
        return QString::fromNSString(url.path);
    }

    bool knowsEveryApplication() const override { return true; }
};

} // namespace

std::unique_ptr<ApplicationLookup> makeApplicationLookup() {
    return std::make_unique<MacApplicationLookup>();
}

} // namespace tessaline
