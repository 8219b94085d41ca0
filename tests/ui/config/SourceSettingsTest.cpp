#include "controls/ElidingLabel.h"
#include "sources/notes/AppleNotesSource.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindowFixture.h"
#include "ui/SpokenControls.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Notes = std::vector<NoteLibrary::Note>;

class SourceSettings : public ConfigWindowFixture {
protected:
    void enableObsidian() { stage.settings.setSourceEnabled(SourceType::obsidian, true); }

    void useNotes() { stage.settings.setActiveSourceType(SourceType::appleNotes); }

    PopupButton& sourcePopup() { return control<PopupButton>("config_sourcePopup"); }
    QString noteName() { return control<ElidingLabel>("noteNameField").text(); }

    void pressSelectNote() {
        QTest::mouseClick(&control<QPushButton>("selectNoteButton"), Qt::LeftButton);
    }

    /// Asks for the notes and answers with these.
    Alert* pick(const NoteLibrary::Answer& answer) {
        shown();
        pressSelectNote();
        stage.notes.answer(answer);
        return sheet();
    }

    PopupButton& notePopup() { return control<PopupButton>("notePopup"); }
};

TEST_F(SourceSettings, OfferTheEnabledSourcesAndSelectTheActiveOne) {
    EXPECT_THAT(titlesOf(sourcePopup()), ElementsAre(u"Clipboard"_s));
    enableObsidian();
    stage.settings.setActiveSourceType(SourceType::obsidian);
    window().refreshUI();
    EXPECT_THAT(titlesOf(sourcePopup()), ElementsAre(u"Obsidian"_s, u"Clipboard"_s));
    EXPECT_EQ(sourcePopup().currentText(), u"Obsidian"_s);
}

TEST_F(SourceSettings, KeepThePopupsOwnSelectionForASourceThatIsNotOffered) {
    enableObsidian();
    useNotes();
    EXPECT_EQ(sourcePopup().currentText(), u"Obsidian"_s);
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::appleNotes);
}

TEST_F(SourceSettings, ChoosingASourceSavesActivatesAndAnnouncesIt) {
    enableObsidian();
    useSourceManager();
    std::vector<SourceType> activated;
    const auto observer = stage.notifications.observe(
        SourceManager::activeSourceDidChangeNotification(), [&activated](const Notification& n) {
            activated.push_back(*n.value<SourceType>(u"sourceType"_s));
        });
    window();
    choose("config_sourcePopup", 0);
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::obsidian);
    EXPECT_EQ(AppSettings(stage.configPath).activeSourceType(), SourceType::obsidian);
    EXPECT_THAT(activated, ElementsAre(SourceType::obsidian));
    EXPECT_THAT(sources, ElementsAre(SourceType::obsidian));
}

TEST_F(SourceSettings, ChoosingASourceNeedsNoManagerAndNobodyToTell) {
    enableObsidian();
    window().onSourceChanged = nullptr;
    choose("config_sourcePopup", 0);
    EXPECT_EQ(AppSettings(stage.configPath).activeSourceType(), SourceType::obsidian);
}

TEST_F(SourceSettings, AnItemWithoutASourceChangesNothing) {
    window();
    sourcePopup().addItem(u"Stray"_s);
    choose("config_sourcePopup", 1);
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::clipboard);
    EXPECT_THAT(sources, IsEmpty());
}

class SourceRows : public SourceSettings, public testing::WithParamInterface<SourceType> {};

TEST_P(SourceRows, ShowTheNoteForAppleNotesOnlyAndNeverTheFile) {
    stage.settings.setActiveSourceType(GetParam());
    shown();
    const bool isNotes = GetParam() == SourceType::appleNotes;
    EXPECT_EQ(control<QWidget>("noteConfig").isVisible(), isNotes);
    EXPECT_EQ(control<QWidget>("sourceConfigContainer").isVisible(), isNotes);
    EXPECT_FALSE(control<QWidget>("fileConfig").isVisible());
}

