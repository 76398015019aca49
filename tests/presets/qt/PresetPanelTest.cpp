#include "presets/qt/PresetPanel.h"
#include "foundation/qt/ReadableColor.h"
#include "presets/PresetGallery.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "presets/qt/PresetThumbnail.h"
#include "support/Gradients.h"
#include "support/LogCapture.h"
#include "support/NoHistory.h"
#include "support/Palettes.h"

#include <QAccessible>
#include <QLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
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
    int applied = 0, saved = 0;
    Gradient edited = defaultRecord().gradient;
    NoHistory history;
    PresetGallery gallery{edited, history, *panel, {[this] { ++applied; }, [this] { ++saved; }}};
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

TEST_F(PresetPanelTest, movesWithControlAndTheMouseOrTheArrowsUnlessTheDragIsGivenUp) {
    const auto order = [this] {
        std::string text;
        for (const auto& preset : gallery.presetGradient()) {
            text += std::to_string(preset->orientation());
        }
        return text;
    };
    for (const std::int64_t orientation : {0, 1, 2, 3, 4}) {
        edited.setOrientation(orientation);
        gallery.addGradientIntoPreset();
    }
    const auto drag = [this](int from, int to, Qt::KeyboardModifiers modifiers,
                             const std::function<void()>& meanwhile) {
        const QPoint end = container.accessibleItemRect(to).center() + QPoint{5, 0}; // past its middle
        QTest::mousePress(&container, Qt::LeftButton, modifiers, container.accessibleItemRect(from).center());
        QTest::mouseMove(&container, end);
        QTest::qWait(50); // which lets the list scroll
        meanwhile();
        QTest::mouseRelease(&container, Qt::LeftButton, modifiers, end);
    };
    const auto escape = [this] { QTest::keyClick(&container, Qt::Key_Escape); };
    const auto deleteLast = [this] { gallery.deletePreset(4); };
    const auto right = [this] { QTest::keyClick(&container, Qt::Key_Right, Qt::ControlModifier); };
    const auto left = [this] { QTest::keyClick(&container, Qt::Key_Left, Qt::ControlModifier); };
    const struct {
        std::function<void()> act;
        const char* order;
        int current;
        int saves;
    } rows[] = {{[&] { drag(0, 3, Qt::ControlModifier, [] {}); }, "12304", 3, 1},
                {[&] { drag(4, 1, Qt::ControlModifier, [] {}); }, "12430", 2, 1},
                {[&] { drag(1, 1, Qt::ControlModifier, [] {}); }, "12430", 1, 0},
                {[&] { drag(0, 3, {}, [] {}); }, "12430", 0, 0},
                {[&] { drag(0, 3, Qt::ControlModifier, escape); }, "12430", 0, 0},
                {right, "21430", 1, 1},
                {right, "24130", 2, 1},
                {[&] { left(), left(), left(); }, "12430", 0, 2},
                {[&] { drag(0, 3, Qt::ControlModifier, deleteLast); }, "1243", 0, 1}};
    for (const auto& row : rows) {
        saved = 0;
        row.act();
        EXPECT_EQ(order(), row.order);
        EXPECT_EQ(container.currentAccessibleItem(), row.current) << row.order;
        EXPECT_EQ(saved, row.saves) << row.order;
    }
    EXPECT_EQ(applied, 1) << "by the drag without the key";
    auto* const last = QAccessible::queryAccessibleInterface(&container)->child(3)->actionInterface();
    EXPECT_TRUE(last->actionNames().contains(QStringLiteral("delete")));
    last->doAction(QStringLiteral("delete"));
    EXPECT_EQ(order(), "124");
}

// The strongest contrast of a pixel there with the window's colour.
double contrastIn(const QImage& picture, const QRect& place, const QPalette& palette) {
    double strongest = 1;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const RGBAComponents pixel = toComponents(picture.pixelColor(x, y));
            strongest =
                std::max(strongest, contrastBetween(pixel, toComponents(palette.color(QPalette::Window))));
        }
    }
    return strongest;
}

TEST_F(PresetPanelTest, endsWithItsButtonAndKeepsThumbnailsToTheMiddleHoweverWideItIs) {
    const auto& list = *panel->findChild<QScrollArea*>();
    const int usual = container.mapTo(&list, QPoint{}).x();
    panel->resize(panel->minimumSizeHint().width() + 100, panel->height());
    EXPECT_EQ(list.geometry().right(), panel->findChild<QPushButton*>()->geometry().right());
    EXPECT_EQ(container.mapTo(&list, QPoint{}).x(), usual + 50);
}

// Run at several scales.
TEST_F(PresetPanelTest, frameAndNoteCanBeSeenOnAnyDesktopAndTheFocusAfterAKeyAlone) {
    auto* const view = panel->findChild<QScrollArea*>();
    panel->layout()->setContentsMargins(3, 3, 3, 3);   // at a scale of 1.25 the frame lies between pixels
    panel->setFont(QFont{panel->font().family(), 24}); // the strokes of its letters fill pixels
    const auto shown = [&] {
        const QImage picture = panel->grab().toImage();
        const QRectF place{view->mapTo(panel.get(), QPoint{}), QSizeF{view->size()}};
        const double scale = picture.devicePixelRatio();
        return picture.copy(QRectF{place.topLeft() * scale, place.size() * scale}.toAlignedRect());
    };
    for (const QPalette& palette : {QPalette{QColor{0xef, 0xef, 0xef}}, darkPalette()}) {
        panel->setPalette(palette);
        const QImage picture = shown();
        const int right = picture.width() - 2,
                  bottom = picture.height() - 2; // of what may be a row of the panel
        for (int at = 4; at < bottom - 4; ++at) {
            ASSERT_GE(contrastIn(picture, {0, at, 2, 1}, palette), 3.0) << "left " << at;
            ASSERT_GE(contrastIn(picture, {right, at, 2, 1}, palette), 3.0) << "right " << at;
        }
        for (int at = 4; at < right - 4; ++at) {
            ASSERT_GE(contrastIn(picture, {at, 0, 1, 2}, palette), 3.0) << "top " << at;
            ASSERT_GE(contrastIn(picture, {at, bottom, 1, 2}, palette), 3.0) << "bottom " << at;
        }
        EXPECT_GE(contrastIn(picture, picture.rect().adjusted(8, 8, -8, -8), palette), 4.5) << "the note";
    }
    gallery.addGradientIntoPreset();
    const QImage listed = shown();
    const QRect middle{listed.rect().center() - QPoint{40, 40}, QSize{80, 80}};
    EXPECT_LT(contrastIn(listed, middle, panel->palette()), 1.1) << "the note is gone";
    container.setFocus(Qt::TabFocusReason);
    const QImage withFrame = shown();
    const auto isFrameShown = [&] { return shown() == withFrame; };
    const auto click = [&](Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(&container, Qt::LeftButton, modifiers, container.accessibleItemRect(0).center());
    };
    click({});
    EXPECT_FALSE(isFrameShown());
    QTest::keyClick(&container, Qt::Key_Control);
    EXPECT_FALSE(isFrameShown());
    QTest::keyClick(&container, Qt::Key_Right); // to where there is none
    EXPECT_TRUE(isFrameShown());
    click(Qt::ControlModifier);
    EXPECT_FALSE(isFrameShown());
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
