#include "sources/SourceManagerFixture.h"

#include "sources/notes/AppleNotesSource.h"
#include "support/FakeMainQueue.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeTaskRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/TestFiles.h"

#include <QFile>

#include <functional>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace tessaline {
namespace {

using SourceManagerTest = SourceManagerFixture;

TEST_F(SourceManagerTest, NamesItsNotifications) {
    EXPECT_EQ(SourceManager::activeSourceDidChangeNotification(),
              u"SourceManagerActiveSourceDidChange"_s);
    EXPECT_EQ(SourceManager::contentDidUpdateNotification(), u"SourceManagerContentDidUpdate"_s);
}

TEST_F(SourceManagerTest, ActivatesTheSourceOfTheSettingsWhenItIsBuilt) {
    int posts = 0;
    SourceType posted = SourceType::clipboard;
    const auto observation = notifications.observe(
        SourceManager::activeSourceDidChangeNotification(), [&](const Notification& notification) {
            ++posts;
            posted = *notification.value<SourceType>(u"sourceType"_s);
        });
    putFile(settingsPath, "not a configuration");
    build();
    EXPECT_EQ(posts, 1);
    EXPECT_EQ(posted, SourceType::obsidian);
    EXPECT_EQ(manager->activeSource(), obsidian);
    EXPECT_EQ(savedActiveSource(), SourceType::obsidian);
}

TEST_F(SourceManagerTest, StartsNothingWhenItIsBuilt) {
    build();
    EXPECT_EQ(obsidian->starts, 0);
    EXPECT_EQ(manager->currentContent(), QString());
    EXPECT_THAT(updates, IsEmpty());
}

TEST_F(SourceManagerTest, ActivatesTheClipboardWhenTheSourceOfTheSettingsIsNotEnabled) {
    settings.change([](auto& values) { values.enabledSourceTypes = {SourceType::clipboard}; });
    build();
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_EQ(settings.activeSourceType(), SourceType::clipboard);
    EXPECT_EQ(savedActiveSource(), SourceType::clipboard);
}

TEST_F(SourceManagerTest, PostsAsTheSender) {
    build();
    std::vector<const void*> senders;
    const auto keepSender = [&](const Notification& notification) {
        senders.push_back(notification.sender);
    };
    const auto change =
        notifications.observe(SourceManager::activeSourceDidChangeNotification(), keepSender);
    const auto update =
        notifications.observe(SourceManager::contentDidUpdateNotification(), keepSender);
    manager->setActiveSource(SourceType::clipboard);
    manager->startWatching();
    EXPECT_THAT(senders, ElementsAre(manager.get(), manager.get()));
}

TEST_F(SourceManagerTest, HandsOnEachDeliveredText) {
    build();
    manager->startWatching();
    obsidian->deliver(u"# Hello there"_s);
    EXPECT_EQ(manager->currentContent(), u"# Hello there"_s);
    EXPECT_THAT(recorder.contentLoaded, ElementsAre(Pair(SourceType::obsidian, 2)));
    EXPECT_THAT(contents, ElementsAre(u"# Hello there"_s));
    EXPECT_THAT(updates, ElementsAre(u"# Hello there"_s));
}

TEST_F(SourceManagerTest, HandsOnTheSameTextAgain) {
    build();
    manager->startWatching();
    obsidian->deliver(u"same"_s);
    obsidian->deliver(u"same"_s);
    EXPECT_THAT(contents, ElementsAre(u"same"_s, u"same"_s));
    EXPECT_THAT(updates, ElementsAre(u"same"_s, u"same"_s));
    EXPECT_EQ(recorder.contentLoaded.size(), 2U);
}

TEST_F(SourceManagerTest, RecordsThenPostsThenCalls) {
    build();
    std::vector<std::string> order;
    const auto observation = notifications.observe(SourceManager::contentDidUpdateNotification(),
                                                   [&](const Notification&) {
                                                       EXPECT_EQ(recorder.contentLoaded.size(), 1U);
                                                       order.emplace_back("post");
                                                   });
    manager->onContentUpdate = [&](const QString&) { order.emplace_back("call"); };
    manager->startWatching();
    obsidian->deliver(u"text"_s);
    EXPECT_THAT(order, ElementsAre("post", "call"));
}

/// Looks at the manager at the moment of each event.
class LookingRecorder final : public UsageRecorder {
public:
    void record(const AnalyticsEvent& event) override {
        if (look) contents << event.name + u' ' + look();
    }
    void trackAppLaunch() override {}
    void trackAppTerminate() override {}
    void trackEnvironmentSnapshot(const AppSettings&) override {}

