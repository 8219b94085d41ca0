#include "platform/UserDefaults.h"
#include "platform/macos/CfHolder.h"
#include "platform/macos/MacAdapters.h"

#include <CoreFoundation/CoreFoundation.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The user's preferences under the bundle's identifier, whatever the process is started from.
class MacUserDefaults final : public UserDefaults {
public:
    std::optional<QString> string(const QString& key) const override {
        const CfHolder<CFStringRef> name(key.toCFString());
        const CfHolder<CFPropertyListRef> value(
            CFPreferencesCopyAppValue(name.get(), domain.get()));
        if (!value || CFGetTypeID(value.get()) != CFStringGetTypeID()) return std::nullopt;
        return QString::fromCFString(static_cast<CFStringRef>(value.get()));
    }

    void setString(const QString& key, const QString& value) override {
        const CfHolder<CFStringRef> name(key.toCFString());
        const CfHolder<CFStringRef> text(value.toCFString());
        CFPreferencesSetAppValue(name.get(), text.get(), domain.get());
        CFPreferencesAppSynchronize(domain.get());
    }

private:
    const CfHolder<CFStringRef> domain{u"app.tessaline.Tessaline"_s.toCFString()};
};

} // namespace

std::unique_ptr<UserDefaults> makeUserDefaults() {
    return std::make_unique<MacUserDefaults>();
}

} // namespace tessaline
