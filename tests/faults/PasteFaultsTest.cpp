#include "faults/InputOutputFaults.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const auto content = u"support/clipboard-content.md"_s;

class PasteFaults : public InputOutputFaults {
protected:
    /// Whether the text was kept makes no difference to the reader, and nothing is said about it.
    void pasteWithFaults(const std::string& shownAtFirst) {
        failEachCall({u"paste"_s, pathOf(content)}, [&](const Outcome& outcome) {
            expectOldOrNew(outcome.files);
            EXPECT_EQ(outcome.output, shownAtFirst + " is shown\nnew is shown\n"
                                                     "20000 characters are pasted\n");
        });
        EXPECT_EQ(complete.files.at(content).size(), 20000);
    }
};

TEST_P(PasteFaults, LeaveTheOldOrTheNewTextWholeAndShowTheNewOne) {
    put(content, "old");
    pasteWithFaults("old");
}

INSTANTIATE_TEST_SUITE_P(, PasteFaults,
                         testing::ValuesIn(faultsOf({"open", "write", "fsync", "rename", "close"})),
                         faultName);

using PasteFolderFaults = PasteFaults;

TEST_P(PasteFolderFaults, ShowTheText) {
    pasteWithFaults("PLA");
}

INSTANTIATE_TEST_SUITE_P(, PasteFolderFaults, testing::ValuesIn(faultsOf({"mkdir"})), faultName);

} // namespace
} // namespace tessaline
