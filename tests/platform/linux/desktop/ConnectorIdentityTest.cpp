#include "platform/linux/desktop/ConnectorIdentity.h"
#include "support/CaseName.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

std::uint32_t idOf(const QString& connector, const QString& manufacturer = {},
                   const QString& model = {}, const QString& serialNumber = {}) {
    return connectorIdentity(connector, manufacturer, model, serialNumber).id;
}

TEST(ConnectorIdentity, StaysTheSameFromSessionToSession) {
    EXPECT_EQ(idOf(u"eDP-1"_s), 0xf29d850aU);
    EXPECT_EQ(idOf(u"HDMI-1"_s, u"Dell Inc."_s, u"U2720Q"_s, u"ABC123"_s), 0xa6d91c41U);
    EXPECT_EQ(idOf({}), 0x4ab0f7b7U);
}

TEST(ConnectorIdentity, DiffersByConnectorAndMonitor) {
    const auto id = idOf(u"DP-1"_s, u"Dell"_s, u"U2720Q"_s, u"A"_s);
    EXPECT_NE(idOf(u"DP-2"_s, u"Dell"_s, u"U2720Q"_s, u"A"_s), id);
    EXPECT_NE(idOf(u"DP-1"_s, u"Acer"_s, u"U2720Q"_s, u"A"_s), id);
    EXPECT_NE(idOf(u"DP-1"_s, u"Dell"_s, u"U2720X"_s, u"A"_s), id);
    EXPECT_NE(idOf(u"DP-1"_s, u"Dell"_s, u"U2720Q"_s, u"B"_s), id);
}

TEST(ConnectorIdentity, TellsTheSameLettersInOtherPartsApart) {
    EXPECT_NE(idOf(u"DP-1"_s, u"AB"_s, u"C"_s), idOf(u"DP-1"_s, u"A"_s, u"BC"_s));
}

TEST(ConnectorIdentity, IsNeverZero) {
    // A serial number found by search, for which the hash itself is 0.
    EXPECT_EQ(idOf(u"DP-1"_s, {}, {}, u"R7NE4PC"_s), 1U);
}

struct ConnectorCase {
    std::string connector;
    bool builtIn;
};

void PrintTo(const ConnectorCase& example, std::ostream* out) {
    *out << example.connector;
}

class BuiltInConnector : public ::testing::TestWithParam<ConnectorCase> {};

TEST_P(BuiltInConnector, IsKnownByItsKind) {
    const auto& [connector, builtIn] = GetParam();
    EXPECT_EQ(connectorIdentity(QString::fromStdString(connector), {}, {}, {}).builtIn, builtIn);
}

INSTANTIATE_TEST_SUITE_P(
    , BuiltInConnector,
    ::testing::Values(ConnectorCase{"eDP-1", true}, ConnectorCase{"eDP1", true},
                      ConnectorCase{"eDP", true}, ConnectorCase{"EDP-1", true},
                      ConnectorCase{"eDP-1-2", true}, ConnectorCase{"LVDS-1", true},
                      ConnectorCase{"LVDS1", true}, ConnectorCase{"DSI-1", true},
                      ConnectorCase{"DP-1", false}, ConnectorCase{"HDMI-A-1", false},
                      ConnectorCase{"VGA-1", false}, ConnectorCase{"DVI-D-1", false},
                      ConnectorCase{"DSIGN-1", false}, ConnectorCase{"screen", false},
                      ConnectorCase{"", false}),
    byMember<&ConnectorCase::connector>);

} // namespace
} // namespace tessaline