INSTANTIATE_TEST_SUITE_P(Sources, SourceRows, testing::ValuesIn(allSourceTypes), byValue);

TEST_F(SourceSettings, HideTheNoteOnceAnotherSourceIsChosen) {
    useNotes();
    shown();
    ASSERT_TRUE(control<QWidget>("noteConfig").isVisible());
    choose("config_sourcePopup", 0);
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::clipboard);
    EXPECT_FALSE(control<QWidget>("noteConfig").isVisible());
    EXPECT_FALSE(control<QWidget>("sourceConfigContainer").isVisible());
}

TEST_F(SourceSettings, TheFileRowIsInert) {
    stage.settings.change([](auto& values) { values.notePath = u"/home/someone/script.md"_s; });
    EXPECT_EQ(control<ElidingLabel>("filePathField").text(), u"/home/someone/script.md"_s);
    EXPECT_EQ(control<QPushButton>("browseButton").text(), u"Browse..."_s);
    const auto before = stage.settings.values();
    control<QPushButton>("browseButton").click();
    EXPECT_EQ(stage.settings.values(), before);
    EXPECT_FALSE(sheet());
}

TEST_F(SourceSettings, SayThatNoNoteIsSelected) {
    useNotes();
    EXPECT_EQ(noteName(), u"No note selected"_s);
}

TEST_F(SourceSettings, NameTheChosenNote) {
    useNotes();
    window();
    stage.settings.setAppleNotesConfig(AppleNotesConfiguration{u"id"_s, u"Keynote"_s});
    window().refreshUI();
    EXPECT_EQ(noteName(), u"Keynote"_s);
}

TEST_F(SourceSettings, LetTheUserPickANoteFromTheListAsReceived) {
    useSourceManager();
    useNotes();
    const Alert* picker =
        pick(Notes{{u"2"_s, u"Zebra"_s}, {u"1"_s, u"Ant"_s}, {u"3"_s, u"Zebra"_s}});
    ASSERT_TRUE(picker);
    EXPECT_EQ(part<QLabel>(*picker, "messageLabel")->text(), u"Select a Note"_s);
    EXPECT_EQ(part<QLabel>(*picker, "informativeLabel")->text(), u"Choose the note to display:"_s);
    ASSERT_EQ(alertButtons(*picker).size(), 2);
    EXPECT_EQ(alertButtons(*picker)[0]->text(), u"Select"_s);
    EXPECT_EQ(alertButtons(*picker)[1]->text(), u"Cancel"_s);
    EXPECT_EQ(notePopup().size(), QSize(300, 25));
    EXPECT_THAT(titlesOf(notePopup()), ElementsAre(u"Zebra"_s, u"Ant"_s, u"Zebra"_s));

    EXPECT_THAT(spokenControls(*picker),
                Contains(Pair(QAccessible::ComboBox, u"Choose the note to display:"_s)));

    notePopup().setCurrentIndex(2); // of the same name as the first
    QTest::mouseClick(alertButtons(*picker)[0], Qt::LeftButton);
    const AppleNotesConfiguration chosen{u"3"_s, u"Zebra"_s};
    EXPECT_EQ(stage.settings.appleNotesConfig(), chosen);
    EXPECT_EQ(AppSettings(stage.configPath).appleNotesConfig(), chosen);
    EXPECT_EQ(noteName(), u"Zebra"_s);
}

TEST_F(SourceSettings, GiveThePickedNoteToTheSourceThatReadsIt) {
    useSourceManager();
    auto source = std::make_unique<AppleNotesSource>(stage.mainQueue, stage.renderTasks,
                                                     stage.timers, stage.processes);
    const AppleNotesSource& reader = *source;
    sourceManager->registerSource(SourceType::appleNotes, std::move(source));
    useNotes();
    QTest::keyClick(pick(Notes{{u"1"_s, u"Ant"_s}}), Qt::Key_Return);
    EXPECT_EQ(reader.configuration, (AppleNotesConfiguration{u"1"_s, u"Ant"_s}));
}

