#include "platform/linux/x11/XWayland.h"

#include <QString>

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(XWaylandTest, IsToldByTheNamesOfScreensThatItMakesUp) {
    EXPECT_TRUE(isXWaylandOutput(u"XWAYLAND0"_s));
    EXPECT_TRUE(isXWaylandOutput(u"XWAYLAND12"_s));
}

TEST(XWaylandTest, IsNotToldByNamesOfConnectors) {
    for (const auto& name : {u""_s, u"XWAYLAND"_s, u"XWAYLAND0-1"_s, u"eDP-1"_s, u"screen"_s})
        EXPECT_FALSE(isXWaylandOutput(name)) << name.toStdString();
}

} // namespace
} // namespace tessaline
