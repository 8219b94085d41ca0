#include "settings/DecodedSettings.h"
#include "support/CaseName.h"

#include <gmock/gmock.h>

#include <limits>
#include <ostream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::UnorderedElementsAre;

TEST(SettingsDecoding, AnEmptyObjectGivesTheDefaults) {
    const PersistedSettings settings = decoded("{}");
    EXPECT_EQ(settings, PersistedSettings());
    EXPECT_EQ(settings.notePath,
              QString::fromLocal8Bit(qgetenv("HOME")) +
                  u"/Library/Mobile Documents/com~apple~CloudDocs/Obsidian/notch.md"_s);
    EXPECT_EQ(settings.fontSize, 16.0);
    EXPECT_EQ(settings.width, 450.0);
    EXPECT_EQ(settings.height, 256.0);
    EXPECT_EQ(settings.xOffset, 0.0);
    EXPECT_EQ(settings.scrollSpeed, 0.0);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed, 2.0);
    EXPECT_FALSE(settings.autoScrollEnabled);
    EXPECT_EQ(settings.scrollRate, ScrollRate::medium);
    EXPECT_FALSE(settings.hasCompletedOnboarding);
    EXPECT_EQ(settings.activeSourceType, SourceType::clipboard);
    EXPECT_EQ(settings.appleNotesConfig, std::nullopt);
    EXPECT_THAT(settings.enabledSourceTypes, UnorderedElementsAre(SourceType::clipboard));
    EXPECT_EQ(settings.obsidianBookmarkData, std::nullopt);
    EXPECT_EQ(settings.preferredDisplayID, std::nullopt);
}

TEST(SettingsDecoding, TakesASingleKeyAndKeepsTheOtherDefaults) {
    PersistedSettings expected;
    expected.fontSize = 20;
    EXPECT_EQ(decoded(R"({"fontSize": 20})"), expected);
}

TEST(SettingsDecoding, NullMeansAbsentForEveryKey) {
    EXPECT_EQ(decoded(R"({"notePath": null, "fontSize": null, "width": null, "height": null,
        "xOffset": null, "scrollSpeed": null, "lastNonZeroScrollSpeed": null,
        "autoScrollEnabled": null, "scrollRate": null, "hasCompletedOnboarding": null,
        "activeSourceType": null, "appleNotesConfig": null, "enabledSourceTypes": null,
        "obsidianBookmarkData": null, "preferredDisplayID": null})"),
              PersistedSettings());
}

TEST(SettingsDecoding, IgnoresUnknownAndUnpersistedKeys) {
    EXPECT_EQ(decoded(R"({"sourceMode": 3, "clipboardContent": [], "testConfigURL": {},
        "FontSize": "x", "": {"deep": [[1e308]]}})"),
              PersistedSettings());
}

struct UnusableValue {
    const char* name;
    QByteArray json;
};

std::ostream& operator<<(std::ostream& out, const UnusableValue& value) {
    return out << value.name;
}

class UnusableValueDecoding : public testing::TestWithParam<UnusableValue> {};

TEST_P(UnusableValueDecoding, DoesNotMatterUnderAnUnknownKey) {
    const QByteArray& value = GetParam().json;
    EXPECT_EQ(decoded("{\"x\": " + value + ", \"fontSize\": 20}").fontSize, 20.0);
    EXPECT_EQ(decoded("{\"fontSize\": 20, \"x\": {\"y\": [" + value + "," + value + "]}}").fontSize,
              20.0);
    EXPECT_EQ(decoded("{\"appleNotesConfig\": {\"noteId\": \"7\", \"x\": " + value +
                      ", \"noteName\": \"Talk\"}}")
                  .appleNotesConfig,
              (AppleNotesConfiguration{u"7"_s, u"Talk"_s}));
}

TEST_P(UnusableValueDecoding, FailsUnderEveryKnownKey) {
    for (const char* key :
         {"notePath", "fontSize", "autoScrollEnabled", "scrollRate", "activeSourceType",
          "appleNotesConfig", "enabledSourceTypes", "obsidianBookmarkData", "preferredDisplayID"}) {
        EXPECT_EQ(decodingError("{\"x\": 1, \"" + QByteArray(key) + "\": " + GetParam().json + "}"),
                  u"Invalid value for \"%1\""_s.arg(QLatin1String(key)));
    }
}

