#include "ui/reading/PageSection.h"
#include "settings/ReadingSettings.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Switch.h"
#include "ui/reading/QrCode.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class PageSectionTest : public testing::Test {
protected:
    PageSectionTest() {
        section.show();
        section.showOptions(options());
    }

    template <typename T>
    T& part(const char* name) {
        return *section.findChild<T*>(QString::fromLatin1(name));
    }
    bool isSeen(const char* name) { return part<QWidget>(name).isVisible(); }
    const ReadingOptions& options() const { return settings.values(); }
    void switchOn() {
        QTest::keyClick(&part<Switch>("reading_pageSwitch"), Qt::Key_Space);
        section.showOptions(options());
    }

    QTemporaryDir folder;
    ReadingSettings settings{folder.filePath(u"reading.json"_s)};
    QString address = u"http://127.0.0.1:47865/#secret"_s;
    QString problem;
    int pages = 0;
    int disconnections = 0;
    PageSection section{settings,
                        {[this] { return address; }, [this] { return problem; },
                         [this] { return pages; },
                         [] {
                             return QStringList{u"192.168.1.5"_s, u"10.0.0.2"_s};
                         },
                         [this] { ++disconnections; }}};
};

TEST_F(PageSectionTest, ShowsNoCodeWhileThePageIsOff) {
    EXPECT_TRUE(isSeen("reading_pageSwitch"));
    for (const char* name :
         {"reading_pageReachPopup", "reading_pageAddress", "reading_disconnectButton",
          "reading_pageNetworkHint", "reading_pageProblem"})
        EXPECT_FALSE(isSeen(name)) << name;
}

TEST_F(PageSectionTest, ShowsTheAddressAndWhoIsThere) {
    switchOn();
    EXPECT_EQ(options(), (ReadingOptions{.remotePage = true}));
    EXPECT_TRUE(isSeen("reading_pageAddress"));
    EXPECT_EQ(part<QLabel>("reading_pageAddress").text(), address);
    EXPECT_EQ(part<QLabel>("reading_pagesLabel").text(),
              u"Scan the code with a phone or a tablet."_s);
    pages = 2;
    section.showOptions(options());
    EXPECT_EQ(part<QLabel>("reading_pagesLabel").text(), u"2 pages are connected."_s);
    QTest::keyClick(&part<BezelButton>("reading_disconnectButton"), Qt::Key_Space);
    EXPECT_EQ(disconnections, 1);
}

TEST_F(PageSectionTest, LetsOtherDevicesReachThePage) {
    switchOn();
    EXPECT_FALSE(isSeen("reading_pageNetworkHint"));
    auto& popup = part<PopupButton>("reading_pageReachPopup");
    QTest::keyClick(&popup, Qt::Key_End);
    EXPECT_EQ(options().remoteAddress, u"10.0.0.2"_s);
    section.showOptions(options());
    EXPECT_TRUE(isSeen("reading_pageNetworkHint"));
    EXPECT_EQ(popup.currentText(), u"10.0.0.2"_s);
    QTest::keyClick(&popup, Qt::Key_Home);
    EXPECT_EQ(options().remoteAddress, std::nullopt);
}

TEST_F(PageSectionTest, KeepsAnAddressThatThisMachineHasLost) {
    settings.change([](ReadingOptions& values) { values.remoteAddress = u"10.9.9.9"_s; });
    problem = u"this machine does not have the address 10.9.9.9 now"_s;
    address.clear();
    switchOn();
    EXPECT_EQ(part<PopupButton>("reading_pageReachPopup").currentText(), u"10.9.9.9"_s);
    EXPECT_EQ(part<QLabel>("reading_pageProblem").text(),
              u"The page cannot be served: this machine does not have the address 10.9.9.9 now"_s);
    EXPECT_TRUE(isSeen("reading_pageProblem"));
    EXPECT_FALSE(isSeen("reading_pageAddress"));
}

TEST(QrCode, IsASquareWithItsCorners) {
    EXPECT_EQ(QrCode::of({}).size, 0);
    const QrCode code = QrCode::of(u"http://192.168.100.200:47865/#abcdefghijklmnopqrstuv"_s);
    ASSERT_GE(code.size, 21);
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(code.isDark(0, i));
        EXPECT_TRUE(code.isDark(i, code.size - 1));
        EXPECT_TRUE(code.isDark(code.size - 1, i));
    }
    EXPECT_EQ(QrCode::of(QString(5000, u'x')).size, 0) << "more than any code holds";
}

} // namespace
} // namespace tessaline
