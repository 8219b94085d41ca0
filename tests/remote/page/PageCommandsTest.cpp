#include "remote/page/PageCommands.h"
#include "cli/ControlActions.h"
#include "support/CaseName.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

TEST(PageCommands, AreTheWordsOfTheCommandLine) {
    EXPECT_EQ(pageCommand(u"toggle"_s), (ControlRequest{ControlCommand::toggle, {}}));
    EXPECT_EQ(pageCommand(u"heading 3"_s), (ControlRequest{ControlCommand::heading, u"3"_s}));
    EXPECT_EQ(pageCommand(u"scroll -12.5"_s), (ControlRequest{ControlCommand::scroll, u"-12.5"_s}));
}

TEST(PageCommands, AreCheckedAsThereToo) {
    for (const QString& wrong :
         {u""_s, u" "_s, u"Toggle"_s, u"toggle now"_s, u"heading 0"_s, u"heading nan"_s,
          u"heading"_s, u"scroll 1e300"_s, u"toggle\n"_s, u"toggle "_s, u"{\"a\":1}"_s,
          QString(longestPageMessage, u'x'), u"\0toggle"_s}) {
        EXPECT_EQ(pageCommand(wrong), std::nullopt) << nameOfText(wrong);
    }
}

TEST(PageCommands, ReachNothingButTheReading) {
    const QStringList allowed{u"toggle"_s,
                              u"play"_s,
                              u"pause"_s,
                              u"faster"_s,
                              u"slower"_s,
                              u"up"_s,
                              u"down"_s,
                              u"scroll"_s,
                              u"top"_s,
                              u"show"_s,
                              u"hide"_s,
                              u"next-heading"_s,
                              u"previous-heading"_s,
                              u"heading"_s,
                              u"paragraph"_s,
                              u"black"_s};
    const QStringList arguments{u""_s,           u" 1"_s,      u" 50"_s,       u" on"_s,
                                u" words 150"_s, u" none"_s,   u" second"_s,   u" stop"_s,
                                u" default"_s,   u" medium"_s, u" clipboard"_s};
    for (const ControlAction& action : controlActions()) {
        bool isUnderstood = false;
        for (const QString& argument : arguments)
            isUnderstood = isUnderstood || pageCommand(action.name.toString() + argument);
        EXPECT_EQ(isUnderstood, allowed.contains(action.name))
            << nameOfText(action.name.toString());
    }
}

} // namespace tessaline
