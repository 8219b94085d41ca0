#include "faults/InputOutputFaults.h"
#include "support/CaseName.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::EndsWith;

const auto content = u"support/clipboard-content.md"_s;

class PasteFaults : public InputOutputFaults {
protected:
    /// Whether the text was kept makes no difference to the reader. The log tells why it was not.
    void pasteWithFaults(const std::string& shownAtFirst) {
        const std::string shown =
            shownAtFirst + " is shown\nnew is shown\n20000 characters are pasted\n";
        failEachCall({u"paste"_s, pathOf(content)}, [&](const Outcome& outcome) {
            expectOldOrNew(outcome.files);
            EXPECT_THAT(outcome.output, EndsWith(shown));
            if (outcome.files == complete.files) {
                EXPECT_EQ(outcome.output, shown);
            } else {
                EXPECT_THAT(outcome.output,
                            saysWhy("The pasted text is not kept for the next start: "));
            }
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
                         byValue);

using PasteFolderFaults = PasteFaults;

TEST_P(PasteFolderFaults, ShowTheText) {
    pasteWithFaults("PLA");
}

INSTANTIATE_TEST_SUITE_P(, PasteFolderFaults, testing::ValuesIn(faultsOf({"mkdir"})), byValue);

} // namespace
} // namespace tessaline
