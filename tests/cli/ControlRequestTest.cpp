#include "cli/ControlRequest.h"

#include "cli/ControlActions.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingChoices.h"
#include "settings/ScrollRate.h"
#include "settings/SourceType.h"
#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Every request that there is without an argument, and one for each choice of the others.
std::vector<QStringList> allRequests() {
    std::vector<QStringList> requests;
    for (const ControlAction& action : controlActions()) {
        const QString name = action.name.toString();
        if (!action.value.isTaken()) requests.push_back({name});
        for (const QStringView choice : action.value.choices)
            requests.push_back({name, choice.toString()});
        for (const ChoiceTail& tail : action.tails) {
            for (const QStringView choice : tail.value.choices)
                requests.push_back({name, tail.choice.toString(), choice.toString()});
        }
    }
    for (const auto text : {"speed 1.25", "eyeline 33.5", "countdown 10", "pace words 160",
                            "pace finish 12.5m", "pace finish 09:30"})
        requests.push_back(QString::fromLatin1(text).split(u' '));
    return requests;
}

class ControlRequestWords : public testing::TestWithParam<QStringList> {};

TEST_P(ControlRequestWords, AreReadAndWrittenAlike) {
    QString error;
    const auto request = ControlRequest::parse(GetParam(), &error);
    ASSERT_TRUE(request.has_value()) << error.toStdString();
    EXPECT_EQ(request->words(), GetParam());
    EXPECT_EQ(controlActionNamed(GetParam().first())->command, request->command);
}

INSTANTIATE_TEST_SUITE_P(Actions, ControlRequestWords, testing::ValuesIn(allRequests()), byValue);

TEST(ControlRequest, HasAnActionForEveryCommandOnce) {
    std::vector<int> commands;
    for (const ControlAction& action : controlActions())
        commands.push_back(static_cast<int>(action.command));
    std::vector<int> expected(static_cast<std::size_t>(ControlCommand::status) + 1);
    for (std::size_t i = 0; i < expected.size(); ++i)
        expected[i] = static_cast<int>(i);
    EXPECT_EQ(commands, expected);
}

struct Speed {
    QString given;
    QString argument;
    double speed;
};

class ControlRequestSpeed : public testing::TestWithParam<Speed> {};

TEST_P(ControlRequestSpeed, IsANumberInPlainDecimals) {
    const auto request = ControlRequest::parse({u"speed"_s, GetParam().given}, nullptr);
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->argument, GetParam().argument);
    EXPECT_EQ(request->number(), GetParam().speed);
}

INSTANTIATE_TEST_SUITE_P(Values, ControlRequestSpeed,
                         testing::Values(Speed{u"0"_s, u"0"_s, 0}, Speed{u"-0"_s, u"0"_s, 0},
                                         Speed{u"5"_s, u"5"_s, 5}, Speed{u"5.00"_s, u"5"_s, 5},
                                         Speed{u".5"_s, u"0.5"_s, 0.5},
                                         Speed{u"25e-1"_s, u"2.5"_s, 2.5},
                                         Speed{u"0.001"_s, u"0.001"_s, 0.001}),
                         byMember<&Speed::given>);

class ControlRequestMistake : public testing::TestWithParam<const char*> {};