INSTANTIATE_TEST_SUITE_P(Such, UnusableValueDecoding,
                         testing::Values(UnusableValue{"LargeExponent", "1e400"},
                                         UnusableValue{"NegativeNumber", "-1.5E+400"},
                                         UnusableValue{"ManyDigits", QByteArray(400, '9')},
                                         UnusableValue{"HighSurrogate", R"("\ud83c")"},
                                         UnusableValue{"LowSurrogate", R"("a \" \\ \uDFA4 b")"},
                                         UnusableValue{"SwappedPair", R"("\udfa4\ud83c")"},
                                         UnusableValue{"HighSurrogateBeforeAPair",
                                                       R"("\ud83c\ud83c\udfa4")"}),
                         byMember<&UnusableValue::name>);

TEST(SettingsDecoding, IgnoresAnUnknownKeyWithHalfOfASurrogatePair) {
    EXPECT_EQ(decoded(R"({"\ud83c" : "\udfa4", "fontSize": 20})").fontSize, 20.0);
}

TEST(SettingsDecoding, TakesTinyNumbersForZero) {
    EXPECT_EQ(decoded(R"({"xOffset": 1e-400})").xOffset, 0.0);
}

TEST(SettingsDecoding, AcceptsIntegersAndFractionsAndExponentsForDoubles) {
    EXPECT_EQ(decoded(R"({"width": 600})").width, 600.0);
    EXPECT_EQ(decoded(R"({"xOffset": -12})").xOffset, -12.0);
    EXPECT_EQ(decoded(R"({"xOffset": -12.25})").xOffset, -12.25);
    EXPECT_EQ(decoded(R"({"height": 3.5e2})").height, 350.0);
    EXPECT_EQ(decoded(R"({"height": 18446744073709551616})").height, 18446744073709551616.0);
}

TEST(SettingsDecoding, LimitsSpeedsToTheGreatestOneWithoutFurtherRepair) {
    const auto settings = decoded(R"({"scrollSpeed": 9, "lastNonZeroScrollSpeed": 5.000001})");
    EXPECT_EQ(settings.scrollSpeed, 5.0);
    EXPECT_EQ(settings.lastNonZeroScrollSpeed, 5.0);
    const auto negative = decoded(R"({"scrollSpeed": -3, "lastNonZeroScrollSpeed": -1})");
    EXPECT_EQ(negative.scrollSpeed, -3.0);
    EXPECT_EQ(negative.lastNonZeroScrollSpeed, -1.0);
}

TEST(SettingsDecoding, TakesTheNoteAndIgnoresItsUnknownMembers) {
    const AppleNotesConfiguration note{u"x-coredata://7"_s, u"Ein Vortrag 🎤"_s};
    EXPECT_EQ(decoded(R"({"appleNotesConfig": {"noteName": "Ein Vortrag 🎤", "folder": 1,
        "noteId": "x-coredata://7"}})")
                  .appleNotesConfig,
              note);
}

TEST(SettingsDecoding, TakesBookmarkBytesFromBase64) {
    EXPECT_EQ(decoded(R"({"obsidianBookmarkData": "AAH+/w=="})").obsidianBookmarkData,
              QByteArray("\x00\x01\xfe\xff", 4));
    EXPECT_EQ(decoded(R"({"obsidianBookmarkData": ""})").obsidianBookmarkData, QByteArray());
}

TEST(SettingsDecoding, TakesDisplayNumbersOfTheWholeRange) {
    EXPECT_EQ(decoded(R"({"preferredDisplayID": 0})").preferredDisplayID, 0U);
    EXPECT_EQ(decoded(R"({"preferredDisplayID": 4294967295})").preferredDisplayID, 4294967295U);
    EXPECT_EQ(decoded(R"({"preferredDisplayID": 7.0})").preferredDisplayID, 7U);
}

TEST(SettingsDecoding, TakesTextWithEscapesAndNulls) {
    EXPECT_EQ(decoded(R"({"notePath": "a\u0000\n\/\ud83c\udfa4é"})").notePath,
              QString::fromUtf8("a\0\n/🎤é", 10));
}

