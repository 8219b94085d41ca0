#include "sources/obsidian/VaultRegistry.h"

#include "support/CaseName.h"
#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;

namespace tessaline {
namespace {

std::optional<QString> vaultIn(const QByteArray& registry) {
    const auto vaults = parseVaultRegistry(registry);
    return vaults ? preferredVault(*vaults) : std::nullopt;
}

TEST(VaultRegistryFile, NamesVaultsInItsOwnOrder) {
    EXPECT_THAT(
        parseVaultRegistry(R"({"frame":"custom","vaults":{
                    "ff":{"path":"/z","ts":1680000000123,"open":true},
                    "00":{"path":"/a","ts":2.5},
                    "7":{"path":"/b"}}})"),
        Optional(ElementsAre(VaultInfo{u"/z"_s, 1680000000123.0, true},
                             VaultInfo{u"/a"_s, 2.5, false}, VaultInfo{u"/b"_s, 0, false})));
}

TEST(VaultRegistryFile, MayHoldSpacesQuotesAndUnicodeInPaths) {
    EXPECT_EQ(vaultIn(R"({"vaults":{"a":{"path":"/home/J\u00fcrgen \"J\" O'Neil/メモ 📝"}}})"),
              u"/home/Jürgen \"J\" O'Neil/メモ 📝"_s);
}

TEST(VaultRegistryFile, LeavesOutWhatHasNoPath) {
    EXPECT_THAT(parseVaultRegistry(R"({"vaults":{"a":{"ts":9,"open":true},"b":{"path":7},"c":null,
                    "d":"/d","e":["/e"],"f":{"path":"/f"}}})"),
                Optional(ElementsAre(VaultInfo{u"/f"_s, 0, false})));
}

TEST(VaultRegistryFile, LeavesOutWhatNobodyCanUse) {
    EXPECT_THAT(parseVaultRegistry(R"({"x":-1e999,"vaults":{"a":{"path":"/\ud83c"},
                    "b":{"path":"/b","ts":1e400,"name":"\udfa4"}}})"),
                Optional(ElementsAre(VaultInfo{u"/b"_s, 0, false})));
}

TEST(VaultRegistryFile, ReplacesValuesOfAnotherKind) {
    EXPECT_THAT(parseVaultRegistry(R"({"vaults":{"a":{"path":"/a","ts":"5","open":1}}})"),
                Optional(ElementsAre(VaultInfo{u"/a"_s, 0, false})));
}

TEST(VaultRegistryFile, TakesNoBooleanForATime) {
    EXPECT_THAT(parseVaultRegistry(R"({"vaults":{"a":{"path":"/a","ts":true}}})"),
                Optional(ElementsAre(VaultInfo{u"/a"_s, 0, false})));
}

class OtherRegistryFile : public ::testing::TestWithParam<const char*> {};

