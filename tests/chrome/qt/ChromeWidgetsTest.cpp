// The tab strip and the labels that open pages.

#include "chrome/qt/MainTabView.h"
#include "chrome/qt/WebAddressOpener.h"
#include "chrome/qt/WebLabel.h"
#include "foundation/NotificationCenter.h"
#include "support/LogCapture.h"

#include <QTest>
#include <any>
#include <gtest/gtest.h>
#include <utility>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

TEST(WebLabel, opensItsAddressOnAClickOrAKeyIfItIsOne) {
    const LogCapture log;
    QStringList opened;
    WebAddressOpener::exchangeOpener([&](const QUrl& url) { opened += url.toString(); });
    WebLabel label{u"example.org"_s};
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::RightButton);
    QTest::keyClicks(&label, u" a\r"_s);
    QAccessibleInterface* const link = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(link->role(), QAccessible::Link);
    EXPECT_EQ(link->text(QAccessible::Name), u"example.org"_s);
    link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(std::exchange(opened, {}), QStringList(4, u"http://example.org"_s));
    for (const QString& text : {u"hTTp://\u00E4.org/A"_s, u"see http://example.org"_s}) {
        label.setText(text);
        label.openAddress();
        EXPECT_EQ(log.messages.back(), "Found " + text.toStdString());
    }
    WebAddressOpener::exchangeOpener({});
    EXPECT_EQ(opened, QStringList{u"http://\u00E4.org/A"_s});
}

TEST(MainTabView, announcesWhatTheUserChangesAndWhateverTheProgramSelects) {
    QWidget window;
    MainTabView bar{{u"CSS 3"_s, u"HTML"_s, u"Web Preview"_s}, &window};
    bar.setGeometry(0, 0, 500, 32);
    window.show();
    QCoreApplication::processEvents();
    std::vector<std::int64_t> posts;
    const auto observation = NotificationCenter::defaultCenter().addObserver(
        "SelectIndexChanged", &bar, [&posts](const Notification& change) {
            posts.push_back(std::any_cast<std::int64_t>(change.userInfo.at("Index")));
        });
    const auto centerOf = [&bar](int tab) { return bar.accessibleItemRect(tab).center(); };
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
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&bar);
    const QPoint first = bar.mapToGlobal(centerOf(0));
    QAccessibleInterface* const tab = list->childAt(first.x(), first.y());
    EXPECT_EQ(tab->text(QAccessible::Name), u"CSS 3"_s);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(tab->state().selected && tab->role() == QAccessible::PageTab);
    // Two clicks, four keys, the same tab and one that is not there, a press.
    EXPECT_EQ(posts, (std::vector<std::int64_t>{2, 1, 2, 1, 0, 2, 2, 9, 0}));
}

} // namespace
} // namespace tessaly
