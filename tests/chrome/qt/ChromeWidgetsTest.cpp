// The tab strip and the labels that open pages.

#include "chrome/qt/MainTabView.h"
#include "chrome/qt/WebAddressOpener.h"
#include "chrome/qt/WebLabel.h"
#include "foundation/NotificationCenter.h"
#include "support/LogCapture.h"

#include <QTest>
#include <any>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class LinksTest : public testing::Test {
  protected:
    void SetUp() override {
        WebAddressOpener::exchangeOpener([this](const QUrl& url) { opened += url.toString(); });
    }
    void TearDown() override { WebAddressOpener::exchangeOpener({}); }

    const LogCapture log;
    QStringList opened;
    WebLabel label{u"example.org"_s};
};

TEST_F(LinksTest, aLabelOpensItsAddressOnAClickOrAKey) {
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::keyClicks(&label, u" a\r"_s);
    QAccessibleInterface* const link = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(link->role(), QAccessible::Link);
    EXPECT_EQ(link->text(QAccessible::Name), u"example.org"_s);
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened, QStringList(4, u"http://example.org"_s));
}

TEST_F(LinksTest, anAddressNeedsOnePrefixAnywhereAndOpensOnlyIfItIsOne) {
    const std::vector<std::array<QString, 3>> rows{
        {u"hTTp://example.org/A"_s, u"http://example.org/A"_s, u"Found hTTp://example.org/A"_s},
        {u"https://\u00E4.org"_s, u"http://https//\u00E4.org"_s, u"Not Found https://\u00E4.org"_s},
        {u"[::1"_s, {}, u"Not Found [::1"_s},
        {u"see http://example.org"_s, {}, u"Found see http://example.org"_s}};
    for (const auto& [text, page, logLine] : rows) {
        label.setText(text);
        label.openAddress();
        EXPECT_EQ(opened, page.isEmpty() ? QStringList{} : QStringList{page});
        EXPECT_EQ(log.messages.back(), logLine.toStdString());
        opened.clear();
    }
}

class MainTabViewTest : public testing::Test {
  protected:
    MainTabViewTest() {
        bar.setGeometry(0, 0, 500, 32);
        window.show();
        QCoreApplication::processEvents();
    }
    QPoint centerOf(int tab) const { return bar.accessibleItemRect(tab).center(); }

    QWidget window;
    MainTabView bar{{u"CSS 3"_s, u"HTML"_s, u"Web Preview"_s}, &window};
    std::vector<std::int64_t> posts;
    NotificationCenter::Observation observation = NotificationCenter::defaultCenter().addObserver(
        "SelectIndexChanged", &bar, [this](const Notification& change) {
            posts.push_back(std::any_cast<std::int64_t>(change.userInfo.at("Index")));
        });
};

TEST_F(MainTabViewTest, announcesWhatTheUserChangesAndWhateverTheProgramSelects) {
    for (const QPoint& place : {centerOf(0), centerOf(2), QPoint{3, 16}, centerOf(1)}) {
        QTest::mouseClick(&bar, Qt::LeftButton, {}, place); // the first is selected already
    }
    QTest::mouseClick(&bar, Qt::RightButton, {}, centerOf(0));
    for (const auto key :
         {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Home, Qt::Key_Left, Qt::Key_End}) {
        QTest::keyClick(&bar, key);
    }
    bar.setSelectIndex(2);
    bar.setSelectIndex(9);
    QTest::keyClick(&bar, Qt::Key_Home);
    // Two clicks, four keys, the same tab and one that is not there, a key.
    EXPECT_EQ(posts, (std::vector<std::int64_t>{2, 1, 2, 1, 0, 2, 2, 9, 0}));
}

TEST_F(MainTabViewTest, assistiveToolsSeePageTabsThatCanBePressed) {
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&bar);
    QAccessibleInterface* const tab = list->child(2);
    ASSERT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), u"Web Preview"_s);
    const QPoint center = bar.mapToGlobal(centerOf(2));
    EXPECT_EQ(list->childAt(center.x(), center.y()), tab);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(tab->state().selected && !posts.empty());
}

} // namespace
} // namespace tessaly
