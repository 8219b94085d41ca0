#include "sources/SourceManager.h"

#include "analytics/UsageRecorder.h"
#include "platform/NotificationCenter.h"
#include "settings/AppSettings.h"
#include "sources/ClipboardSource.h"
#include "sources/notes/AppleNotesSource.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

QString SourceManager::activeSourceDidChangeNotification() {
    return u"SourceManagerActiveSourceDidChange"_s;
}

QString SourceManager::contentDidUpdateNotification() {
    return u"SourceManagerContentDidUpdate"_s;
}

SourceManager::SourceManager(AppSettings& sharedSettings, UsageRecorder& usageRecorder,
                             NotificationCenter& notificationCenter,
                             std::unique_ptr<ContentSource> obsidianSource,
                             std::unique_ptr<ClipboardSource> clipboardSource)
    : settings(sharedSettings)
    , recorder(usageRecorder)
    , notifications(notificationCenter)
    , clipboard(clipboardSource.get()) {
    sources.emplace(SourceType::obsidian, std::move(obsidianSource));
    sources.emplace(SourceType::clipboard, std::move(clipboardSource));
    const bool enabled = settings.isSourceEnabled(settings.activeSourceType());
    setActiveSource(enabled ? settings.activeSourceType() : SourceType::clipboard);
}

SourceManager::~SourceManager() = default;

void SourceManager::registerSource(SourceType type, std::unique_ptr<ContentSource> source) {
    sources.emplace(type, std::move(source));
}

void SourceManager::startWatching() {
    if (!active) return;
    active->startWatching(
        lifetime.guard([this](const QString& text) { handleContentUpdate(text); }));
}

void SourceManager::setActiveSource(SourceType type) {
    if (active) active->stopWatching();
    const auto registered = sources.find(type);
    active = registered == sources.end() ? nullptr : registered->second.get();
    settings.setActiveSourceType(type);
    notifications.post({activeSourceDidChangeNotification(), this, {{u"sourceType"_s, type}}});
}

void SourceManager::setSourceEnabled(SourceType type, bool enabled) {
    const auto previouslyActive = settings.activeSourceType();
    settings.setSourceEnabled(type, enabled);
    if (enabled || previouslyActive != type) return;
    setActiveSource(SourceType::clipboard);
    startWatching();
}

void SourceManager::cycleSource() {
    const auto enabled = settings.getEnabledSources();
    if (enabled.size() < 2) return;
    const auto current = std::find(enabled.begin(), enabled.end(), settings.activeSourceType());
    const bool isLast = current == enabled.end() || std::next(current) == enabled.end();
    setActiveSource(isLast ? enabled.front() : *std::next(current));
    startWatching();
}

void SourceManager::pasteFromClipboard() {
    handleContentPaste(clipboard->pasteFromClipboard());
}

void SourceManager::pasteText(const QString& text) {
    handleContentPaste(clipboard->pasteText(text));
}

void SourceManager::updateAppleNotesConfig(const std::optional<AppleNotesConfiguration>& config) {
    const auto registered = sources.find(SourceType::appleNotes);
    auto* source = registered == sources.end() ? nullptr : registered->second.get();
    if (auto* notes = dynamic_cast<AppleNotesSource*>(source)) notes->configuration = config;
    settings.setAppleNotesConfig(config);
}

void SourceManager::handleContentUpdate(const QString& text) {
    // A pasted text comes twice, and may be a long one.
    const bool isCounted = text.constData() == content.constData() && text.size() == content.size();
    if (!isCounted) wordCount = words.count(text);
    content = text;
    recorder.trackContentLoaded(settings.activeSourceType(), wordCount);
    notifications.post({contentDidUpdateNotification(), this, {{u"content"_s, text}}});
    if (onContentUpdate) onContentUpdate(text);
}

void SourceManager::handleContentPaste(const std::optional<QString>& pasted) {
    const bool isShown = settings.activeSourceType() == SourceType::clipboard;
    if (pasted && isShown) handleContentUpdate(*pasted);
}

} // namespace tessaline
