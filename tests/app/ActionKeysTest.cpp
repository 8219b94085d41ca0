#include "app/ActionKeys.h"

#include "AppDelegateFixture.h"
#include "app/RemoteCommands.h"
#include "prompter/PrompterWindow.h"

namespace tessaline {
namespace {

using Action = GlobalKeyMonitor::Action;

class ActionKeysTest : public AppDelegateFixture {
protected:
    void press(Action action) {
        globalKeys.act(action);
        mainQueue.runAll();
    }

    RemoteCommands commands{launch(), scriptTasks, mainQueue};
    std::unique_ptr<ActionKeys> keys =
        std::make_unique<ActionKeys>(*delegate, commands, globalKeys);
};

TEST_F(ActionKeysTest, ChangeTheSpeedByAStep) {
    const double before = delegate->currentSettings().scrollSpeed();
    press(Action::faster);
    EXPECT_EQ(delegate->currentSettings().scrollSpeed(), before + 0.25);
    press(Action::slower);
    EXPECT_EQ(delegate->currentSettings().scrollSpeed(), before);
}

TEST_F(ActionKeysTest, HideThePrompterThatIsSeenAndShowItAgain) {
    ASSERT_TRUE(prompter()->isVisible());
    press(Action::showOrHide);
    EXPECT_FALSE(prompter()->isVisible());
    press(Action::showOrHide);
    EXPECT_TRUE(prompter()->isVisible());
}

TEST_F(ActionKeysTest, DoNothingAnyMoreWhenTheyAreGone) {
    keys.reset();
    EXPECT_EQ(globalKeys.act, nullptr);
}

} // namespace
} // namespace tessaline
