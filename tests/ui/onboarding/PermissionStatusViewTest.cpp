#include "ui/onboarding/PermissionStatusView.h"

#include "appearance/SystemPalette.h"
#include "permissions/PermissionReport.h"
#include "support/Part.h"
#include "support/PrintQt.h"
#include "ui/controls/StatusDot.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(PermissionStatusView, OffersNoButtonWhereNobodyCanGrantThePermission) {
    const PermissionStatusView view(u"Title"_s, u"What for"_s, permissionReport(false));
    EXPECT_EQ(part<QLabel>(view, "titleLabel")->text(), u"Title"_s);
    EXPECT_TRUE(part<QLabel>(view, "descriptionLabel")->text().startsWith(u"What for\n"_s));
    EXPECT_TRUE(part<QLabel>(view, "descriptionLabel")->text().contains(u"tessaline ctl"_s));
    EXPECT_TRUE(view.isAncestorOf(part<QLabel>(view, "descriptionLabel")));
    EXPECT_EQ(part<StatusDot>(view, "statusIndicator")->color(), SystemPalette::orange);
    EXPECT_TRUE(part<QPushButton>(view, "grantButton")->isHidden());
}

TEST(PermissionStatusView, SaysThatThePermissionIsGranted) {
    const PermissionStatusView view(u"Title"_s, u"What for"_s, permissionReport(true));
    EXPECT_EQ(part<QLabel>(view, "descriptionLabel")->text(), u"What for"_s);
    EXPECT_EQ(part<StatusDot>(view, "statusIndicator")->color(), SystemPalette::green);
    EXPECT_EQ(part<QPushButton>(view, "grantButton")->text(), u"Available ✓"_s);
    EXPECT_FALSE(part<QPushButton>(view, "grantButton")->isEnabled());
}

TEST(PermissionStatusView, FollowsTheState) {
    PermissionStatusView view(u"Title"_s, u"What for"_s, permissionReport(true));
    view.updateStatus(permissionReport(false));
    EXPECT_TRUE(part<QPushButton>(view, "grantButton")->isHidden());
    EXPECT_EQ(part<StatusDot>(view, "statusIndicator")->accessibleName(), u"Not available"_s);
    view.updateStatus(permissionReport(true));
    EXPECT_FALSE(part<QPushButton>(view, "grantButton")->isHidden());
    EXPECT_FALSE(part<QPushButton>(view, "grantButton")->isEnabled());
    EXPECT_EQ(part<QLabel>(view, "descriptionLabel")->text(), u"What for"_s);
    EXPECT_EQ(part<StatusDot>(view, "statusIndicator")->accessibleName(), u"Available"_s);
}

TEST(PermissionStatusView, TellsWhatThereIsBetweenYesAndNo) {
    const PermissionStatusView view(u"Title"_s, u"What for"_s,
                                    {.isWhole = false,
                                     .canBeGranted = true,
                                     .state = u"Over some windows"_s,
                                     .note = u"Ask for more"_s});
    EXPECT_EQ(part<QLabel>(view, "descriptionLabel")->text(), u"What for\nAsk for more"_s);
    EXPECT_EQ(part<StatusDot>(view, "statusIndicator")->accessibleName(), u"Over some windows"_s);
    EXPECT_EQ(part<QPushButton>(view, "grantButton")->text(), u"Grant Access"_s);
    EXPECT_TRUE(part<QPushButton>(view, "grantButton")->isEnabled());
}

TEST(PermissionStatusView, CallsWhoeverAskedToBeCalled) {
    PermissionStatusView view(u"Title"_s, u"What for"_s, permissionReport(false));
    QTest::mouseClick(part<QPushButton>(view, "grantButton"), Qt::LeftButton); // nobody asked
    int calls = 0;
    view.onGrantButtonClicked = [&calls] { ++calls; };
    QTest::mouseClick(part<QPushButton>(view, "grantButton"), Qt::LeftButton);
    EXPECT_EQ(calls, 1);
    view.updateStatus(permissionReport(true));
    QTest::mouseClick(part<QPushButton>(view, "grantButton"), Qt::LeftButton);
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace tessaline
