#pragma once

#include <QString>

#include <array>

/// Where the companion plug-in lives in a vault.
namespace tessaline::companionPlugin {

inline QString identifier() {
    return QStringLiteral("obsidian-tessaline");
}

/// What it consists of, in the order of their installation.
inline std::array<QString, 2> fileNames() {
    return {QStringLiteral("main.js"), QStringLiteral("manifest.json")};
}

/// The folder in which Obsidian keeps a vault's settings.
inline QString settingsFolder(const QString& vault) {
    return vault + QStringLiteral("/.obsidian");
}

inline QString pluginFolder(const QString& vault) {
    return settingsFolder(vault) + QStringLiteral("/plugins/") + identifier();
}

} // namespace tessaline::companionPlugin
