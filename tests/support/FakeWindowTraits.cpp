#include "support/FakeWindowTraits.h"

#include "platform/qt/WidgetFrame.h"

#include <gtest/gtest.h>

#include <QWidget>

#include <algorithm>

namespace tessaline {

void FakeWindowTraits::place(QWidget& window, const Rect& frame, const Screen& screen) {
    places.emplace_back(frame, screen);
    setFrame(window, frame);
}

Rect FakeWindowTraits::frame(const QWidget& window) const {
    return frameOf(window);
}

void FakeWindowTraits::adopt(QWidget& window) {
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(std::count(floating.begin(), floating.end(), &window), 0);
    floating.push_back(&window);
}

void FakeWindowTraits::release(QWidget& window) {
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(std::erase(floating, &window), 1U);
}

} // namespace tessaline
