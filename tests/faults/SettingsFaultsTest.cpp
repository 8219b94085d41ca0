#include "faults/InputOutputFaults.h"
#include "settings/SettingsCodec.h"
#include "support/CaseName.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::AnyOf;
using testing::StartsWith;

QByteArray defaults() {
    return encodeSettings(PersistedSettings()).value();
}

using SettingsSaveFaults = InputOutputFaults;

TEST_P(SettingsSaveFaults, LeaveTheOldOrTheNewSettingsWhole) {
    put(u"config.json"_s, defaults());
    failEachCall({u"save"_s, pathOf(u"config.json"_s)}, [this](const Outcome& outcome) {
        expectOldOrNew(outcome.files);
        if (outcome.files == complete.files) {
            EXPECT_EQ(outcome.output, "");
        } else {
            EXPECT_THAT(outcome.output, saysWhy("^❌ Failed to save config: "));
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, SettingsSaveFaults,
                         testing::ValuesIn(faultsOf({"open", "write", "fsync", "rename", "close"})),
                         byValue);

using SettingsLoadFaults = InputOutputFaults;

TEST_P(SettingsLoadFaults, LeaveTheFileAsItIs) {
    PersistedSettings settings;
    settings.fontSize = 30;
    put(u"config.json"_s, encodeSettings(settings).value());
    failEachCall({u"load"_s, pathOf(u"config.json"_s)}, [this](const Outcome& outcome) {
        Files files = outcome.files;
        const auto copy = files.find(u"config.json.unreadable"_s);
        if (copy != files.end()) {
            EXPECT_EQ(copy->second, before.at(u"config.json"_s));
            files.erase(copy);
        }
        EXPECT_EQ(files, before);
        EXPECT_THAT(outcome.output,
                    AnyOf("font size 30\n", saysWhy("^⚠️ Failed to load config: ")));
        EXPECT_NE(outcome.output, "font size 16\n");
    });
}

INSTANTIATE_TEST_SUITE_P(, SettingsLoadFaults,
                         testing::ValuesIn(faultsOf({"open", "read", "close"})), byValue);

} // namespace
} // namespace tessaline