TEST(SettingsDecoding, SkipsAByteOrderMark) {
    EXPECT_EQ(decoded("\xEF\xBB\xBF{\"fontSize\": 20}").fontSize, 20.0);
}

TEST(SettingsDecoding, TheLastOfSeveralEqualKeysWins) {
    EXPECT_EQ(decoded(R"({"fontSize": 20, "fontSize": 21})").fontSize, 21.0);
}

struct SourcesCase {
    QByteArray name;
    QByteArray json;
    std::set<SourceType> enabled;
    SourceType active;
};

std::ostream& operator<<(std::ostream& out, const SourcesCase& test) {
    return out << test.name.constData();
}

class SourcesDecoding : public testing::TestWithParam<SourcesCase> {};

TEST_P(SourcesDecoding, SettlesEnabledAndActiveSources) {
    const PersistedSettings settings = decoded(GetParam().json);
    EXPECT_EQ(settings.enabledSourceTypes, GetParam().enabled);
    EXPECT_EQ(settings.activeSourceType, GetParam().active);
}

constexpr auto obsidian = SourceType::obsidian;
constexpr auto appleNotes = SourceType::appleNotes;
constexpr auto clipboard = SourceType::clipboard;

INSTANTIATE_TEST_SUITE_P(
    Files, SourcesDecoding,
    testing::Values(
        SourcesCase{"ActiveObsidianWithoutList",
                    R"({"activeSourceType": "obsidian"})",
                    {clipboard, obsidian},
                    obsidian},
        SourcesCase{"ActiveNotesWithoutList",
                    R"({"activeSourceType": "appleNotes"})",
                    {clipboard, appleNotes},
                    appleNotes},
        SourcesCase{"ActiveClipboardWithoutList",
                    R"({"activeSourceType": "clipboard"})",
                    {clipboard},
                    clipboard},
        SourcesCase{"ActiveObsidianWithNullList",
                    R"({"activeSourceType": "obsidian", "enabledSourceTypes": null})",
                    {clipboard, obsidian},
                    obsidian},
        SourcesCase{"ActiveSourceNotInList",
                    R"({"activeSourceType": "obsidian", "enabledSourceTypes": ["clipboard"]})",
                    {clipboard},
                    clipboard},
        SourcesCase{"ActiveSourceNotInEmptyList",
                    R"({"activeSourceType": "obsidian", "enabledSourceTypes": []})",
                    {clipboard},
                    clipboard},
        SourcesCase{"EmptyList", R"({"enabledSourceTypes": []})", {clipboard}, clipboard},
        SourcesCase{"ListWithoutClipboard",
                    R"({"activeSourceType": "obsidian", "enabledSourceTypes": ["obsidian"]})",
                    {clipboard, obsidian},
                    obsidian},
        SourcesCase{"ListWithoutActiveSource",
                    R"({"enabledSourceTypes": ["obsidian", "appleNotes"]})",
                    {clipboard, obsidian, appleNotes},
                    clipboard},
        SourcesCase{"ActiveClipboardWithListWithoutIt",
                    R"({"activeSourceType": "clipboard", "enabledSourceTypes": ["obsidian"]})",
                    {clipboard, obsidian},
                    clipboard},
        SourcesCase{"ListWithDuplicates",
                    R"({"enabledSourceTypes": ["obsidian", "obsidian", "clipboard"]})",
                    {clipboard, obsidian},
                    clipboard}),
    byMember<&SourcesCase::name>);

struct WrongValue {
    const char* key;
    const char* value;
};

std::ostream& operator<<(std::ostream& out, const WrongValue& wrong) {
    return out << wrong.key << ": " << wrong.value;
}

class WrongValueDecoding : public testing::TestWithParam<WrongValue> {};

TEST_P(WrongValueDecoding, FailsAndNamesTheKey) {
    const QByteArray json =
        QByteArray("{\"fontSize\": 20, \"") + GetParam().key + "\": " + GetParam().value + "}";
    EXPECT_EQ(decodingError(json),
              u"Invalid value for \"%1\""_s.arg(QLatin1String(GetParam().key)));
}

