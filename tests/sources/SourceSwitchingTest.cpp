#include "sources/SourceManagerFixture.h"

#include "support/NotAFile.h"
#include "support/TestFiles.h"

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace tessaline {
namespace {

using SourceSwitching = SourceManagerFixture;

TEST_F(SourceSwitching, SwitchesWithoutStartingTheNewSource) {
    buildWithActive(SourceType::clipboard);
    manager->startWatching();
    manager->setActiveSource(SourceType::obsidian);
    EXPECT_EQ(manager->activeSource(), obsidian);
    EXPECT_EQ(obsidian->starts, 0);
    EXPECT_THAT(changes, ElementsAre(SourceType::obsidian));
    EXPECT_EQ(savedActiveSource(), SourceType::obsidian);
    clipboard->pasteText(u"not watched any more"_s);
    EXPECT_THAT(updates, ElementsAre(ClipboardSource::placeholder()));
}

TEST_F(SourceSwitching, SwitchesAlsoWhenTheSettingsCannotBeSaved) {
    build();
    placeNotAFile(NotAFile::folder, settingsPath);
    ::testing::internal::CaptureStdout();
    manager->setActiveSource(SourceType::clipboard);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              "❌ Failed to save config: Not a regular file\n");
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_THAT(changes, ElementsAre(SourceType::clipboard));
}

TEST_F(SourceSwitching, StopsTheActiveSourceBeforeItPostsTheChange) {
    build();
    int stopsAtPost = 0;
    const auto observation =
        notifications.observe(SourceManager::activeSourceDidChangeNotification(),
                              [&](const Notification&) { stopsAtPost = obsidian->stops; });
    manager->setActiveSource(SourceType::clipboard);
    EXPECT_EQ(stopsAtPost, 1);
}

TEST_F(SourceSwitching, HasSetAndSavedTheChangeWhenItPostsIt) {
    build();
    std::optional<SourceType> saved;
    std::optional<SourceType> set;
    const auto observation = notifications.observe(
        SourceManager::activeSourceDidChangeNotification(), [&](const Notification&) {
            set = settings.activeSourceType();
            saved = savedActiveSource();
            EXPECT_EQ(manager->activeSource(), clipboard);
        });
    manager->setActiveSource(SourceType::clipboard);
    EXPECT_EQ(set, SourceType::clipboard);
    EXPECT_EQ(saved, SourceType::clipboard);
}

TEST_F(SourceSwitching, PostsTheChangeToASourceThatDoesNotExist) {
    build();
    manager->setActiveSource(SourceType::appleNotes);
    EXPECT_EQ(obsidian->stops, 1);
    EXPECT_EQ(manager->activeSource(), nullptr);
    EXPECT_THAT(changes, ElementsAre(SourceType::appleNotes));
}

TEST_F(SourceSwitching, OnlyStoresThatASourceWasSwitchedOn) {
    settings.change([](auto& values) { values.enabledSourceTypes = {SourceType::clipboard}; });
    buildWithActive(SourceType::clipboard);
    manager->setSourceEnabled(SourceType::obsidian, true);
    EXPECT_TRUE(settings.isSourceEnabled(SourceType::obsidian));
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(SourceSwitching, FallsBackToTheClipboardWhenTheActiveSourceIsSwitchedOff) {
    build();
    putFile(clipboardPath, "kept");
    manager->setSourceEnabled(SourceType::obsidian, false);
    EXPECT_FALSE(settings.isSourceEnabled(SourceType::obsidian));
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_EQ(obsidian->stops, 1);
    EXPECT_THAT(changes, ElementsAre(SourceType::clipboard));
    EXPECT_THAT(updates, ElementsAre(u"kept"_s));
}

TEST_F(SourceSwitching, FallsBackToTheClipboardAlsoWhenThatIsNotEnabled) {
    build();
    settings.change([](auto& values) { values.enabledSourceTypes = {SourceType::obsidian}; });
    manager->setSourceEnabled(SourceType::obsidian, false);
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_THAT(changes, ElementsAre(SourceType::clipboard));
}

TEST_F(SourceSwitching, FallsBackToTheClipboardAlsoWhenAnotherSourceIsEnabled) {
    buildWithActive(SourceType::appleNotes);
    manager->setSourceEnabled(SourceType::appleNotes, false);
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_EQ(obsidian->starts, 0);
    EXPECT_THAT(changes, ElementsAre(SourceType::clipboard));
    EXPECT_THAT(updates, ElementsAre(ClipboardSource::placeholder()));
}

TEST_F(SourceSwitching, RestartsTheClipboardWhenItIsSwitchedOffWhileActive) {
    buildWithActive(SourceType::clipboard);
    manager->setSourceEnabled(SourceType::clipboard, false);
    EXPECT_TRUE(settings.isSourceEnabled(SourceType::clipboard));
    EXPECT_THAT(changes, ElementsAre(SourceType::clipboard));
    EXPECT_THAT(updates, ElementsAre(ClipboardSource::placeholder()));
}

TEST_F(SourceSwitching, KeepsTheActiveSourceWhenAnotherIsSwitchedOff) {
    buildWithActive(SourceType::clipboard);
    manager->setSourceEnabled(SourceType::obsidian, false);
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(updates, IsEmpty());
}

TEST_F(SourceSwitching, CyclesThroughTheEnabledSources) {
    build();
    manager->cycleSource();
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_THAT(updates, ElementsAre(ClipboardSource::placeholder()));
    manager->cycleSource();
    EXPECT_EQ(manager->activeSource(), obsidian);
    EXPECT_EQ(obsidian->starts, 1);
    EXPECT_THAT(changes, ElementsAre(SourceType::clipboard, SourceType::obsidian));
}

TEST_F(SourceSwitching, DoesNotCycleWithOneEnabledSource) {
    settings.change([](auto& values) { values.enabledSourceTypes = {SourceType::clipboard}; });
    buildWithActive(SourceType::clipboard);
    putFile(settingsPath, "not saved again");
    manager->cycleSource();
    EXPECT_EQ(manager->activeSource(), clipboard);
    EXPECT_EQ(fileBytes(settingsPath), "not saved again");
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(updates, IsEmpty());
}

TEST_F(SourceSwitching, CyclesFromASourceThatIsNotOfferedToTheFirstOne) {
    buildWithActive(SourceType::appleNotes);
    manager->cycleSource();
    EXPECT_EQ(manager->activeSource(), obsidian);
    EXPECT_EQ(obsidian->starts, 1);
    EXPECT_THAT(changes, ElementsAre(SourceType::obsidian));
    EXPECT_EQ(savedActiveSource(), SourceType::obsidian);
}

} // namespace
} // namespace tessaline
