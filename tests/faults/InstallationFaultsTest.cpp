#include "faults/InputOutputFaults.h"
#include "support/CaseName.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::AnyOf;
using testing::HasSubstr;

const auto plugin = u"vault/.obsidian/plugins/obsidian-tessaline/"_s;
const auto list = u"vault/.obsidian/community-plugins.json"_s;
const std::string warning = "Warning: Could not enable plugin in config: ";
const std::string success = "success: Plugin installed in \"vault\".\n"
                            "Restart Obsidian to activate it.\n";

class InstallationFaults : public InputOutputFaults {
protected:
    InstallationFaults() {
        put(u".config/obsidian/obsidian.json"_s,
            "{\"vaults\":{\"v\":{\"path\":\"" + pathOf(u"vault"_s).toUtf8() + "\",\"ts\":1}}}");
        put(u"resources/ObsidianPlugin/main.js"_s, QByteArray(20000, 'x'));
        put(u"resources/ObsidianPlugin/manifest.json"_s, "the new manifest");
        put(list, R"(["other"])");
    }

    void putOldPlugin() const {
        put(plugin + u"main.js"_s, "the old program");
        put(plugin + u"manifest.json"_s, "the old manifest");
    }

    bool isNew(const Outcome& outcome, const QString& name) const {
        const auto file = outcome.files.find(name);
        return file != outcome.files.end() && file->second == complete.files.at(name);
    }

    /// The user is told that it worked when it did, and else why not.
    void expectTruth(const Outcome& outcome) const {
        if (outcome.output.find("success: ") == std::string::npos) {
            EXPECT_THAT(outcome.output,
                        AnyOf(saysWhy("^failure: Failed to install plugin: /[^\n]+: "),
                              HasSubstr("failure: Could not find an Obsidian vault.")));
            EXPECT_FALSE(isNew(outcome, list));
            return;
        }
        EXPECT_THAT(outcome.output, HasSubstr(success));
        EXPECT_TRUE(isNew(outcome, plugin + u"main.js"_s));
        EXPECT_TRUE(isNew(outcome, plugin + u"manifest.json"_s));
        const bool isWarned = outcome.output.starts_with(warning);
        EXPECT_NE(isWarned, isNew(outcome, list));
    }

    /// An empty folder stays when it is removing it that fails.
    static Files withoutWorkshops(Files files) {
        if (GetParam().call != "unlink") return files;
        std::erase_if(files, [](const auto& entry) {
            return entry.first.contains(u"/.tessaline-"_s) && entry.first.endsWith(u'/');
        });
        return files;
    }
};

TEST_P(InstallationFaults, LeaveEachFileOfTheOldOrTheNewPluginWhole) {
    putOldPlugin();
    failEachCall({u"install"_s, folder.path()}, [this](const Outcome& outcome) {
        expectOldOrNew(withoutWorkshops(outcome.files));
        expectTruth(outcome);
    });
    EXPECT_EQ(complete.output, success);
}

INSTANTIATE_TEST_SUITE_P(, InstallationFaults,
                         testing::ValuesIn(faultsOf({"open", "read", "write", "fsync", "rename",
                                                     "close", "mkdir", "unlink"})),
                         byValue);

using FirstInstallationFaults = InstallationFaults;

TEST_P(FirstInstallationFaults, LeaveNoHalfPluginFile) {
    failEachCall({u"install"_s, folder.path()}, [this](const Outcome& outcome) {
        expectOldOrNew(withoutWorkshops(outcome.files));
        expectTruth(outcome);
    });
    EXPECT_EQ(complete.output, success);
}

INSTANTIATE_TEST_SUITE_P(, FirstInstallationFaults,
                         testing::ValuesIn(faultsOf({"write", "rename", "mkdir"})), byValue);

using PermittedInstallationFaults = InstallationFaults;

TEST_P(PermittedInstallationFaults, AreMadeUpForOnceTheUserGrantsAccess) {
    failEachCall({u"install-with-access"_s, folder.path()}, [this](const Outcome& outcome) {
        expectOldOrNew(withoutWorkshops(outcome.files));
        expectTruth(outcome);
        // Without a vault there is nothing to grant access to.
        if (GetParam().lasts || outcome.output.find("find an Obsidian vault") != std::string::npos)
            return;
        EXPECT_THAT(outcome.output, HasSubstr(success));
    });
}

INSTANTIATE_TEST_SUITE_P(, PermittedInstallationFaults,
                         testing::ValuesIn(faultsOf({"open", "write", "rename", "mkdir"})),
                         byValue);

} // namespace
} // namespace tessaline