INSTANTIATE_TEST_SUITE_P(
    Strings, WrongValueDecoding,
    testing::Values(WrongValue{"notePath", "1"}, WrongValue{"notePath", "true"},
                    WrongValue{"notePath", "[]"}, WrongValue{"notePath", "{}"},
                    WrongValue{"scrollRate", R"("Medium")"}, WrongValue{"scrollRate", R"("")"},
                    WrongValue{"scrollRate", R"("turbo")"}, WrongValue{"scrollRate", "1"},
                    WrongValue{"activeSourceType", R"("Clipboard")"},
                    WrongValue{"activeSourceType", R"("none")"},
                    WrongValue{"activeSourceType", "0"},
                    WrongValue{"activeSourceType", R"(["clipboard"])"}),
    byValue);

INSTANTIATE_TEST_SUITE_P(
    Numbers, WrongValueDecoding,
    testing::Values(
        WrongValue{"fontSize", R"("16")"}, WrongValue{"fontSize", "true"},
        WrongValue{"width", "false"}, WrongValue{"height", "[450]"}, WrongValue{"xOffset", "{}"},
        WrongValue{"scrollSpeed", R"("2.0")"}, WrongValue{"scrollSpeed", R"("NaN")"},
        WrongValue{"lastNonZeroScrollSpeed", "true"}, WrongValue{"preferredDisplayID", "-1"},
        WrongValue{"preferredDisplayID", "4294967296"},
        WrongValue{"preferredDisplayID", "18446744073709551616"},
        WrongValue{"preferredDisplayID", "1.5"}, WrongValue{"preferredDisplayID", "1e300"},
        WrongValue{"preferredDisplayID", R"("1")"}, WrongValue{"preferredDisplayID", "true"}),
    byValue);

INSTANTIATE_TEST_SUITE_P(Booleans, WrongValueDecoding,
                         testing::Values(WrongValue{"autoScrollEnabled", "0"},
                                         WrongValue{"autoScrollEnabled", "1"},
                                         WrongValue{"autoScrollEnabled", R"("true")"},
                                         WrongValue{"hasCompletedOnboarding", "1.0"},
                                         WrongValue{"hasCompletedOnboarding", "[]"}),
                         byValue);

INSTANTIATE_TEST_SUITE_P(
    Structures, WrongValueDecoding,
    testing::Values(WrongValue{"enabledSourceTypes", R"("clipboard")"},
                    WrongValue{"enabledSourceTypes", R"({"clipboard": true})"},
                    WrongValue{"enabledSourceTypes", R"(["clipboard", "web"])"},
                    WrongValue{"enabledSourceTypes", R"(["clipboard", null])"},
                    WrongValue{"enabledSourceTypes", R"([["clipboard"]])"},
                    WrongValue{"enabledSourceTypes", "[0]"},
                    WrongValue{"appleNotesConfig", R"("x-coredata://7")"},
                    WrongValue{"appleNotesConfig", "[]"}, WrongValue{"appleNotesConfig", "{}"},
                    WrongValue{"appleNotesConfig", R"({"noteId": "7"})"},
                    WrongValue{"appleNotesConfig", R"({"noteName": "Talk"})"},
                    WrongValue{"appleNotesConfig", R"({"noteId": "7", "noteName": null})"},
                    WrongValue{"appleNotesConfig", R"({"noteId": 7, "noteName": "Talk"})"}),
    byValue);

INSTANTIATE_TEST_SUITE_P(Base64, WrongValueDecoding,
                         testing::Values(WrongValue{"obsidianBookmarkData", R"("AAH-_w==")"},
                                         WrongValue{"obsidianBookmarkData", R"("AAH+/w")"},
                                         WrongValue{"obsidianBookmarkData", R"("AAH+/w=")"},
                                         WrongValue{"obsidianBookmarkData", R"("AAH+\n/w==")"},
                                         WrongValue{"obsidianBookmarkData", R"("====")"},
                                         WrongValue{"obsidianBookmarkData", R"("AA=A")"},
                                         WrongValue{"obsidianBookmarkData", R"("äöüß")"},
                                         WrongValue{"obsidianBookmarkData", "[0, 1]"}),
                         byValue);

TEST(SettingsDecoding, NamesTheFirstOfSeveralWrongKeys) {
    EXPECT_EQ(decodingError(R"({"width": "x", "fontSize": "x"})"),
              u"Invalid value for \"fontSize\""_s);
}

} // namespace
} // namespace tessaline
