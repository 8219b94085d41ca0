#include "macos/adapters/FakeMac.h"
#include "macos/adapters/native/PlantedMistakes.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// Whether the tests of the adapters would notice what they are there for.
class ObjectiveCTest : public ::testing::Test {
protected:
    ObjectiveCTest() { startFakeMac(); }
    ~ObjectiveCTest() override { FakeObjectiveC::reset(); }
    ObjectiveCTest(const ObjectiveCTest&) = delete;
    ObjectiveCTest& operator=(const ObjectiveCTest&) = delete;
};

TEST_F(ObjectiveCTest, FindsNothingWrongWhereNothingIs) {
    endFakeMac();
    EXPECT_THAT(FakeObjectiveC::livingObjects(), IsEmpty());
    EXPECT_THAT(FakeObjectiveC::mistakes(), IsEmpty());
}

TEST_F(ObjectiveCTest, NoticesAReferenceThatIsKeptForEver) {
    PlantedMistakes::forgetAnObject();
    endFakeMac();
    EXPECT_THAT(FakeObjectiveC::livingObjects(), ElementsAre("NSURL /forgotten"));
}

TEST_F(ObjectiveCTest, NoticesAReferenceThatIsReleasedTwice) {
    PlantedMistakes::releaseAnObjectTwice();
    EXPECT_THAT(FakeObjectiveC::mistakes(), ElementsAre("an object that is gone is released"));
}

TEST_F(ObjectiveCTest, NoticesAMessageToAnObjectThatIsGone) {
    PlantedMistakes::useAnObjectThatIsGone();
    ASSERT_THAT(FakeObjectiveC::mistakes(), Not(IsEmpty()));
    EXPECT_THAT(FakeObjectiveC::mistakes()[0], HasSubstr("an object that is gone is"));
}

TEST_F(ObjectiveCTest, NoticesAMessageThatNobodyUnderstands) {
    PlantedMistakes::askForWhatNobodyUnderstands();
    EXPECT_THAT(FakeObjectiveC::mistakes(), ElementsAre("NSString does not understand isEqual:"));
}

} // namespace
} // namespace tessaline
