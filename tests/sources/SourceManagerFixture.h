#pragma once

#include "platform/NotificationCenter.h"
#include "settings/AppSettings.h"
#include "sources/ClipboardSource.h"
#include "sources/SourceManager.h"
#include "support/FakeContentSource.h"
#include "support/FakePasteboard.h"
#include "support/PrintQt.h"
#include "support/RecordingUsageRecorder.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace tessaline {

/// A manager with a source that delivers on demand in Obsidian's place, and with settings and a
/// clipboard file of its own. Keeps what is posted and handed on.
class SourceManagerFixture : public ::testing::Test {
protected:
    void SetUp() override {
        settings.change([](auto& values) {
            values.enabledSourceTypes = {SourceType::obsidian, SourceType::clipboard};
        });
        settings.setActiveSourceType(SourceType::obsidian);
    }

    /// Builds the manager and forgets what its construction posted.
    void build() {
        auto obsidianSource = std::make_unique<FakeContentSource>();
        auto clipboardSource = std::make_unique<ClipboardSource>(pasteboard, clipboardPath);
        obsidian = obsidianSource.get();
        clipboard = clipboardSource.get();
        manager =
            std::make_unique<SourceManager>(settings, recorder, notifications,
                                            std::move(obsidianSource), std::move(clipboardSource));
        changes.clear();
        manager->onContentUpdate = [this](const QString& text) { updates.push_back(text); };
    }

    void buildWithActive(SourceType type) {
        settings.setActiveSourceType(type);
        settings.setSourceEnabled(type, true);
        build();
    }

    /// What the settings file names as active now.
    SourceType savedActiveSource() const { return AppSettings(settingsPath).activeSourceType(); }

    QTemporaryDir folder;
    const QString settingsPath = folder.filePath(QStringLiteral("config.json"));
    const QString clipboardPath = folder.filePath(QStringLiteral("clipboard-content.md"));
    AppSettings settings{settingsPath};
    RecordingUsageRecorder recorder;
    NotificationCenter notifications;
    FakePasteboard pasteboard;

    std::vector<SourceType> changes;
    std::vector<QString> contents;
    std::vector<QString> updates;
    const NotificationCenter::Observation changeObservation = notifications.observe(
        QStringLiteral("SourceManagerActiveSourceDidChange"), [this](const Notification& change) {
            changes.push_back(*change.value<SourceType>(QStringLiteral("sourceType")));
        });
    const NotificationCenter::Observation contentObservation = notifications.observe(
        QStringLiteral("SourceManagerContentDidUpdate"), [this](const Notification& update) {
            contents.push_back(*update.value<QString>(QStringLiteral("content")));
        });

    FakeContentSource* obsidian = nullptr;
    ClipboardSource* clipboard = nullptr;
    std::unique_ptr<SourceManager> manager;
};

} // namespace tessaline
