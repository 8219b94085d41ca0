#include "prompter/view/ReadingFrame.h"
#include "prompter/view/ScriptView.h"
#include "reading/PrompterStatus.h"
#include "support/PacedSession.h"
#include "support/texts/RandomTalk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>
#include <vector>

namespace tessaline {
namespace {

struct Reading {
    std::uint32_t seed;
    double wordsPerMinute;
    double font;
    int width;
};

void PrintTo(const Reading& reading, std::ostream* out) {
    *out << "talk " << reading.seed << " at " << reading.wordsPerMinute << " words a minute, "
         << reading.font << " points, " << reading.width << " wide";
}

/// A random talk in the prompter's view, in real fonts.
class PromisedPace : public testing::TestWithParam<Reading> {
protected:
    PromisedPace() {
        paced.options.wordsPerMinute = GetParam().wordsPerMinute;
        view.resize(GetParam().width, 202);
        view.show();
        view.setReadingFrame(ReadingFrame::of(paced.options));
        view.setFontSize(GetParam().font);
        paced.show(randomTalk(GetParam().seed, 2000));
        view.completeLayout();
    }

    double wordsRead() const {
        PrompterStatus status;
        paced.session->tellProgress(status);
        return status.wordsRead;
    }

    bool atEnd() const { return view.scrollPosition() >= view.maximumScrollPosition(); }

    PacedSession paced;
    ScriptView view{paced.session};
};

TEST_P(PromisedPace, IsKeptSteadily) {
    constexpr double atMostSeconds = 3000;
    constexpr double softSeconds = 0.3;
    const double wordsBefore = wordsRead();
    paced.play();
    std::vector<double> wordsEachSecond;
    double before = 0.0;
    double step = 0.0;
    double greatestChange = 1.0;
    for (int frame = 1; !atEnd() && paced.now() < atMostSeconds; ++frame) {
        paced.showFrame();
        const double moved = view.scrollPosition() - before;
        if (paced.now() > softSeconds + 0.05 && !atEnd()) {
            ASSERT_GT(moved, 0.0) << paced.now();
            if (step > 0.0) greatestChange = std::max({greatestChange, moved / step, step / moved});
            step = moved;
        }
        before = view.scrollPosition();
        if (frame % 60 == 0) wordsEachSecond.push_back(wordsRead());
    }
    EXPECT_LE(greatestChange, 1.02 + 1e-6);

    const double promised = GetParam().wordsPerMinute / 60;
    const double inAll = wordsRead() - wordsBefore;
    EXPECT_NEAR(paced.now(), inAll / promised, 0.01 * inAll / promised + softSeconds);
    for (std::size_t i = 30; i < wordsEachSecond.size(); ++i) {
        if (wordsEachSecond[i] >= wordsRead()) break; // what is left holds no words
        EXPECT_NEAR(wordsEachSecond[i] - wordsEachSecond[i - 30], 30 * promised,
                    std::max(3.0, 0.05 * 30 * promised))
            << "up to second " << i + 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Random, PromisedPace,
                         testing::Values(Reading{1, 150, 16, 430}, Reading{2, 60, 16, 430},
                                         Reading{3, 300, 16, 430}, Reading{4, 150, 24, 430},
                                         Reading{5, 200, 30, 360}, Reading{6, 150, 30, 780},
                                         Reading{7, 100, 10, 360}, Reading{8, 250, 20, 600},
                                         Reading{9, 120, 12, 430}, Reading{10, 180, 14, 500}));

} // namespace
} // namespace tessaline
