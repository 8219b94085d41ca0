#include "settings/SettingsCodec.h"

#include "settings/TemporaryHome.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <ostream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

QByteArray encoded(const PersistedSettings& settings) {
    QString error;
    const auto bytes = encodeSettings(settings, &error);
    EXPECT_TRUE(bytes.has_value()) << error.toStdString();
    return bytes.value_or(QByteArray());
}

TEST(SettingsEncoding, WritesTheDefaultsPrettyPrintedInKeyOrderWithoutOptionalKeys) {
    const TemporaryHome home;
    EXPECT_EQ(encoded(PersistedSettings()),
              "{\n"
              "  \"notePath\": \"" +
                  home.path().toUtf8() +
                  "/Library/Mobile Documents/com~apple~CloudDocs/Obsidian/notch.md\",\n"
                  "  \"fontSize\": 16.0,\n"
                  "  \"width\": 450.0,\n"
                  "  \"height\": 256.0,\n"
                  "  \"xOffset\": 0.0,\n"
                  "  \"scrollSpeed\": 0.0,\n"
                  "  \"lastNonZeroScrollSpeed\": 2.0,\n"
                  "  \"autoScrollEnabled\": false,\n"
                  "  \"scrollRate\": \"medium\",\n"
                  "  \"hasCompletedOnboarding\": false,\n"
                  "  \"activeSourceType\": \"clipboard\",\n"
                  "  \"enabledSourceTypes\": [\n"
                  "    \"clipboard\"\n"
                  "  ]\n"
                  "}\n");
}

TEST(SettingsEncoding, WritesEveryKeyInOrderWhenAllAreSet) {
    PersistedSettings settings;
    settings.notePath = u"/talks/über \"uns\".md"_s;
    settings.fontSize = 17.5;
    settings.xOffset = -120;
    settings.autoScrollEnabled = true;
    settings.scrollRate = ScrollRate::fast;
    settings.activeSourceType = SourceType::obsidian;
    settings.enabledSourceTypes = {SourceType::clipboard, SourceType::appleNotes,
                                   SourceType::obsidian};
    settings.appleNotesConfig = {u"x-coredata://7"_s, u"Talk"_s};
    settings.obsidianBookmarkData = QByteArray("\x00\x01\xfe\xff", 4);
    settings.preferredDisplayID = 4294967295U;
    EXPECT_EQ(encoded(settings), "{\n"
                                 "  \"notePath\": \"/talks/über \\\"uns\\\".md\",\n"
                                 "  \"fontSize\": 17.5,\n"
                                 "  \"width\": 450.0,\n"
                                 "  \"height\": 256.0,\n"
                                 "  \"xOffset\": -120.0,\n"
                                 "  \"scrollSpeed\": 0.0,\n"
                                 "  \"lastNonZeroScrollSpeed\": 2.0,\n"
                                 "  \"autoScrollEnabled\": true,\n"
                                 "  \"scrollRate\": \"fast\",\n"
                                 "  \"hasCompletedOnboarding\": false,\n"
                                 "  \"activeSourceType\": \"obsidian\",\n"
                                 "  \"appleNotesConfig\": {\n"
                                 "    \"noteId\": \"x-coredata://7\",\n"
                                 "    \"noteName\": \"Talk\"\n"
                                 "  },\n"
                                 "  \"enabledSourceTypes\": [\n"
                                 "    \"obsidian\",\n"
                                 "    \"appleNotes\",\n"
                                 "    \"clipboard\"\n"
                                 "  ],\n"
                                 "  \"obsidianBookmarkData\": \"AAH+/w==\",\n"
                                 "  \"preferredDisplayID\": 4294967295\n"
                                 "}\n");
}

struct FieldCase {
    const char* name;
    std::function<void(PersistedSettings&)> change;
};

std::ostream& operator<<(std::ostream& out, const FieldCase& test) {
    return out << test.name;
}

class FieldRoundTrip : public testing::TestWithParam<FieldCase> {};

