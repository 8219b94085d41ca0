#include "analytics/Analytics.h"

#include "analytics/AnalyticsStage.h"
#include "support/CaseName.h"
#include "support/NotAFile.h"
#include "support/PrintQt.h"
#include "support/RecordedLog.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QFileInfo>
#include <QTimeZone>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class AnalyticsFile : public testing::Test {
protected:
    /// A history file with one event for each of these times.
    void putEvents(const QStringList& timestamps) const {
        QByteArray json = "[";
        for (const QString& timestamp : timestamps) {
            json += R"({"name": ")" + timestamp.toUtf8() + R"(", "timestamp": ")" +
                    timestamp.toUtf8() + R"(", "properties": {}},)";
        }
        json.back() = ']';
        putHistory(json);
    }

    void putHistory(const QByteArray& bytes) const {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(stage.path).path()));
        putFile(stage.path, bytes);
    }

    /// Starts a run that records "now" and waits for its flush.
    void runAndFlush() {
        const auto recorder = stage.makeRecorder();
        recorder->record({.name = u"now"_s});
        recorder->flush();
        stage.historyTasks.runAll();
    }

    static QStringList failedTo(const QString& what) {
        return {u"app.tessaline.Tessaline.analytics: Failed to "_s + what};
    }

    AnalyticsStage stage;
    QString unreadable = stage.path + u".unreadable"_s;
};

TEST_F(AnalyticsFile, IsNotWrittenByARunWithoutEvents) {
    const auto recorder = stage.makeRecorder();
    stage.timers.advance(120);
    stage.historyTasks.runAll();
    EXPECT_FALSE(QFileInfo::exists(stage.path));
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(stage.path).path()));
}

TEST_F(AnalyticsFile, IsWrittenEveryMinute) {
    const auto recorder = stage.makeRecorder();
    EXPECT_EQ(stage.timers.liveIntervals(), std::vector<double>{60.0});
    recorder->record({.name = u"a"_s});
    stage.timers.advance(59.9);
    stage.historyTasks.runAll();
    EXPECT_FALSE(QFileInfo::exists(stage.path));
    stage.timers.advance(0.1);
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), QStringList{u"a"_s});
    recorder->record({.name = u"b"_s});
    stage.timers.advance(60);
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(AnalyticsFile, IsWrittenInTheBackground) {
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    recorder->flush();
    EXPECT_FALSE(QFileInfo::exists(stage.path));
    stage.historyTasks.runAll();
    EXPECT_TRUE(QFileInfo::exists(stage.path));
}

TEST_F(AnalyticsFile, HoldsEveryEventWhenTheTerminationIsTracked) {
    putEvents({u"2026-11-19T00:00:00Z"_s});
    const auto recorder = stage.makeRecorder();
    recorder->trackAppLaunch();
    recorder->flush();
    recorder->record({.name = u"b"_s});
    recorder->trackAppTerminate();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"2026-11-19T00:00:00Z"_s, u"app_launch"_s, u"b"_s,
                                                u"app_terminate"_s}));
}

TEST_F(AnalyticsFile, IsNotReadTwiceWhenTheTerminationComesFirst) {
    putEvents({u"2026-11-19T00:00:00Z"_s});
    const auto recorder = stage.makeRecorder();
    recorder->trackAppTerminate();
    const QStringList all{u"2026-11-19T00:00:00Z"_s, u"app_terminate"_s};
    EXPECT_EQ(namesIn(stage.path), all);
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), all);
}

TEST_F(AnalyticsFile, IsNotTouchedByTasksThatOutliveTheRecorder) {
    auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    recorder->flush();
    recorder.reset();
    EXPECT_EQ(stage.historyTasks.pending(), 2U);
    stage.historyTasks.runAll();
    EXPECT_FALSE(QFileInfo::exists(stage.path));
}

TEST_F(AnalyticsFile, KeepsTheLastThirtyDays) {
    const QString old = stage.now.addDays(-31).toString(Qt::ISODate);
    const QString recent = stage.now.addDays(-1).toString(Qt::ISODate);
    putEvents({old, recent});
    runAndFlush();
    EXPECT_EQ(namesIn(stage.path), (QStringList{recent, u"now"_s}));
}

TEST_F(AnalyticsFile, KeepsWhatIsLaterThanThirtyDaysAgoToTheSecond) {
    const QString edge = stage.now.addDays(-30).toString(Qt::ISODate);
    const QString within = stage.now.addDays(-30).addSecs(1).toString(Qt::ISODate);
    putEvents({edge, within});
    runAndFlush();
    EXPECT_EQ(namesIn(stage.path), (QStringList{within, u"now"_s}));
}

/// In a zone that set its clocks back on the 25th of October.
class AnalyticsFileInBerlin : public AnalyticsFile {
public:
    AnalyticsFileInBerlin() { setZone("Europe/Berlin"); }
    ~AnalyticsFileInBerlin() override { setZone("UTC"); }

private:
    static void setZone(const char* zone) {
        qputenv("TZ", zone);
        ::tzset();
    }
};

