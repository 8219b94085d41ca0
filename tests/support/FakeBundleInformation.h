#pragma once

#include "platform/BundleInformation.h"

#include <map>

namespace tessaline {

/// What the test wants the program to say about itself.
class FakeBundleInformation final : public BundleInformation {
public:
    std::optional<QString> identifier() const override { return bundleIdentifier; }

    std::optional<QString> value(const QString& key) const override {
        const auto entry = values.find(key);
        return entry == values.end() ? std::nullopt : std::optional(entry->second);
    }

    std::optional<QString> resourceFolder() const override { return resources; }

    std::optional<QString> bundleIdentifier = QStringLiteral("app.example.Program");
    std::map<QString, QString> values;
    std::optional<QString> resources;
};

} // namespace tessaline
