#pragma once

#include "support/FakeBundleInformation.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QString>
#include <QTemporaryDir>

namespace tessaline {

/// A home folder with an Obsidian that knows one vault, and the program's resources with a plug-in
/// to install.
struct ObsidianHome {
    explicit ObsidianHome(const QString& vaultName = QStringLiteral("My Vault")) {
        vault = folder.filePath(vaultName);
        QDir().mkpath(vault + QStringLiteral("/.obsidian"));
        useVault(vault);
        QDir().mkpath(pluginSource());
        putFile(pluginSource() + QStringLiteral("/main.js"), "the program");
        putFile(pluginSource() + QStringLiteral("/manifest.json"), "the manifest");
        bundle.resources = folder.filePath(QStringLiteral("resources"));
    }

    /// Makes this folder the one vault that Obsidian knows.
    void useVault(const QString& path) {
        QByteArray escaped = path.toUtf8();
        escaped.replace("\\", "\\\\").replace("\"", "\\\"");
        putRegistry("{\"vaults\":{\"0123456789abcdef\":{\"path\":\"" + escaped + "\",\"ts\":1}}}");
    }

    void putRegistry(const QByteArray& bytes) const {
        const QString place =
            folder.filePath(QStringLiteral("Library/Application Support/obsidian"));
        QDir().mkpath(place);
        putFile(place + QStringLiteral("/obsidian.json"), bytes);
    }

    QString path() const { return folder.path(); }
    QString pluginSource() const {
        return folder.filePath(QStringLiteral("resources/ObsidianPlugin"));
    }
    QString communityList() const {
        return vault + QStringLiteral("/.obsidian/community-plugins.json");
    }
    QString pluginFolder() const {
        return vault + QStringLiteral("/.obsidian/plugins/obsidian-tessaline");
    }

    QTemporaryDir folder;
    QString vault;
    FakeBundleInformation bundle;
};

} // namespace tessaline