    std::function<QString()> look;
    QStringList contents;
};

TEST_F(SourceManagerTest, HasTheTextBeforeItRecordsIt) {
    LookingRecorder looking;
    auto source = std::make_unique<FakeContentSource>();
    obsidian = source.get();
    manager = std::make_unique<SourceManager>(
        settings, looking, notifications, std::move(source),
        std::make_unique<ClipboardSource>(pasteboard, clipboardPath));
    looking.look = [this] { return manager->currentContent(); };
    manager->startWatching();
    obsidian->deliver(u"text"_s);
    EXPECT_EQ(looking.contents, QStringList{u"content_loaded text"_s});
}

TEST_F(SourceManagerTest, KnowsTheWordsOfTheTextItHandedOn) {
    build();
    manager->startWatching();
    for (const auto& [text, words] : {std::pair(u"one two"_s, 2), std::pair(u"one"_s, 1),
                                      std::pair(u"two three four"_s, 3), std::pair(u""_s, 0)}) {
        obsidian->deliver(text);
        EXPECT_EQ(manager->currentWordCount(), words);
        EXPECT_EQ(recorder.contentLoaded.back().second, words);
    }
}

TEST_F(SourceManagerTest, NeedsNoCallback) {
    build();
    manager->onContentUpdate = nullptr;
    manager->startWatching();
    obsidian->deliver(u"text"_s);
    EXPECT_THAT(contents, ElementsAre(u"text"_s));
}

TEST_F(SourceManagerTest, DoesNothingWithATextThatArrivesAfterItIsGone) {
    build();
    manager->startWatching();
    const auto deliver = obsidian->deliver;
    manager.reset();
    deliver(u"late"_s);
    EXPECT_THAT(contents, IsEmpty());
    EXPECT_THAT(updates, IsEmpty());
    EXPECT_THAT(recorder.contentLoaded, IsEmpty());
}

TEST_F(SourceManagerTest, HasNoActiveSourceForAppleNotes) {
    buildWithActive(SourceType::appleNotes);
    EXPECT_EQ(manager->activeSource(), nullptr);
    EXPECT_EQ(settings.activeSourceType(), SourceType::appleNotes);
    manager->startWatching();
    EXPECT_EQ(obsidian->starts, 0);
    EXPECT_THAT(updates, IsEmpty());
}

TEST_F(SourceManagerTest, StoresAndClearsTheAppleNotesConfiguration) {
    buildWithActive(SourceType::appleNotes);
    const AppleNotesConfiguration note{u"id"_s, u"name"_s};
    manager->updateAppleNotesConfig(note);
    EXPECT_EQ(settings.appleNotesConfig(), note);
    EXPECT_EQ(AppSettings(settingsPath).appleNotesConfig(), note);
    manager->updateAppleNotesConfig(std::nullopt);
    EXPECT_EQ(settings.appleNotesConfig(), std::nullopt);
    EXPECT_EQ(AppSettings(settingsPath).appleNotesConfig(), std::nullopt);
}

TEST_F(SourceManagerTest, GivesTheAppleNotesConfigurationToARegisteredSource) {
    build();
    FakeMainQueue queue;
    FakeTaskRunner tasks;
    FakeTimerMaker timers;
    FakeProcessRunner processes;
    auto source = std::make_unique<AppleNotesSource>(queue, tasks, timers, processes);
    auto* const notes = source.get();
    manager->registerSource(SourceType::appleNotes, std::move(source));
    const AppleNotesConfiguration note{u"id"_s, u"name"_s};
    manager->updateAppleNotesConfig(note);
    EXPECT_EQ(notes->configuration, note);
    EXPECT_EQ(AppSettings(settingsPath).appleNotesConfig(), note);
    manager->updateAppleNotesConfig(std::nullopt);
    EXPECT_EQ(notes->configuration, std::nullopt);
    manager->setActiveSource(SourceType::appleNotes);
    EXPECT_EQ(manager->activeSource(), notes);
    manager.reset();
}

TEST_F(SourceManagerTest, LeavesAnotherKindOfSourceAloneThatStandsForAppleNotes) {
    build();
    manager->registerSource(SourceType::appleNotes, std::make_unique<FakeContentSource>());
    const AppleNotesConfiguration note{u"id"_s, u"name"_s};
    manager->updateAppleNotesConfig(note);
    EXPECT_EQ(settings.appleNotesConfig(), note);
}

TEST_F(SourceManagerTest, KeepsASourceThatIsRegisteredAlready) {
    build();
    manager->registerSource(SourceType::obsidian, std::make_unique<FakeContentSource>());
    manager->setActiveSource(SourceType::obsidian);
    EXPECT_EQ(manager->activeSource(), obsidian);
}

TEST_F(SourceManagerTest, HandsAPasteOnTwiceWhileTheClipboardIsWatched) {
    buildWithActive(SourceType::clipboard);
    manager->startWatching();
    updates.clear();
    contents.clear();
    recorder.contentLoaded.clear();
    pasteboard.text = u"one two"_s;
    manager->pasteFromClipboard();
    EXPECT_THAT(updates, ElementsAre(u"one two"_s, u"one two"_s));
    EXPECT_THAT(contents, ElementsAre(u"one two"_s, u"one two"_s));
    EXPECT_THAT(recorder.contentLoaded,
                ElementsAre(Pair(SourceType::clipboard, 2), Pair(SourceType::clipboard, 2)));
}

TEST_F(SourceManagerTest, HandsAPasteOnOnceWhileTheActiveClipboardIsNotWatched) {
    buildWithActive(SourceType::clipboard);
    pasteboard.text = u"pasted"_s;
    manager->pasteFromClipboard();
    EXPECT_THAT(updates, ElementsAre(u"pasted"_s));
}

TEST_F(SourceManagerTest, StoresAPasteForLaterWhileAnotherSourceIsActive) {
    build();
    manager->startWatching();
    pasteboard.text = u"pasted"_s;
    manager->pasteFromClipboard();
    EXPECT_THAT(updates, IsEmpty());
    EXPECT_EQ(manager->currentContent(), QString());
    manager->setActiveSource(SourceType::clipboard);
    manager->startWatching();
    EXPECT_THAT(updates, ElementsAre(u"pasted"_s));
}

TEST_F(SourceManagerTest, ChangesNothingAtAPasteWithoutText) {
    buildWithActive(SourceType::clipboard);
    manager->startWatching();
    updates.clear();
    contents.clear();
    recorder.contentLoaded.clear();
    manager->pasteFromClipboard();
    pasteboard.text = u""_s;
    manager->pasteFromClipboard();
    manager->pasteText(u""_s);
    EXPECT_THAT(updates, IsEmpty());
    EXPECT_THAT(contents, IsEmpty());
    EXPECT_THAT(recorder.contentLoaded, IsEmpty());
    EXPECT_EQ(manager->currentContent(), ClipboardSource::placeholder());
    EXPECT_FALSE(QFile::exists(clipboardPath));
}

TEST_F(SourceManagerTest, TreatsATextHandedInAsAPaste) {
    buildWithActive(SourceType::clipboard);
    manager->startWatching();
    updates.clear();
    pasteboard.text = u"not this"_s;
    manager->pasteText(u"from a file"_s);
    EXPECT_THAT(updates, ElementsAre(u"from a file"_s, u"from a file"_s));
    EXPECT_EQ(fileBytes(clipboardPath), "from a file");
}

} // namespace
} // namespace tessaline
