#include "analytics/AnalyticsStage.h"
#include "analytics/EventHistory.h"
#include "support/KilledProcess.h"
#include "support/PrintQt.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A process is killed at random moments while it does nothing but record and flush.
class AnalyticsKill : public testing::Test {
protected:
    static constexpr int kills = 100;

    QTemporaryDir folder;
    QString path = folder.filePath(u"analytics.json"_s);
    const QDateTime now{QDate(2026, 11, 20), QTime(21, 44, 30), QTimeZone::utc()};
    KilledProcess process;

    AnalyticsEvent event(qsizetype number) const {
        return {QString::number(number), now, {{u"text"_s, QString(300, u'x')}}};
    }

    /// How many events the file has; fails the test unless they are those from 0 on.
    qsizetype countFound() const {
        qsizetype number = 0;
        for (const AnalyticsEvent& found : eventsIn(path))
            EXPECT_EQ(found, event(number++));
        return number;
    }

    /// Flushes one event after the other, from this one on, until it is killed.
    void killWhileFlushing(qsizetype first) {
        EventHistory history(path, now.addDays(-30));
        process.killDuring([&](int turn) { history.add(event(first + turn - 1)); },
                           [&] { history.flush(); });
    }
};

TEST_F(AnalyticsKill, LeavesTheLastOrTheNextHistory) {
    EventHistory history(path, now.addDays(-30));
    history.add(event(0));
    history.flush();
    qsizetype count = 1;
    for (int kill = 0; kill < kills; ++kill) {
        ASSERT_NO_FATAL_FAILURE(killWhileFlushing(count));
        const qsizetype found = countFound();
        ASSERT_FALSE(HasFailure());
        ASSERT_GE(found, count);
        count = found;
    }
    EXPECT_GT(count, 1);
    EXPECT_GT(process.killedWhileSaving(), 0);
    RecordProperty("events", static_cast<int>(count));
    RecordProperty("killedWhileSaving", process.killedWhileSaving());
}

TEST_F(AnalyticsKill, InTheMiddleOfALongWriteLeavesAWholeHistory) {
    constexpr qsizetype length = 3000;
    EventHistory history(path, now.addDays(-30));
    for (qsizetype number = 0; number < length; ++number)
        history.add(event(number));
    history.flush();
    qsizetype count = length;
    for (int kill = 0; kill < kills; ++kill) {
        // Every flush writes the whole history anew.
        ASSERT_NO_FATAL_FAILURE(process.killDuring(
            [&](int turn) { history.add(event(count + turn - 1)); }, [&] { history.flush(); }));
        const qsizetype found = countFound();
        ASSERT_FALSE(HasFailure());
        ASSERT_GE(found, count);
        count = found;
    }
    EXPECT_GT(process.killedWhileSaving(), 0);
    RecordProperty("killedWhileSaving", process.killedWhileSaving());
}

TEST_F(AnalyticsKill, LosesNoForeignFile) {
    const QString unreadable = path + u".unreadable"_s;
    for (int kill = 0; kill < kills; ++kill) {
        QFile::remove(path);
        QFile::remove(unreadable);
        putFile(path, "foreign");
        testing::internal::CaptureStderr();
        ASSERT_NO_FATAL_FAILURE(killWhileFlushing(0));
        testing::internal::GetCapturedStderr();
        ASSERT_EQ(fileBytes(QFile::exists(unreadable) ? unreadable : path), "foreign");
    }
}

} // namespace
} // namespace tessaline
