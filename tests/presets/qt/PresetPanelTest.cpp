#include "presets/qt/PresetPanel.h"
#include "presets/PresetGallery.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "presets/qt/PresetThumbnail.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
#include "support/NoHistory.h"

#include <QAccessible>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class PresetPanelTest : public testing::Test {
  protected:
    PresetPanelTest() {
        panel->connectTo(gallery);
        panel->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(panel.get()));
        container.setFocus();
    }
    void TearDown() override { panel.reset(); }

    const LogCapture log;
    std::unique_ptr<PresetPanel> panel = std::make_unique<PresetPanel>();
    PresetGradienContainerView& container = *panel->findChild<PresetGradienContainerView*>();
    int applied = 0;
    Gradient edited = defaultRecord().gradient;
    NoHistory history;
    PresetGallery gallery{edited, history, *panel, {[this] { ++applied; }, [] {}}};
};

TEST_F(PresetPanelTest, addsAppliesAndDeletesWithMouseKeyboardAndAssistiveTools) {
    for (const std::int64_t orientation : {0, 1, 2, 3, 4, 0}) {
        edited.setOrientation(orientation);
        QTest::mouseClick(panel->findChild<QPushButton*>(), Qt::LeftButton);
    }
    EXPECT_EQ(container.size(), QSize(263, 215));
    QTest::mouseClick(&container, Qt::LeftButton, {}, container.accessibleItemRect(2).center());
    EXPECT_EQ(edited.orientation(), 2);
    QTest::mouseClick(&container, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(applied, 1) << "beside the thumbnails";
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Space, Qt::Key_Delete}) { // below is none
        QTest::keyClick(&container, key);
    }
    EXPECT_EQ(edited.orientation(), 3);
    EXPECT_EQ(gallery.presetGradient()[3]->orientation(), 4);

    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&container);
    list->child(0)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    auto* const popup = container.findChild<QMenu*>();
    EXPECT_EQ(popup->title() + popup->actions().first()->text(), QStringLiteral("Contextual MenuDelete"));
    popup->actions().first()->trigger();
    popup->hide();
    EXPECT_TRUE(log.has("mouseDown") && log.has("deletePresetGradientItem"));
    EXPECT_EQ(gallery.presetGradient()[0]->orientation(), 1);
    EXPECT_EQ(list->child(3)->text(QAccessible::Name), QStringLiteral("Preset 4"));
    list->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(edited.orientation(), 0);
}

TEST(PresetThumbnail, drawsTheGradientInItsDirectionAndOpacity) {
    const ColorStop black{0.0, Color::black()}, faint{1.0, Color::calibratedRGB(1, 0, 0), 0.5};
    constexpr int ratio = 2;
    QImage image(QSize{60, 60} * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::blue);
    QPainter painter{&image};
    drawPresetThumbnail(painter, Gradient{{black, faint}, orientation::bottomToTop}, {10, 10});
    EXPECT_LT(image.pixelColor(30 * ratio, 46 * ratio).red(), 20) << "black at the bottom";
    EXPECT_NEAR(image.pixelColor(30 * ratio, 14 * ratio).blue(), 128, 12) << "what is behind shows through";
}

} // namespace
} // namespace tessaly
