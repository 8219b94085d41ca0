#pragma once

namespace tessaline {

/// What the environment snapshot wants to know of its surroundings. The application answers.
class EnvironmentProbe {
public:
    virtual ~EnvironmentProbe() = default;

    virtual bool isObsidianAppInstalled() const = 0;
    virtual bool isObsidianVaultFound() const = 0;
    virtual bool isObsidianPluginInstalled() const = 0;
    virtual bool isObsidianPluginActive() const = 0;
    virtual bool isAccessibilityGranted() const = 0;

    /// How many displays are attached.
    virtual int screenCount() const = 0;
};

} // namespace tessaline