TEST_F(SourceSettings, PickingANoteNeedsNoManager) {
    useNotes();
    QTest::keyClick(pick(Notes{{u"1"_s, u"Ant"_s}}), Qt::Key_Return);
    EXPECT_EQ(AppSettings(stage.configPath).appleNotesConfig(),
              (AppleNotesConfiguration{u"1"_s, u"Ant"_s}));
}

TEST_F(SourceSettings, CancellingThePickerChangesNothing) {
    useNotes();
    stage.settings.setAppleNotesConfig(AppleNotesConfiguration{u"0"_s, u"Old"_s});
    const Alert* picker = pick(Notes{{u"1"_s, u"Ant"_s}});
    QTest::mouseClick(alertButtons(*picker)[1], Qt::LeftButton);
    EXPECT_EQ(stage.settings.appleNotesConfig(), (AppleNotesConfiguration{u"0"_s, u"Old"_s}));
    EXPECT_EQ(noteName(), u"Old"_s);
    QTest::keyClick(pick(Notes{{u"1"_s, u"Ant"_s}}), Qt::Key_Escape);
    EXPECT_EQ(noteName(), u"Old"_s);
}

TEST_F(SourceSettings, APickedItemWithoutANoteChangesNothing) {
    useNotes();
    Alert* picker = pick(Notes{{u"1"_s, u"Ant"_s}});
    notePopup().setItemData(0, {});
    QTest::keyClick(picker, Qt::Key_Return);
    EXPECT_EQ(stage.settings.appleNotesConfig(), std::nullopt);
}

TEST_F(SourceSettings, SayThatThereAreNoNotes) {
    useNotes();
    const Alert* alert = pick(Notes{});
    ASSERT_TRUE(alert);
    EXPECT_EQ(part<QLabel>(*alert, "messageLabel")->text(), u"No Notes Found"_s);
    EXPECT_EQ(part<QLabel>(*alert, "informativeLabel")->text(),
              u"You don't have any notes in Apple Notes yet."_s);
    EXPECT_EQ(alertButtons(*alert).size(), 1);
    EXPECT_FALSE(isWarning(window(), *alert));
    EXPECT_FALSE(window().findChild<PopupButton*>(u"notePopup"_s));
}

TEST_F(SourceSettings, OpenTheSystemsSettingsWhenThePermissionIsMissing) {
    useNotes();
    EXPECT_FALSE(pick(ContentSourceError::permissionDenied()));
    EXPECT_EQ(stage.notes.preferencesOpened, 1);
}

TEST_F(SourceSettings, TellAnyOtherFailure) {
    useNotes();
    const Alert* alert = pick(ContentSourceError::scriptError(u"timed out"_s));
    ASSERT_TRUE(alert);
    EXPECT_EQ(part<QLabel>(*alert, "messageLabel")->text(), u"Error"_s);
    EXPECT_EQ(part<QLabel>(*alert, "informativeLabel")->text(), u"Script error: timed out"_s);
    EXPECT_TRUE(isWarning(window(), *alert));
    EXPECT_EQ(stage.notes.preferencesOpened, 0);
}

TEST(SourceSettingsGone, ANoteListThatComesTooLateFindsNobody) {
    WindowStage stage;
    stage.settings.setActiveSourceType(SourceType::appleNotes);
    auto window =
        std::make_unique<ConfigWindow>(stage.settings, nullptr, stage.platform, stage.services);
    window->findChild<QPushButton*>(u"selectNoteButton"_s)->click();
    ASSERT_EQ(stage.notes.requests, 1);
    window.reset();
    stage.notes.answer(ContentSourceError::permissionDenied());
    EXPECT_EQ(stage.notes.preferencesOpened, 0);
}

} // namespace
} // namespace tessaline
