#include "platform/linux/desktop/portal/PortalReport.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using State = PortalShortcuts::State;

TEST(PortalReportTest, IsWholeOnlyWithAGrantAndAKey) {
    EXPECT_TRUE(portalReport(State::granted, u"F9"_s, GestureReach::none).isWhole);
    EXPECT_FALSE(portalReport(State::granted, {}, GestureReach::none).isWhole);
    for (const auto state :
         {State::looking, State::absent, State::ungranted, State::asking, State::refused})
        EXPECT_FALSE(portalReport(state, {}, GestureReach::xWindows).isWhole);
}

TEST(PortalReportTest, NamesTheKeyInTheDesktopsWords) {
    const auto report = portalReport(State::granted, u"Hyper+Q"_s, GestureReach::none);
    EXPECT_TRUE(report.note.contains(u"Hyper+Q"_s));
    EXPECT_EQ(report.state, u"Available"_s);
}

TEST(PortalReportTest, OffersToAskWhereSomebodyCanBeAsked) {
    for (const auto state : {State::ungranted, State::refused})
        EXPECT_TRUE(portalReport(state, {}, GestureReach::none).canBeGranted);
    for (const auto state : {State::looking, State::absent, State::asking, State::granted})
        EXPECT_FALSE(portalReport(state, {}, GestureReach::none).canBeGranted);
}

TEST(PortalReportTest, SaysWhatElseToDoWhereTheDesktopGivesNoKeys) {
    for (const auto state : {State::absent, State::refused}) {
        const auto note = portalReport(state, {}, GestureReach::none).note;
        EXPECT_TRUE(note.contains(u"tessaline ctl toggle"_s)) << note.toStdString();
    }
}

TEST(PortalReportTest, TellsOverWhichWindowsGesturesWork) {
    const auto native = portalReport(State::granted, u"F9"_s, GestureReach::none);
    EXPECT_FALSE(native.gesturesAreSeen);
    EXPECT_EQ(native.reachOfGestures, u"Works over the prompter:"_s);
    const auto byXWayland = portalReport(State::absent, {}, GestureReach::xWindows);
    EXPECT_TRUE(byXWayland.gesturesAreSeen);
    EXPECT_EQ(byXWayland.reachOfGestures, u"Works over X11 windows:"_s);
    EXPECT_EQ(byXWayland.state, u"Over X11 windows only"_s);
}

} // namespace
} // namespace tessaline
