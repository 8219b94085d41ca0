#include "macos/adapters/MacAdaptersFixture.h"
#include "platform/GlobalKeyMonitor.h"
#include "platform/macos/MacAdapters.h"

#include <memory>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::SizeIs;

class MacKeyMonitorTest : public MacAdaptersTest {
protected:
    auto start() {
        return monitor->start({},
                              [this, held = owner](const KeyEvent& key) { keys.push_back(key); });
    }

    std::unique_ptr<GlobalKeyMonitor> monitor = makeGlobalKeyMonitor();
    std::shared_ptr<int> owner = std::make_shared<int>();
    std::vector<KeyEvent> keys;
};

TEST_F(MacKeyMonitorTest, HearsKeysOfOtherApplications) {
    const auto registration = start();
    ASSERT_TRUE(registration);
    EXPECT_THAT(takeCalls(), ElementsAre(u"monitor 1024"_s));
    EXPECT_TRUE(pressElsewhere(
        {.characters = u"t"_s, .code = 17, .flags = 0x160000 | 0x10000 | 0x108, .isRepeat = true}));
    ASSERT_THAT(keys, SizeIs(1));
    EXPECT_EQ(keys[0].characters, u"t"_s);
    EXPECT_EQ(keys[0].keyCode, 17);
    EXPECT_EQ(keys[0].modifiers, Modifier::shift | Modifier::control | Modifier::command);
    EXPECT_TRUE(keys[0].isRepeat);
}

TEST_F(MacKeyMonitorTest, AsksForTheCharactersThatTheKeyHasWithCommandAlone) {
    const auto registration = start();
    takeCalls();
    pressElsewhere({.flags = 0x1E0000});
    EXPECT_THAT(takeCalls(), ElementsAre(u"charactersByApplyingModifiers:1048576"_s));
    pressElsewhere({.flags = 0xE0000});
    EXPECT_THAT(takeCalls(), ElementsAre(u"charactersByApplyingModifiers:0"_s));
    EXPECT_FALSE(keys.at(1).isRepeat);
}

TEST_F(MacKeyMonitorTest, HearsNothingAndHoldsNothingOnceItIsGone) {
    auto registration = start();
    EXPECT_EQ(owner.use_count(), 2);
    FakeObjectiveC::drainPool();
    takeCalls();
    registration.reset();
    EXPECT_THAT(takeCalls(), ElementsAre(u"remove monitor"_s));
    EXPECT_EQ(owner.use_count(), 1);
    EXPECT_FALSE(pressElsewhere({}));
}

TEST_F(MacKeyMonitorTest, IsNotThereWhereTheSystemRefuses) {
    mac.allowsKeyMonitors = false;
    EXPECT_FALSE(start());
    EXPECT_EQ(owner.use_count(), 1);
}

} // namespace
} // namespace tessaline
