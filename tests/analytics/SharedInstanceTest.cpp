#include "analytics/SharedInstance.h"

#include "analytics/AnalyticsStage.h"
#include "analytics/TelemetryStage.h"
#include "support/FakeHttpPoster.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Counts its instances.
struct Counted {
    Counted() { ++made; }
    ~Counted() { ++destroyed; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    static inline int made = 0;
    static inline int destroyed = 0;
};

TEST(SharedInstanceTest, IsMadeAtItsFirstUseAndOnce) {
    Counted::made = Counted::destroyed = 0;
    {
        const SharedInstance<Counted> shared([] { return std::make_unique<Counted>(); });
        EXPECT_EQ(Counted::made, 0);
        const Counted* first = &SharedInstance<Counted>::get();
        EXPECT_EQ(&SharedInstance<Counted>::get(), first);
        EXPECT_EQ(Counted::made, 1);
        EXPECT_EQ(Counted::destroyed, 0);
    }
    EXPECT_EQ(Counted::destroyed, 1);
}

TEST(SharedInstanceTest, IsNotMadeWhenNobodyUsesIt) {
    Counted::made = 0;
    {
        const SharedInstance<Counted> shared([] { return std::make_unique<Counted>(); });
    }
    EXPECT_EQ(Counted::made, 0);
}

TEST(SharedInstanceDeathTest, EndsTheProgramOutsideOfTheApplicationsRun) {
    EXPECT_DEATH(Analytics::shared(), "A shared instance is used outside of the application's run");
    EXPECT_DEATH(TelemetryDeckClient::shared(), "A shared instance is used outside");
}

TEST(SharedInstanceTest, SendsWhatTheSharedRecorderRecords) {
    TelemetryStage telemetryStage;
    FakeHttpPoster network;
    AnalyticsStage stage;
    const SharedInstance<TelemetryDeckClient> client(
        [&] { return telemetryStage.makeClient(network); });
    const SharedInstance<Analytics> recorder([&] {
        return std::make_unique<Analytics>(
            Analytics::Setup{.platform = stage.platform,
                             .environment = stage.environment,
                             .signal =
                                 [](const QString& name, const Analytics::Properties& parameters) {
                                     TelemetryDeckClient::shared().signal(name, parameters);
                                 },
                             .historyPath = stage.path});
    });
    Analytics::shared().trackAppLaunch();
    Analytics::shared().trackAppTerminate();
    TelemetryDeckClient::shared().appWillTerminate();
    ASSERT_EQ(network.requests.size(), 1U);
    EXPECT_EQ(typesIn(network.requests[0].body),
              (QStringList{u"app_launch"_s, u"app_terminate"_s}));
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"app_launch"_s, u"app_terminate"_s}));
}

} // namespace
} // namespace tessaline