TEST_P(ControlRequestMistake, InASpeedIsNamed) {
    const QString given = QString::fromUtf8(GetParam());
    QString error;
    EXPECT_EQ(ControlRequest::parse({u"speed"_s, given}, &error), std::nullopt);
    EXPECT_EQ(error, u"speed '"_s + given + u"' is not a number from 0 to 5"_s);
    EXPECT_EQ(ControlRequest::parse({u"speed"_s, given}, nullptr), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Values, ControlRequestMistake,
                         testing::Values("-0.01", "5.01", "nan", "inf", "-inf", "", "fast", "2,5",
                                         "0x2", "2x", "1e9", "%1"),
                         byValue);

TEST(ControlRequest, RefusesWhatIsNoChoice) {
    QString error;
    EXPECT_EQ(ControlRequest::parse({u"rate"_s, u"Fast"_s}, &error), std::nullopt);
    EXPECT_EQ(error, u"rate 'Fast' is not slow, medium or fast"_s);
    EXPECT_EQ(ControlRequest::parse({u"source"_s, u"appleNotes"_s}, &error), std::nullopt);
    EXPECT_EQ(error, u"source 'appleNotes' is not obsidian or clipboard"_s);
}

struct Refused {
    const char* words;
    const char* reason;
};

class ControlRequestRefusal : public testing::TestWithParam<Refused> {};

TEST_P(ControlRequestRefusal, SaysWhatIsAllowed) {
    QString error;
    EXPECT_EQ(ControlRequest::parse(QString::fromLatin1(GetParam().words).split(u' '), &error),
              std::nullopt);
    EXPECT_EQ(error, QString::fromLatin1(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(
    Words, ControlRequestRefusal,
    testing::Values(
        Refused{"pace", "pace needs speed, words or finish"},
        Refused{"pace 150", "pace '150' is not speed, words or finish"},
        Refused{"pace speed 2", "unexpected argument '2'"},
        Refused{"pace words 59", "pace words '59' is not a number from 60 to 300"},
        Refused{"pace words nan", "pace words 'nan' is not a number from 60 to 300"},
        Refused{"pace words 150 now", "unexpected argument 'now'"},
        Refused{"pace finish 12", "pace finish '12' is not minutes from 0.5m to 600m or a time of "
                                  "day such as 15:30"},
        Refused{"pace finish 0.4m", "pace finish '0.4m' is not minutes from 0.5m to 600m or a time "
                                    "of day such as 15:30"},
        Refused{"pace finish 24:00", "pace finish '24:00' is not minutes from 0.5m to 600m or a "
                                     "time of day such as 15:30"},
        Refused{"guide band 3", "guide band '3' is not 1 or 2"},
        Refused{"guide marker 1", "unexpected argument '1'"},
        Refused{"eyeline first", "eyeline 'first' is not second or a number from 25 to 50"},
        Refused{"eyeline 51", "eyeline '51' is not second or a number from 25 to 50"},
        Refused{"countdown", "countdown needs a whole number from 0 to 10"},
        Refused{"countdown 2.5", "countdown '2.5' is not a whole number from 0 to 10"},
        Refused{"countdown 11", "countdown '11' is not a whole number from 0 to 10"},
        Refused{"at-end jump", "at-end 'jump' is not stand, stop or round"},
        Refused{"glide", "glide needs on or off"},
        Refused{"mirror left", "mirror 'left' is not none, horizontal, vertical or both"},
        Refused{"opacity 29", "opacity '29' is not a number from 30 to 100"},
        Refused{"font", "font needs default or a name"},
        Refused{"font ", "font '' is not default or a name"},
        Refused{"line-spacing 2.1", "line-spacing '2.1' is not a number from 1 to 2"},
        Refused{"distance 201", "distance '201' is not a number from 40 to 200"}),
    byMember<&Refused::words>);

TEST(ControlRequest, TakesANameOfSeveralWordsAsOne) {
    for (const QStringList& words :
         {QStringList{u"font"_s, u"DejaVu"_s, u"Sans"_s}, {u"font"_s, u"DejaVu Sans"_s}}) {
        const auto request = ControlRequest::parse(words, nullptr);
        ASSERT_TRUE(request.has_value());
        EXPECT_EQ(request->argument, u"DejaVu Sans"_s);
        EXPECT_EQ(ControlRequest::parse(request->words(), nullptr), request);
    }
}

TEST(ControlRequest, ReadsTheFormsOfAMomentToFinish) {
    const auto detailOf = [](const QString& when) {
        return ControlRequest::parse({u"pace"_s, u"finish"_s, when}, nullptr)->detail;
    };
    EXPECT_EQ(detailOf(u"12.50m"_s), u"12.5m"_s);
    EXPECT_EQ(detailOf(u"600m"_s), u"600m"_s);
    EXPECT_EQ(detailOf(u"9:05"_s), u"09:05"_s);
    EXPECT_EQ(ControlRequest::parse({u"pace"_s, u"finish"_s}, nullptr)->detail, QString());
}

template <typename Choices>
QStringList rawValuesOf(const Choices& choices) {
    QStringList words;
    for (const auto& choice : choices)
        words += rawValue(choice.value);
    return words;
}

QStringList choicesOf(QStringView action) {
    QStringList words;
    for (const QStringView choice : controlActionNamed(action)->value.choices)
        words += choice.toString();
    return words;
}

TEST(ControlRequest, OffersWhatTheReadingOptionsKnow) {
    EXPECT_EQ(choicesOf(u"pace"), rawValuesOf(paceModes));
    EXPECT_EQ(choicesOf(u"guide"), rawValuesOf(readingGuides));
    EXPECT_EQ(choicesOf(u"at-end"), rawValuesOf(scriptEnds));
    EXPECT_EQ(choicesOf(u"mirror"), rawValuesOf(mirrorings));
}

TEST(ControlRequest, OffersWhatTheSettingsKnow) {
    QStringList rates;
    for (const ScrollRate rate : allScrollRates)
        rates += rawValue(rate);
    QStringList sources;
    for (const SourceType source : availableSources)
        sources += rawValue(source);
    EXPECT_EQ(controlActionNamed(u"rate")->value.name, rates.join(u'|'));
    EXPECT_EQ(controlActionNamed(u"source")->value.name, sources.join(u'|'));
    for (const ControlAction& action : controlActions()) {
        QStringList choices;
        for (const QStringView choice : action.value.choices)
            choices += choice.toString();
        if (!choices.isEmpty() && action.value.kind == CommandValue::Kind::text &&
            action.tails.empty()) {
            EXPECT_EQ(choices.join(u'|'), action.value.name);
        }
    }
    EXPECT_EQ(ControlRequest::mostSpeed, PersistedSettings::maxScrollSpeed);
}

} // namespace
} // namespace tessaline
