#include "analytics/Analytics.h"

#include "analytics/AnalyticsStage.h"
#include "analytics/EventHistory.h"
#include "support/PrintQt.h"
#include "support/RecordedLog.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Recorders of the same user on several displays, with one file.
class AnalyticsInstances : public testing::Test {
protected:
    void flush(Analytics& recorder) {
        recorder.flush();
        stage.historyTasks.runAll();
    }

    void recordAndFlush(Analytics& recorder, const QString& name) {
        recorder.record({.name = name});
        flush(recorder);
    }

    AnalyticsStage stage;
    const RecordedLog log;
    std::unique_ptr<Analytics> first = stage.makeRecorder();
    std::unique_ptr<Analytics> second = stage.makeRecorder();
};

TEST_F(AnalyticsInstances, KeepEachOthersEvents) {
    recordAndFlush(*first, u"a"_s);
    recordAndFlush(*second, u"b"_s);
    first->record({.name = u"c"_s});
    recordAndFlush(*first, u"d"_s);
    flush(*second);
    second->trackAppTerminate();
    first->trackAppTerminate();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"app_terminate"_s,
                                                u"app_terminate"_s}));
    EXPECT_EQ(log.entries(), QStringList());
}

TEST_F(AnalyticsInstances, KeepWhatTheyCouldNotWriteBeforeTheOtherDid) {
    const QString support = QFileInfo(stage.path).path();
    putFile(support, "in the way");
    recordAndFlush(*first, u"a"_s);
    EXPECT_EQ(log.entries().size(), 1);
    ASSERT_TRUE(QFile::remove(support));
    recordAndFlush(*second, u"b"_s);
    recordAndFlush(*first, u"c"_s);
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"b"_s, u"a"_s, u"c"_s}));
}

TEST_F(AnalyticsInstances, PutAsideWhatAnotherProgramMadeOfTheFile) {
    recordAndFlush(*first, u"a"_s);
    putFile(stage.path, "not a history");
    recordAndFlush(*first, u"b"_s);
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(fileBytes(stage.path + u".unreadable"_s), "not a history");
    EXPECT_EQ(log.entries().size(), 1);
}

// Only a lock between processes keeps them apart, of which the thread sanitizer knows nothing.
TEST(EventHistories, LoseNothingThatTheyWriteAtTheSameTime) {
    constexpr int instanceCount = 3;
    constexpr int flushesEach = 50;
    QTemporaryDir folder;
    const QString path = folder.filePath(u"support/analytics.json"_s);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    std::vector<std::thread> instances;
    instances.reserve(instanceCount);
    for (int instance = 0; instance < instanceCount; ++instance) {
        instances.emplace_back([&path, &now, instance] {
            EventHistory history(path, now.addDays(-1));
            for (int flush = 0; flush < flushesEach; ++flush) {
                history.add({.name = u"%1 %2"_s.arg(instance).arg(flush), .timestamp = now});
                history.flush();
            }
        });
    }
    for (std::thread& instance : instances)
        instance.join();
    QStringList names = namesIn(path);
    names.sort();
    QStringList expected;
    for (int instance = 0; instance < instanceCount; ++instance)
        for (int flush = 0; flush < flushesEach; ++flush)
            expected += u"%1 %2"_s.arg(instance).arg(flush);
    expected.sort();
    EXPECT_EQ(names, expected);
}

} // namespace
} // namespace tessaline
