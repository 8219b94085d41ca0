#pragma once

#include "platform/ApplicationLookup.h"

namespace tessaline {

/// Applications that the test says are installed.
class FakeApplicationLookup final : public ApplicationLookup {
public:
    QStringList applicationPaths(const QString& identifier) const override {
        askedFor += identifier;
        return paths;
    }

    std::optional<QString> workspaceApplicationPath(const QString& identifier) const override {
        askedFor += identifier;
        return workspacePath;
    }

    bool knowsEveryApplication() const override { return isComplete; }

    QStringList paths;
    std::optional<QString> workspacePath;
    bool isComplete = true;
    mutable QStringList askedFor;
};

} // namespace tessaline