TEST_P(OtherRegistryFile, YieldsNothing) {
    EXPECT_EQ(parseVaultRegistry(GetParam()), std::nullopt);
    EXPECT_EQ(vaultIn(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Such, OtherRegistryFile,
                         ::testing::Values("", "null", "[]", "{}", R"({"vaults":null})",
                                           R"({"vaults":[{"path":"/a"}]})", R"({"vaults":"/a"})",
                                           R"({"vaults":{"a":{"path":"/a"}})",
                                           R"({"vaults":{"a":{"path":"/a"}}}x)",
                                           "{\"vaults\":{\"a\":{\"path\":\"/\xFF\"}}}"),
                         byValue);

TEST(VaultRegistryFile, EndsWhereItsObjectEnds) {
    const QByteArray registry = R"({"vaults":{"a":{"path":"/a"}}})";
    EXPECT_EQ(vaultIn(registry + "\r\n"), u"/a"_s);
    EXPECT_EQ(vaultIn(registry + '\0'), std::nullopt);
    EXPECT_EQ(vaultIn(registry + '\0' + registry), std::nullopt);
}

TEST(VaultRegistryFile, MayNameNoVault) {
    EXPECT_THAT(parseVaultRegistry(R"({"vaults":{}})"), Optional(IsEmpty()));
    EXPECT_EQ(vaultIn(R"({"vaults":{}})"), std::nullopt);
}

TEST(VaultRegistryFile, MayNestAsDeepAsPeopleDo) {
    const auto nested = [](qsizetype depth) {
        return "{\"vaults\":{\"a\":{\"path\":\"/a\",\"x\":" + QByteArray(depth, '[') +
               QByteArray(depth, ']') + "}}}";
    };
    EXPECT_EQ(vaultIn(nested(500)), u"/a"_s);
    EXPECT_EQ(vaultIn(nested(100'000)), std::nullopt);
    EXPECT_EQ(vaultIn(QByteArray(100'000, '[')), std::nullopt);
}

TEST(PreferredVault, IsTheMostRecentOneWhenNoneIsOpen) {
    EXPECT_EQ(vaultIn(R"({"vaults":{"a":{"path":"/100","ts":100},"b":{"path":"/200","ts":200}}})"),
              u"/200"_s);
    EXPECT_EQ(vaultIn(R"({"vaults":{"a":{"path":"/200","ts":200},"b":{"path":"/100","ts":100}}})"),
              u"/200"_s);
}

TEST(PreferredVault, IsAnOpenOneRatherThanANewerOne) {
    EXPECT_EQ(vaultIn(R"({"vaults":{"a":{"path":"/new","ts":200},
                          "b":{"path":"/open","ts":100,"open":true}}})"),
              u"/open"_s);
}

TEST(PreferredVault, IsTheFirstOfSeveralOpenOrEquallyRecentOnes) {
    EXPECT_EQ(vaultIn(R"({"vaults":{"b":{"path":"/1","open":true,"ts":1},
                          "a":{"path":"/2","open":true,"ts":2}}})"),
              u"/1"_s);
    EXPECT_EQ(vaultIn(R"({"vaults":{"b":{"path":"/1"},"a":{"path":"/2"}}})"), u"/1"_s);
}

class VaultRegistryPlaces : public ::testing::Test {
protected:
    void put(const QString& place, const QByteArray& bytes) const {
        const QString folder = home.filePath(place);
        ASSERT_TRUE(QDir().mkpath(folder));
        putFile(folder + "/obsidian.json"_L1, bytes);
    }

    static QByteArray naming(const QByteArray& vault) {
        return R"({"vaults":{"a":{"path":")" + vault + R"("}}})";
    }

    QTemporaryDir home;
    const VaultRegistry registry{home.path()};
};

TEST_F(VaultRegistryPlaces, MayAllBeEmpty) {
    EXPECT_EQ(registry.findVault(), std::nullopt);
}

TEST_F(VaultRegistryPlaces, AreLookedAtInOrder) {
    put(u"snap/obsidian/current/.config/obsidian"_s, naming("/snap"));
    EXPECT_EQ(registry.findVault(), u"/snap"_s);
    put(u".var/app/md.obsidian.Obsidian/config/obsidian"_s, naming("/flatpak"));
    EXPECT_EQ(registry.findVault(), u"/flatpak"_s);
    put(u".config/obsidian"_s, naming("/native"));
    EXPECT_EQ(registry.findVault(), u"/native"_s);
    put(u"Library/Application Support/obsidian"_s, naming("/described"));
    EXPECT_EQ(registry.findVault(), u"/described"_s);
}

TEST_F(VaultRegistryPlaces, IncludeTheFolderThatTheUserHasConfigurationsIn) {
    const VaultRegistry chosen(home.path(), home.filePath(u"my configurations"_s));
    put(u".config/obsidian"_s, naming("/native"));
    EXPECT_EQ(chosen.findVault(), u"/native"_s);
    put(u"my configurations/obsidian"_s, naming("/chosen"));
    EXPECT_EQ(chosen.findVault(), u"/chosen"_s);
    EXPECT_EQ(registry.findVault(), u"/native"_s);
    put(u"Library/Application Support/obsidian"_s, naming("/described"));
    EXPECT_EQ(chosen.findVault(), u"/described"_s);
}

TEST_F(VaultRegistryPlaces, ArePassedOverWhenTheyNameNoVault) {
    put(u"Library/Application Support/obsidian"_s, "not JSON");
    put(u".config/obsidian"_s, R"({"vaults":{}})");
    put(u".var/app/md.obsidian.Obsidian/config/obsidian"_s, naming("/flatpak"));
    EXPECT_EQ(registry.findVault(), u"/flatpak"_s);
}

TEST_F(VaultRegistryPlaces, AreReadAnewEachTime) {
    put(u".config/obsidian"_s, naming("/one"));
    EXPECT_EQ(registry.findVault(), u"/one"_s);
    put(u".config/obsidian"_s, naming("/two"));
    EXPECT_EQ(registry.findVault(), u"/two"_s);
}

TEST_F(VaultRegistryPlaces, MayNameTensOfThousandsOfVaults) {
    QByteArray bytes = "{\"vaults\":{";
    for (int number = 0; number < 50'000; ++number) {
        const QByteArray name = QByteArray::number(number);
        bytes += '"' + name + "\":{\"path\":\"/vaults/" + name + "\",\"ts\":" + name + "},";
    }
    put(u".config/obsidian"_s, bytes + R"("last":{"path":"/last","open":true}}})");
    EXPECT_EQ(registry.findVault(), u"/last"_s);
}

TEST_F(VaultRegistryPlaces, MayHoldAFileOfTheGreatestSize) {
    const QByteArray file = naming("/vault");
    const QByteArray spaces((16 << 20) - file.size(), ' ');
    put(u".config/obsidian"_s, file + spaces);
    EXPECT_EQ(registry.findVault(), u"/vault"_s);
    put(u".config/obsidian"_s, file + spaces + ' ');
    EXPECT_EQ(registry.findVault(), std::nullopt);
}

class VaultRegistryNotAFile : public VaultRegistryPlaces,
                              public ::testing::WithParamInterface<NotAFile> {};

TEST_P(VaultRegistryNotAFile, YieldsNothing) {
    put(u".config/obsidian"_s, "");
    placeNotAFile(GetParam(), home.filePath(u".config/obsidian/obsidian.json"_s));
    EXPECT_EQ(registry.findVault(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(By, VaultRegistryNotAFile, ::testing::ValuesIn(allNotAFile), byValue);

} // namespace
} // namespace tessaline
