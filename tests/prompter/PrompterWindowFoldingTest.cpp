#include "prompter/PrompterWindow.h"

#include "prompter/PrompterWindowFixture.h"

#include <QEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tessaline {
namespace {

using PrompterWindowFolding = PrompterWindowTest;

/// Keeps the places that a window takes.
class PlaceWatcher final : public QObject {
public:
    explicit PlaceWatcher(QWidget& watched) : window(watched) { window.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
            places.push_back(window.geometry());
        return false;
    }

    std::vector<QRect> places;

private:
    QWidget& window;
};

TEST_F(PrompterWindowFolding, GoesStepByStepBelowTheTopEdge) {
    const QRect unfolded = window().geometry();
    for (const int height : {32, 256}) {
        const QRect before = window().geometry();
        const PlaceWatcher watcher(window());
        window().toggleCollapsed();
        EXPECT_EQ(window().geometry(), before) << "nothing moves at once";
        finishResizing(height);
        EXPECT_GT(watcher.places.size(), 1U) << "it takes steps";
        for (const QRect& place : watcher.places) {
            EXPECT_EQ(place.topLeft(), unfolded.topLeft());
            EXPECT_EQ(place.width(), unfolded.width());
            EXPECT_EQ(std::clamp(place.height(), 32, 256), place.height());
        }
    }
}

} // namespace
} // namespace tessaline
