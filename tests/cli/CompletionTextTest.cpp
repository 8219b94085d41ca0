#include "cli/documents/CompletionText.h"

#include "cli/CommandTable.h"
#include "cli/documents/ShellCompletions.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(CompletionText, PutsASpaceBetweenWords) {
    EXPECT_EQ(joinedWords({}), QString());
    const std::vector<QStringView> words{u"slow", u"medium", u"fast"};
    EXPECT_EQ(joinedWords(words), u"slow medium fast"_s);
}

TEST(CompletionText, TakesTheFirstSentenceOnOneLine) {
    EXPECT_EQ(firstSentence(u"The width\n  in points. At most 4.5."), u"The width in points"_s);
    EXPECT_EQ(firstSentence(u"Version 1.5 only."), u"Version 1.5 only"_s);
    EXPECT_EQ(firstSentence(u"No full stop"), u"No full stop"_s);
}

TEST(FishCompletion, DescribesEveryCommandAndAction) {
    const QString completion = fishCompletion();
    const auto expectDescribed = [&](QStringView word, QStringView help) {
        const qsizetype offer = completion.indexOf("-a "_L1 + word.toString() + " -d "_L1);
        ASSERT_GE(offer, 0) << word.toUtf8().data();
        const QString line = completion.mid(offer).section(u'\n', 0, 0);
        const QString quoted = firstSentence(help).replace(u"'"_s, u"\\'"_s);
        EXPECT_TRUE(line.contains(u'\'' + quoted + u'\'')) << line.toStdString();
    };
    for (const CommandSpec& spec : commandSpecs()) {
        expectDescribed(spec.name, spec.summary);
        for (const ControlAction& action : spec.actions)
            expectDescribed(action.name, action.help);
    }
}

} // namespace
} // namespace tessaline