TEST_F(AnalyticsFileInBerlin, CountsDaysOfTheUsersCalendar) {
    stage.now = QDateTime(QDate(2026, 11, 20), QTime(11, 0), QTimeZone::utc()); // 12 o'clock
    putEvents({u"2026-10-21T12:00:00+02:00"_s, u"2026-10-21T12:00:01+02:00"_s});
    runAndFlush();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"2026-10-21T12:00:01+02:00"_s, u"now"_s}));
}

TEST_F(AnalyticsFile, ReadsFractionsAndOffsetsAndWritesUtc) {
    putEvents({u"2026-11-19T21:44:30.750Z"_s, u"2026-11-19T21:44:30+02:00"_s});
    runAndFlush();
    const QByteArray bytes = fileBytes(stage.path);
    EXPECT_TRUE(bytes.contains(R"("timestamp": "2026-11-19T21:44:30Z")"));
    EXPECT_TRUE(bytes.contains(R"("timestamp": "2026-11-19T19:44:30Z")"));
    EXPECT_TRUE(bytes.contains(R"("timestamp": "2026-11-20T21:44:30Z")"));
}

TEST_F(AnalyticsFile, KeepsEventsFromTheFutureWhenTheClockWasSetBack) {
    runAndFlush();
    stage.now = stage.now.addYears(-3);
    runAndFlush();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"now"_s, u"now"_s}));
}

TEST_F(AnalyticsFile, KeepsARunsEventsWhenTheClockJumpsAheadDuringIt) {
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"before"_s});
    stage.now = stage.now.addYears(20'000);
    recorder->record({.name = u"after"_s});
    recorder->trackAppTerminate();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"before"_s, u"after"_s, u"app_terminate"_s}));
}

TEST_F(AnalyticsFile, StaysUntouchedWhileNothingIsNew) {
    runAndFlush();
    const auto recorder = stage.makeRecorder();
    ASSERT_TRUE(QFile::setPermissions(stage.path, QFile::ReadOwner | QFile::WriteOwner));
    const auto identity = [this] {
        return QFileInfo(stage.path).fileTime(QFile::FileMetadataChangeTime);
    };
    const QDateTime before = identity();
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(identity(), before);
}

TEST_F(AnalyticsFile, ComesBackWhenItWasDeleted) {
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    recorder->flush();
    stage.historyTasks.runAll();
    ASSERT_TRUE(QFile::remove(stage.path));
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), QStringList{u"a"_s});
}

TEST_F(AnalyticsFile, LosesOldEventsAtTheFirstFlushEvenWithoutNewOnes) {
    putEvents({u"2026-01-01T00:00:00Z"_s, u"2026-11-19T00:00:00Z"_s});
    const auto recorder = stage.makeRecorder();
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), QStringList{u"2026-11-19T00:00:00Z"_s});
}

struct Foreign {
    const char* name;
    QByteArray bytes;
    QString reason;
};

std::ostream& operator<<(std::ostream& out, const Foreign& test) {
    return out << test.name;
}

class AnalyticsForeignFile : public AnalyticsFile, public testing::WithParamInterface<Foreign> {};

TEST_P(AnalyticsForeignFile, IsReportedAndKeptBesideWhenItIsFirstWrittenOver) {
    putHistory(GetParam().bytes);
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(log.entries(), failedTo(u"load analytics history: "_s + GetParam().reason));
    EXPECT_EQ(fileBytes(stage.path), GetParam().bytes);
    EXPECT_FALSE(QFileInfo::exists(unreadable));

    for (const auto& name : {u"a"_s, u"b"_s}) {
        recorder->record({.name = name});
        recorder->flush();
        stage.historyTasks.runAll();
    }
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(fileBytes(unreadable), GetParam().bytes);
    EXPECT_EQ(log.entries().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Files, AnalyticsForeignFile,
    testing::Values(Foreign{"Empty", "", u"Invalid JSON at byte 1"_s},
                    Foreign{"Truncated", R"([{"name": "a", "timest)", u"Invalid JSON at byte 23"_s},
                    Foreign{"AnObject", R"({"events": []})", u"The JSON is not an array"_s},
                    Foreign{
                        "OneBadEvent",
                        R"([{"name": "a", "timestamp": "2026-11-19T00:00:00Z", "properties": {}},
                    {"name": "b", "timestamp": "yesterday", "properties": {}}])",
                        u"Invalid value for \"timestamp\" of event 2"_s}),
    byMember<&Foreign::name>);

TEST_F(AnalyticsFile, AHundredMegabytesOfGarbageArePutAside) {
    putHistory(QByteArray(100'000'000, '['));
    const RecordedLog log;
    runAndFlush();
    EXPECT_EQ(log.entries(), failedTo(u"load analytics history: Event 1 is not an object"_s));
    EXPECT_EQ(QFileInfo(unreadable).size(), 100'000'000);
    EXPECT_EQ(namesIn(stage.path), QStringList{u"now"_s});
}

