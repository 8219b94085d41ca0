#include "platform/BundleInformation.h"
#include "platform/macos/CfHolder.h"
#include "platform/macos/MacAdapters.h"

#include <QFile>

#include <array>
#include <climits>

namespace tessaline {

namespace {

std::optional<QString> optionalText(CFTypeRef value) {
    if (!value || CFGetTypeID(value) != CFStringGetTypeID()) return std::nullopt;
    return QString::fromCFString(static_cast<CFStringRef>(value));
}

class MacBundleInformation final : public BundleInformation {
public:
    std::optional<QString> identifier() const override {
        return optionalText(CFBundleGetIdentifier(CFBundleGetMainBundle()));
    }

    std::optional<QString> value(const QString& key) const override {
        const CfHolder<CFStringRef> name(key.toCFString());
        return optionalText(
            CFBundleGetValueForInfoDictionaryKey(CFBundleGetMainBundle(), name.get()));
    }

    std::optional<QString> resourceFolder() const override {
        const CfHolder<CFURLRef> url(CFBundleCopyResourcesDirectoryURL(CFBundleGetMainBundle()));
        std::array<UInt8, PATH_MAX> path{};
        constexpr Boolean absolute = true;
        if (!url || !CFURLGetFileSystemRepresentation(url.get(), absolute, path.data(), PATH_MAX))
            return std::nullopt;
        return QFile::decodeName(reinterpret_cast<const char*>(path.data()));
    }
};

} // namespace

std::unique_ptr<BundleInformation> makeBundleInformation() {
    return std::make_unique<MacBundleInformation>();
}

} // namespace tessaline
