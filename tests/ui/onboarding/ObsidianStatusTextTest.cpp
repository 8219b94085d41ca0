#include "ui/onboarding/ObsidianStatusText.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Row {
    ObsidianStatusText state;
    QString text;
};

class ObsidianStatus : public testing::TestWithParam<Row> {};

TEST_P(ObsidianStatus, SaysWhatIsMissingFirst) {
    EXPECT_EQ(GetParam().state.text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ObsidianStatus,
    testing::Values(
        Row{{}, u"Obsidian not detected on this computer"_s},
        Row{{.vaultFound = true, .sourceEnabled = true},
            u"Obsidian not detected on this computer"_s},
        Row{{.appFound = true}, u"No Obsidian vault found"_s},
        Row{{.appFound = true, .sourceEnabled = true}, u"No Obsidian vault found"_s},
        Row{{.appFound = true, .vaultFound = true},
            u"Send notes from Obsidian straight into the prompter"_s},
        Row{{.appFound = true, .vaultFound = true, .pluginInstalled = true, .pluginEnabled = true},
            u"Send notes from Obsidian straight into the prompter"_s},
        Row{{.appFound = true, .vaultFound = true, .sourceEnabled = true}, u"Plugin not found"_s},
        Row{{.appFound = true, .vaultFound = true, .sourceEnabled = true, .pluginEnabled = true},
            u"Plugin not found"_s},
        Row{{.appFound = true, .vaultFound = true, .sourceEnabled = true, .pluginInstalled = true},
            u"Plugin installed but disabled in Obsidian"_s},
        Row{{true, true, true, true, true}, u"Plugin active ✓"_s}),
    byMember<&Row::text>);

TEST(ObsidianStatusText, NeedsNoApplicationOnceTheVaultIsKnown) {
    EXPECT_EQ(ObsidianStatusText{.sourceEnabled = true}.textWithVault(), u"Plugin not found"_s);
    EXPECT_EQ(ObsidianStatusText{}.textWithVault(),
              u"Send notes from Obsidian straight into the prompter"_s);
}

} // namespace
} // namespace tessaline