TEST_F(AnalyticsFile, AFileLargerThanAnyHistoryIsPutAside) {
    putHistory("[");
    ASSERT_TRUE(QFile::resize(stage.path, 300'000'000));
    const RecordedLog log;
    runAndFlush();
    EXPECT_EQ(log.entries(),
              failedTo(u"load analytics history: The file is larger than 268435456 bytes"_s));
    EXPECT_EQ(QFileInfo(unreadable).size(), 300'000'000);
    EXPECT_EQ(namesIn(stage.path), QStringList{u"now"_s});
}

TEST_F(AnalyticsFile, ReplacesWhatWasPutAsideBefore) {
    for (const auto* foreign : {"first", "second"}) {
        putHistory(foreign);
        runAndFlush();
        EXPECT_EQ(fileBytes(unreadable), foreign);
    }
}

TEST_F(AnalyticsFile, StaysForeignWhileItCannotBePutAside) {
    putHistory("foreign");
    ASSERT_TRUE(QDir().mkdir(unreadable));
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(fileBytes(stage.path), "foreign");
    EXPECT_EQ(log.entries().mid(1), failedTo(u"flush analytics: Is a directory"_s));

    ASSERT_TRUE(QDir().rmdir(unreadable));
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), QStringList{u"a"_s});
    EXPECT_EQ(fileBytes(unreadable), "foreign");
}

TEST_F(AnalyticsFile, AFolderInItsPlaceIsReportedAndKept) {
    ASSERT_TRUE(QDir().mkpath(stage.path));
    const RecordedLog log;
    runAndFlush();
    EXPECT_EQ(log.entries(), failedTo(u"load analytics history: Not a regular file"_s) +
                                 failedTo(u"flush analytics: Not a regular file"_s));
    EXPECT_TRUE(QFileInfo(stage.path).isDir());
}

TEST_F(AnalyticsFile, AFifoInItsPlaceIsReportedAndKeptWithoutBlocking) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(stage.path).path()));
    placeNotAFile(NotAFile::fifo, stage.path);
    const RecordedLog log;
    runAndFlush();
    EXPECT_EQ(log.entries().size(), 2);
    EXPECT_TRUE(QFileInfo::exists(stage.path));
    EXPECT_FALSE(QFileInfo(stage.path).isFile());
}

TEST_F(AnalyticsFile, ADanglingLinkReceivesTheHistory) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(stage.path).path()));
    const QString target = stage.folder.filePath(u"elsewhere.json"_s);
    ASSERT_TRUE(QFile::link(target, stage.path));
    runAndFlush();
    EXPECT_TRUE(QFileInfo(stage.path).isSymLink());
    EXPECT_EQ(namesIn(target), QStringList{u"now"_s});
}

TEST_F(AnalyticsFile, KeepsTheEventsOfAFailedFlushForTheNext) {
    const QString support = QFileInfo(stage.path).path();
    putFile(support, "in the way");
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(log.entries(), failedTo(u"flush analytics: Not a directory"_s));

    ASSERT_TRUE(QFile::remove(support));
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), QStringList{u"a"_s});
}

TEST_F(AnalyticsFile, SurvivesAFullDiskAndIsWrittenWhenThereIsRoom) {
    const QString support = QFileInfo(stage.path).path();
    ASSERT_TRUE(QDir().mkpath(support));
    const SmallDisk disk(support);
    if (!disk.exists())
        GTEST_SKIP() << "mounting a small disk needs more rights than this user has";
    putEvents({u"2026-11-19T00:00:00Z"_s});
    const QByteArray before = fileBytes(stage.path);
    disk.fill();
    const RecordedLog log;
    const auto recorder = stage.makeRecorder();
    recorder->record({.name = u"a"_s});
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(log.entries(), failedTo(u"flush analytics: No space left on device"_s));
    EXPECT_EQ(fileBytes(stage.path), before);

    disk.empty();
    recorder->flush();
    stage.historyTasks.runAll();
    EXPECT_EQ(namesIn(stage.path), (QStringList{u"2026-11-19T00:00:00Z"_s, u"a"_s}));
}

TEST_F(AnalyticsFile, PutsAForeignFileAsideOnAFullDiskToo) {
    const QString support = QFileInfo(stage.path).path();
    ASSERT_TRUE(QDir().mkpath(support));
    const SmallDisk disk(support);
    if (!disk.exists())
        GTEST_SKIP() << "mounting a small disk needs more rights than this user has";
    putHistory("foreign");
    disk.fill();
    const RecordedLog log;
    runAndFlush();
    EXPECT_EQ(fileBytes(unreadable), "foreign");
}

} // namespace
} // namespace tessaline