TEST_P(FieldRoundTrip, ComesBackAsWritten) {
    PersistedSettings settings;
    GetParam().change(settings);
    ASSERT_NE(settings, PersistedSettings());
    EXPECT_EQ(decodeSettings(encoded(settings)), settings);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, FieldRoundTrip,
    testing::Values(
        FieldCase{"NotePath", [](auto& s) { s.notePath = u"/a \\ \"b\"\n\u0001/🎤é/"_s; }},
        FieldCase{"EmptyNotePath", [](auto& s) { s.notePath.clear(); }},
        FieldCase{"FontSize", [](auto& s) { s.fontSize = 0.1; }},
        FieldCase{"Width", [](auto& s) { s.width = 1.0 / 3; }},
        FieldCase{"Height", [](auto& s) { s.height = std::numeric_limits<double>::max(); }},
        FieldCase{"XOffset", [](auto& s) { s.xOffset = -5e-324; }},
        FieldCase{"ScrollSpeed", [](auto& s) { s.scrollSpeed = 4.999999999999999; }},
        FieldCase{"LastNonZeroScrollSpeed", [](auto& s) { s.lastNonZeroScrollSpeed = 0.5; }},
        FieldCase{"AutoScrollEnabled", [](auto& s) { s.autoScrollEnabled = true; }},
        FieldCase{"ScrollRateSlow", [](auto& s) { s.scrollRate = ScrollRate::slow; }},
        FieldCase{"ScrollRateFast", [](auto& s) { s.scrollRate = ScrollRate::fast; }},
        FieldCase{"HasCompletedOnboarding", [](auto& s) { s.hasCompletedOnboarding = true; }},
        FieldCase{"ActiveSourceType",
                  [](auto& s) {
                      s.enabledSourceTypes.insert(SourceType::appleNotes);
                      s.activeSourceType = SourceType::appleNotes;
                  }},
        FieldCase{"AppleNotesConfig",
                  [](auto& s) {
                      s.appleNotesConfig = {u"x-coredata://7"_s, QString()};
                  }},
        FieldCase{"EnabledSourceTypes",
                  [](auto& s) { s.enabledSourceTypes.insert(SourceType::obsidian); }},
        FieldCase{"ObsidianBookmarkData",
                  [](auto& s) { s.obsidianBookmarkData = QByteArray("\0\xff=", 3); }},
        FieldCase{"EmptyObsidianBookmarkData",
                  [](auto& s) { s.obsidianBookmarkData = QByteArray(); }},
        FieldCase{"PreferredDisplayID", [](auto& s) { s.preferredDisplayID = 0; }},
        FieldCase{"GreatestPreferredDisplayID",
                  [](auto& s) { s.preferredDisplayID = 4294967295U; }}),
    byMember<&FieldCase::name>);

struct DoubleField {
    const char* key;
    double PersistedSettings::*field;
};

std::ostream& operator<<(std::ostream& out, const DoubleField& test) {
    return out << test.key;
}

class NonFiniteEncoding : public testing::TestWithParam<DoubleField> {};

TEST_P(NonFiniteEncoding, FailsAndNamesTheKey) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {std::nan(""), infinity, -infinity}) {
        PersistedSettings settings;
        settings.*GetParam().field = value;
        QString error;
        EXPECT_EQ(encodeSettings(settings, &error), std::nullopt);
        EXPECT_EQ(error, u"\"%1\" is not a finite number"_s.arg(QLatin1String(GetParam().key)));
    }
}

INSTANTIATE_TEST_SUITE_P(Fields, NonFiniteEncoding,
                         testing::Values(DoubleField{"fontSize", &PersistedSettings::fontSize},
                                         DoubleField{"width", &PersistedSettings::width},
                                         DoubleField{"height", &PersistedSettings::height},
                                         DoubleField{"xOffset", &PersistedSettings::xOffset},
                                         DoubleField{"scrollSpeed",
                                                     &PersistedSettings::scrollSpeed},
                                         DoubleField{"lastNonZeroScrollSpeed",
                                                     &PersistedSettings::lastNonZeroScrollSpeed}),
                         byMember<&DoubleField::key>);

TEST(SettingsEncoding, ReplacesALoneSurrogateSoThatTheFileStaysReadable) {
    PersistedSettings settings;
    settings.notePath = u"a"_s + QChar(0xD83C) + u"b"_s;
    const auto reread = decodeSettings(encoded(settings));
    ASSERT_TRUE(reread.has_value());
    EXPECT_EQ(reread->notePath.size(), 3);
    EXPECT_FALSE(reread->notePath[1].isSurrogate());
}

} // namespace
} // namespace tessaline
