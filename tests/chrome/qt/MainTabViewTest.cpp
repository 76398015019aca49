#include "chrome/qt/MainTabView.h"

#include "foundation/NotificationCenter.h"
#include "support/Palettes.h"

#include <QAccessible>
#include <QTest>
#include <any>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class MainTabViewTest : public testing::Test {
  protected:
    MainTabViewTest() {
        window.resize(500, 100);
        bar.setGeometry(0, 0, 500, 32);
        window.show();
        QCoreApplication::processEvents();
    }

    void click(QPointF position) { QTest::mouseClick(&bar, Qt::LeftButton, {}, position.toPoint()); }

    using Posts = std::vector<std::int64_t>;

    QWidget window;
    MainTabView bar{{u"CSS 3"_s, u"HTML"_s, u"Web Preview"_s}, &window};
    Posts posts;
    NotificationCenter::Observation observation = NotificationCenter::defaultCenter().addObserver(
        "SelectIndexChanged", &bar, [this](const Notification& change) {
            posts.push_back(std::any_cast<std::int64_t>(change.userInfo.at("Index")));
        });
};

TEST_F(MainTabViewTest, announcesClicksThatChangeTheTabAndEverySelectionByTheProgram) {
    EXPECT_EQ(bar.selectIndex(), 0);
    EXPECT_EQ(bar.highlightIndex(), -1);
    for (const int tab : {0, 2, 1}) { // the first is selected already
        click(bar.tabRectangle(tab).center());
        EXPECT_EQ(bar.highlightIndex(), tab);
    }
    EXPECT_EQ(posts, (Posts{2, 1}));
    click({3, 16});
    QTest::mouseClick(&bar, Qt::RightButton, {}, bar.tabRectangle(0).center().toPoint());
    EXPECT_EQ(bar.selectIndex(), 1);
    bar.setSelectIndex(1);
    bar.setSelectIndex(9);
    EXPECT_EQ(posts, (Posts{2, 1, 1, 9}));
    EXPECT_EQ(bar.highlightIndex(), 1);
}

TEST_F(MainTabViewTest, keepsItsHitRectanglesAtTheBottomUntilAnyWindowIsResized) {
    const QRectF tab = bar.tabRectangle(0);
    bar.resize(700, 64);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.tabRectangle(0), tab.translated(0, 32));
    click({tab.center().x(), 5});
    EXPECT_EQ(bar.highlightIndex(), -1) << "above them, where a bar this tall draws its box";
    QWidget other;
    other.resize(300, 300);
    other.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.tabRectangle(0), tab.translated(100, 32));
}

TEST_F(MainTabViewTest, isWorkedWithTheKeyboard) {
    bar.setFocus();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left,
                              Qt::Key_Home, Qt::Key_Home, Qt::Key_End, Qt::Key_Space}) {
        QTest::keyClick(&bar, key);
    }
    EXPECT_EQ(posts, (Posts{1, 2, 1, 0, 2}));
    bar.setSelectIndex(-1);
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(bar.selectIndex(), 0);
}

TEST_F(MainTabViewTest, assistiveToolsSeePageTabsThatCanBePressed) {
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&bar);
    ASSERT_EQ(list->role(), QAccessible::PageTabList);
    ASSERT_EQ(list->childCount(), 3);
    QAccessibleInterface* const tab = list->child(2);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), u"Web Preview"_s);
    EXPECT_FALSE(tab->state().selected);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(posts, Posts{2});
    EXPECT_TRUE(tab->state().selected);
    EXPECT_EQ(list->childAt(tab->rect().center().x(), tab->rect().center().y()), tab);
    bar.setFocus();
    EXPECT_EQ(list->focusChild(), tab);
}

TEST_F(MainTabViewTest, paintsItsOwnColoursOnEveryDesktop) {
    const QImage light = bar.grab().toImage();
    bar.setPalette(darkPalette());
    EXPECT_EQ(bar.grab().toImage(), light);
    EXPECT_NEAR(light.pixelColor(2, 31).red(), 179, 2);
    EXPECT_NEAR(light.pixelColor(2, 0).red(), 220, 2);

    const int x = bar.tabRectangle(2).center().toPoint().x();
    const QColor plain = light.pixelColor(x, 10);
    bar.setSelectIndex(2);
    const QColor boxed = bar.grab().toImage().pixelColor(x, 10);
    EXPECT_NEAR(boxed.red(), 0.6 * plain.red() + 0.4 * 124, 2);
    EXPECT_NEAR(boxed.blue(), 0.6 * plain.blue() + 0.4 * 173, 2);
    bar.setFocus();
    EXPECT_LT(bar.grab().toImage().pixelColor(x, 6).red(), 80) << "the focus is visible";
    EXPECT_DOUBLE_EQ(bar.trackingArea().left(), bar.tabRectangle(0).left() + 5);
    EXPECT_DOUBLE_EQ(bar.trackingArea().right(), bar.tabRectangle(2).right() - 5 + 8);
}

} // namespace
} // namespace tessaly
