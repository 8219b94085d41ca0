#include "app/ReadingUsage.h"

#include "support/PrintQt.h"
#include "support/RecordingUsageRecorder.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class ReadingUsageTest : public testing::Test {
protected:
    /// The names and values of what was recorded since the last call.
    std::vector<std::pair<QString, QString>> recorded() {
        std::vector<std::pair<QString, QString>> changes;
        for (const AnalyticsEvent& event : std::exchange(recorder.events, {})) {
            EXPECT_EQ(event.name, u"setting_changed"_s);
            changes.emplace_back(event.properties.value(u"setting_name"_s),
                                 event.properties.value(u"setting_value"_s));
        }
        return changes;
    }

    QTemporaryDir folder;
    ReadingSettings settings{folder.filePath(u"reading.json"_s)};
    RecordingUsageRecorder recorder;
    ReadingUsage usage{settings, recorder};
};

TEST_F(ReadingUsageTest, RecordsWhatHasChangedAndNothingElse) {
    EXPECT_THAT(recorded(), IsEmpty());
    settings.change([](ReadingOptions& options) {
        options.pace = PaceMode::words;
        options.wordsPerMinute = 160;
    });
    EXPECT_THAT(recorded(),
                ElementsAre(Pair(u"pace"_s, u"words"_s), Pair(u"wordsPerMinute"_s, u"160"_s)));
    settings.change([](ReadingOptions& options) { options.wordsPerMinute = 161; });
    EXPECT_THAT(recorded(), IsEmpty());
    settings.change([](ReadingOptions& options) {
        options.eyeLine = 0.3;
        options.guide = ReadingGuide::band;
        options.guideLines = 2;
        options.countdownSeconds = 3;
        options.atEnd = ScriptEnd::goRound;
        options.glide = true;
    });
    EXPECT_THAT(recorded(),
                ElementsAre(Pair(u"eyeLine"_s, u"0.3"_s), Pair(u"guide"_s, u"band"_s),
                            Pair(u"guideLines"_s, u"2"_s), Pair(u"countdownSeconds"_s, u"3"_s),
                            Pair(u"atEnd"_s, u"round"_s), Pair(u"glide"_s, u"true"_s)));
}

TEST_F(ReadingUsageTest, RecordsHowTheTextLooksButNotWhichFontsThereAre) {
    settings.change([](ReadingOptions& options) {
        options.mirror = Mirroring::horizontal;
        options.groundOpacity = 0.7;
        options.clickThrough = true;
        options.fontFamily = u"My Own Hand"_s;
        options.lineSpacing = 1.5;
        options.readingDistance = 90;
        options.mediaKeys = true;
        options.remotePage = true;
        options.remotePort = 5000;
        options.remoteAddress = u"192.168.1.5"_s;
    });
    EXPECT_THAT(recorded(),
                ElementsAre(Pair(u"mirror"_s, u"horizontal"_s), Pair(u"groundOpacity"_s, u"0.7"_s),
                            Pair(u"clickThrough"_s, u"true"_s), Pair(u"fontFamily"_s, u"true"_s),
                            Pair(u"lineSpacing"_s, u"1.5"_s), Pair(u"readingDistance"_s, u"90"_s),
                            Pair(u"mediaKeys"_s, u"true"_s), Pair(u"remotePage"_s, u"true"_s),
                            Pair(u"remotePort"_s, u"true"_s), Pair(u"remoteAddress"_s, u"true"_s)));
}

TEST_F(ReadingUsageTest, KeepsTheTimeOfTheEndToItself) {
    settings.change([](ReadingOptions& options) { options.finishAt = TimeOfDay{930}; });
    EXPECT_THAT(recorded(), ElementsAre(Pair(u"finishAt"_s, u"true"_s)));
    settings.change([](ReadingOptions& options) { options.finishAt = TimeOfDay{931}; });
    EXPECT_THAT(recorded(), IsEmpty());
}

} // namespace
} // namespace tessaline
