#include "presets/qt/PresetPanel.h"
#include "foundation/NotificationCenter.h"
#include "presets/PresetGallery.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "presets/qt/PresetGradienView.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class PresetPanelTest : public testing::Test {
  protected:
    PresetPanelTest() {
        resetToDefaultGradient();
        panel.connectTo(gallery);
        gallery.observeNotifications();
        panel.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
    }

    ~PresetPanelTest() override { panel.disconnectFromGallery(); }

    void add(std::int64_t orientation) {
        GlobalData::sharedData().setOrientationType(orientation);
        QTest::mouseClick(panel.findChild<QPushButton*>(), Qt::LeftButton);
    }
    PresetGradienContainerView& container() { return *panel.findChild<PresetGradienContainerView*>(); }

    const LogCapture log;
    PresetPanel panel;
    int applied = 0;
    int saved = 0;
    PresetGallery gallery{panel, {[this] { ++applied; }, [this] { ++saved; }}};
};

TEST_F(PresetPanelTest, addsAppliesAndDeletesWithMouseAndKeyboard) {
    for (const std::int64_t orientation : {0, 1, 2, 3, 4, 0}) {
        add(orientation);
    }
    EXPECT_EQ(saved, 6);
    EXPECT_EQ(container().size(), QSize(263, 215));
    QTest::mouseClick(&container(), Qt::LeftButton, {}, container().accessibleItemRect(2).center());
    EXPECT_EQ(GlobalData::sharedData().orientationType(), 2);
    QTest::mouseClick(&container(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(applied, 1) << "beside the thumbnails";
    container().setFocus();
    QTest::keyClick(&container(), Qt::Key_Right);
    QTest::keyClick(&container(), Qt::Key_Down); // no thumbnail there
    QTest::keyClick(&container(), Qt::Key_Space);
    EXPECT_EQ(GlobalData::sharedData().orientationType(), 3);
    QTest::keyClick(&container(), Qt::Key_Delete);
    EXPECT_EQ(gallery.presetGradient().size(), 5U);
    EXPECT_EQ(gallery.presetGradient()[3].orientationType, 4);

    const QPoint first = container().accessibleItemRect(0).center();
    QContextMenuEvent menu{QContextMenuEvent::Mouse, first, container().mapToGlobal(first)};
    QApplication::sendEvent(&container(), &menu);
    auto* const popup = container().findChild<QMenu*>();
    EXPECT_EQ(popup->actions().first()->text(), QStringLiteral("Delete"));
    EXPECT_EQ(popup->title(), QStringLiteral("Contextual Menu"));
    popup->actions().first()->trigger();
    popup->hide();
    EXPECT_TRUE(log.has("mouseDown") && log.has("deletePresetGradientItem"));
    EXPECT_EQ(gallery.presetGradient()[0].orientationType, 1);
    EXPECT_EQ(saved, 8);

    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&container());
    ASSERT_EQ(list->childCount(), 4);
    EXPECT_EQ(list->child(3)->text(QAccessible::Name), QStringLiteral("Preset 4"));
    list->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(GlobalData::sharedData().orientationType(), 0);
}

TEST_F(PresetPanelTest, theKeyboardScrollsThroughThousandsAndAClickDoesNotScroll) {
    for (int i = 0; i < 10'000; ++i) {
        gallery.addGradientIntoPreset(nullptr);
    }
    EXPECT_EQ(gallery.presetGradientThumbDistant(), 49);
    auto* const scrollView = panel.findChild<QScrollArea*>();
    container().setFocus();
    QTest::keyClick(&container(), Qt::Key_Down);
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(&container(), Qt::Key_Down);
    }
    EXPECT_TRUE(container().visibleRegion().contains(container().accessibleItemRect(105).center()));
    QElapsedTimer watch;
    watch.start();
    container().repaint();
    EXPECT_LT(watch.elapsed(), 100) << "only what is visible is painted";
    const int scrolled = scrollView->verticalScrollBar()->value();
    const QRect visible = container().visibleRegion().boundingRect();
    QTest::mouseClick(&container(), Qt::LeftButton, {}, {35, visible.bottom() - 2});
    QTest::mouseClick(&container(), Qt::LeftButton, {}, {35, visible.top() + 2});
    EXPECT_EQ(scrollView->verticalScrollBar()->value(), scrolled);
}

TEST(PresetGradienView, drawsTheGradientInTwoLines) {
    const Preset radial{{0.0, 1.0}, {Color::black(), Color::calibratedRGB(1, 0, 0)}, {1.0, 1.0}, 4};
    const Preset rising{{0.0, 1.0}, {Color::black(), Color::calibratedRGB(1, 0, 0)}, {1.0, 0.5}, 0};
    for (const double ratio : {1.0, 2.0}) {
        const auto picture = [&](const Preset& preset) {
            QImage image((QSizeF{60, 60} * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::blue);
            QPainter painter{&image};
            PresetGradienView{preset}.drawRect(painter, {10, 10});
            return image;
        };
        const auto at = [&](const QImage& image, double x, double y) {
            return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
        };
        EXPECT_LT(at(picture(radial), 30, 30).red(), 12) << "black in the middle";
        EXPECT_EQ(at(picture(radial), 15, 15), QColor(Qt::red)) << "the last colour in the corners";
        EXPECT_LT(at(picture(rising), 30, 46).red(), 20) << "black at the bottom";
        EXPECT_NEAR(at(picture(rising), 30, 14).blue(), 128, 12) << "what is behind shows through";
        EXPECT_EQ(at(picture({}), 30, 30), QColor(Qt::blue));
        EXPECT_EQ(at(picture({}), 30, 9), QColor(Qt::blue)) << "nothing outside the outer line";
        const double pixel = 1 / ratio;
        EXPECT_EQ(at(picture({}), 11 + pixel / 2, 30), QColor(128, 128, 128)) << "one crisp line of grey";
        EXPECT_EQ(at(picture({}), 11 + 3 * pixel / 2, 30), QColor(Qt::white)) << "and one of white behind it";
    }
}

} // namespace
} // namespace tessaly
