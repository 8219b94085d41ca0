#include "faults/InputOutputFaults.h"
#include "support/CaseName.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const auto history = u"support/analytics.json"_s;
const auto putAside = u"support/analytics.json.unreadable"_s;
const QByteArray oldEvents = R"([
  { "name": "old", "timestamp": "2026-01-10T12:00:00Z", "properties": {} }
]
)";

const auto fileFaults = faultsOf({"open", "write", "fsync", "rename", "close"});
const auto folderFaults = faultsOf({"mkdir"});

class HistoryFlushFaults : public InputOutputFaults {
protected:
    /// What a flush said is what it did.
    void expectOldOrNewHistory(const Outcome& outcome) const {
        expectOldOrNew(outcome.files);
        if (outcome.files.count(history) > 0 &&
            outcome.files.at(history) == complete.files.at(history)) {
            EXPECT_EQ(outcome.output, "");
        } else {
            EXPECT_THAT(outcome.output, saysWhy("Failed to flush analytics: "));
        }
    }
};

TEST_P(HistoryFlushFaults, LeaveTheOldOrTheNewHistoryWhole) {
    put(history, oldEvents);
    failEachCall({u"flush"_s, pathOf(history)},
                 [this](const Outcome& outcome) { expectOldOrNewHistory(outcome); });
    EXPECT_TRUE(complete.files.at(history).contains("\"old\""));
    EXPECT_TRUE(complete.files.at(history).contains("\"new\""));
}

TEST_P(HistoryFlushFaults, AreMadeUpForByTheNextFlush) {
    put(history, oldEvents);
    failEachCall({u"flush-again"_s, pathOf(history)},
                 [this](const Outcome& outcome) { EXPECT_EQ(outcome.files, complete.files); });
}

TEST_P(HistoryFlushFaults, LoseNothingThatCouldNotBeUnderstood) {
    const QByteArray foreign = "[ { \"name\": \"of a later version\" } ]";
    put(history, foreign);
    failEachCall({u"flush"_s, pathOf(history)}, [&](const Outcome& outcome) {
        Files kept = outcome.files;
        EXPECT_EQ(kept[history] == foreign ? kept[history] : kept[putAside], foreign);
        if (kept[history] != complete.files[history]) {
            EXPECT_TRUE(kept[history] == foreign || kept[history].isEmpty());
            EXPECT_THAT(outcome.output, saysWhy("Failed to flush analytics: "));
        }
        for (const auto& [name, bytes] : outcome.files)
            EXPECT_EQ(complete.files.count(name), 1U) << name.toStdString();
    });
}

INSTANTIATE_TEST_SUITE_P(, HistoryFlushFaults, testing::ValuesIn(fileFaults), byValue);

using HistoryReadFaults = InputOutputFaults;

TEST_P(HistoryReadFaults, LoseNoEvent) {
    put(history, oldEvents);
    failEachCall({u"read-and-flush"_s, pathOf(history)}, [this](const Outcome& outcome) {
        if (outcome.files == complete.files) return;
        EXPECT_THAT(outcome.output, saysWhy("Failed to load analytics history: "));
        EXPECT_EQ(Files(outcome.files)[putAside], oldEvents);
        EXPECT_TRUE(Files(outcome.files)[history].contains("\"new\""));
    });
}

INSTANTIATE_TEST_SUITE_P(, HistoryReadFaults, testing::ValuesIn(faultsOf({"read"})), byValue);

using HistoryFolderFaults = HistoryFlushFaults;

TEST_P(HistoryFolderFaults, AreReported) {
    failEachCall({u"flush"_s, pathOf(history)},
                 [this](const Outcome& outcome) { expectOldOrNewHistory(outcome); });
}

INSTANTIATE_TEST_SUITE_P(, HistoryFolderFaults, testing::ValuesIn(folderFaults), byValue);

} // namespace
} // namespace tessaline
