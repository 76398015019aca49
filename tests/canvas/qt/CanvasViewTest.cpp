#include "canvas/qt/CanvasView.h"
#include "canvas/CanvasNotifications.h"
#include "canvas/qt/ColorPickerImageView.h"
#include "canvas/qt/NumberFieldEdit.h"
#include "canvas/qt/StopControlPanel.h"
#include "canvas/qt/ValueStepper.h"
#include "support/LogCapture.h"
#include "support/NoPresets.h"

#include <QAccessible>
#include <QColorDialog>
#include <QComboBox>
#include <QMenu>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Positions = std::vector<double>;

class CanvasViewTest : public testing::Test {
  protected:
    CanvasViewTest() {
        GlobalData::sharedData() = GlobalData{};
        auto* const layout = new QVBoxLayout{&window};
        layout->addWidget(canvas);
        layout->addWidget(panel);
        canvas->awakeFromNib(noPresets);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static GlobalData& data() { return GlobalData::sharedData(); }

    template <typename Control>
    Control& named(const char* name) {
        for (auto* const control : window.findChildren<Control*>()) {
            if (control->accessibleName() == QLatin1String(name)) {
                return *control;
            }
        }
        throw std::runtime_error{name};
    }

    QPoint marker(std::int64_t stop) { return canvas->accessibleItemRect(static_cast<int>(stop)).center(); }
    void key(QWidget& widget, Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&widget, code, modifiers);
    }
    void type(const char* field, const QString& text) {
        auto& edit = named<NumberFieldEdit>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        key(edit, Qt::Key_Return);
    }

    const LogCapture log;
    QWidget window;
    StopControlPanel* panel = new StopControlPanel;
    CanvasView* canvas = new CanvasView{*panel};
};

TEST_F(CanvasViewTest, dragsAddsAndDeletesWithTheMouse) {
    QTest::mousePress(canvas, Qt::LeftButton, {}, marker(0));
    QTest::mouseMove(canvas, marker(0) + QPoint{146, -40});
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, marker(0));
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.25, 1.0}));
    QTest::mouseDClick(canvas, Qt::LeftButton, {}, {20 + 292, 150});
    QTest::mouseRelease(canvas, Qt::LeftButton);
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.25, 0.5, 1.0}));
    QContextMenuEvent menu{QContextMenuEvent::Mouse, marker(0), canvas->mapToGlobal(marker(0))};
    QApplication::sendEvent(canvas, &menu);
    auto* const popup = canvas->findChild<QMenu*>();
    ASSERT_TRUE(popup->isVisible());
    popup->actions().first()->trigger();
    popup->hide();
    EXPECT_EQ(data().colorMarkerPos(), (Positions{0.5, 1.0}));
}

TEST_F(CanvasViewTest, movesSelectsAndDeletesWithTheKeyboard) {
    canvas->setFocus();
    key(*canvas, Qt::Key_Left, Qt::ShiftModifier);
    key(*canvas, Qt::Key_Right);
    EXPECT_DOUBLE_EQ(data().colorMarkerPos()[1], 575.0 / 584);
    key(*canvas, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(canvas->editor().markers().selectedColorMarkerIndex(), 0);
    EXPECT_TRUE(canvas->hasFocus());
    key(*canvas, Qt::Key_Delete);
    EXPECT_EQ(data().stopCount(), 1U);
    key(*canvas, Qt::Key_Tab);
    EXPECT_FALSE(canvas->hasFocus()) << "past the last stop Tab leaves the canvas";
}

TEST_F(CanvasViewTest, fieldsRefuseWhatIsNoNumberAndActWhenChanged) {
    auto& red = named<NumberFieldEdit>("Red");
    EXPECT_EQ(red.text(), "256");
    type("Red", QStringLiteral("1x2.8"));
    EXPECT_EQ(red.text(), "128");
    EXPECT_EQ(data().colorMarkerColor()[1].calibratedRGB()->red, static_cast<double>(128.0F / 255.0F));
    EXPECT_EQ(named<NumberFieldEdit>("Hue").text(), "180");

    named<NumberFieldEdit>("Position").setFocus(); // green still reads 256 and must not be taken over
    named<NumberFieldEdit>("Green").setFocus();
    named<NumberFieldEdit>("Blue").setFocus();
    EXPECT_EQ(named<NumberFieldEdit>("Green").text(), "256");

    type("Position", QStringLiteral("0.5"));
    EXPECT_EQ(data().colorMarkerPos()[1], 0.5);
    auto& position = named<NumberFieldEdit>("Position");
    key(position, Qt::Key_PageUp);
    key(position, Qt::Key_Down);
    EXPECT_DOUBLE_EQ(data().colorMarkerPos()[1], 0.59);
    EXPECT_EQ(position.text(), "0.590");
    QTest::keyClicks(&position, QStringLiteral("7"));
    key(position, Qt::Key_Escape);
    EXPECT_EQ(position.text(), "0.590");
}

TEST_F(CanvasViewTest, steppersStepByMouseWithinTheirBounds) {
    auto& stepper = named<ValueStepper>("Red stepper");
    EXPECT_EQ(stepper.value(), 255);
    const QPoint down{stepper.width() / 2, stepper.height() * 3 / 4};
    QTest::mouseClick(&stepper, Qt::LeftButton, {}, down);
    EXPECT_EQ(named<NumberFieldEdit>("Red").text(), "254");
    QTest::mouseClick(&stepper, Qt::LeftButton, {}, {down.x(), stepper.height() / 4});
    QTest::mouseClick(&stepper, Qt::LeftButton, {}, {down.x(), stepper.height() / 4});
    EXPECT_EQ(named<NumberFieldEdit>("Red").text(), "255");
    EXPECT_FALSE(named<ValueStepper>("Opacity stepper").isEnabled());
}

TEST_F(CanvasViewTest, listsChooseOrientationAndNotation) {
    auto& orientations = named<QComboBox>("Orientation");
    key(orientations, Qt::Key_Down);
    EXPECT_EQ(data().orientationType(), orientation::bottomToTop);
    auto& notations = named<QComboBox>("Color notation");
    QTest::keyClicks(&notations, QStringLiteral("HSLA"));
    EXPECT_EQ(data().colorFormatType(), colorFormat::hsla);
    EXPECT_TRUE(named<NumberFieldEdit>("Opacity").isEnabled());
}

TEST_F(CanvasViewTest, theWellReportsEachPickOfItsPanel) {
    auto& well = named<ColorPickerImageView>("Stop color");
    well.QWidget::setEnabled(false);
    QTest::mouseClick(&well, Qt::LeftButton);
    EXPECT_EQ(window.findChild<QColorDialog*>(), nullptr);
    well.QWidget::setEnabled(true);
    QTest::mouseClick(&well, Qt::LeftButton);
    auto* const colorPanel = window.findChild<QColorDialog*>();
    ASSERT_NE(colorPanel, nullptr);
    EXPECT_EQ(colorPanel->currentColor(), QColor(Qt::white));
    colorPanel->setCurrentColor(Qt::blue);
    EXPECT_EQ(data().colorMarkerColor()[1], Color::calibratedRGB(0, 0, 1));
    EXPECT_EQ(named<NumberFieldEdit>("Blue").text(), "256");
    canvas->setFocus();
    key(*canvas, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(colorPanel->currentColor(), QColor(Qt::black)) << "the open panel follows the selection";
    EXPECT_EQ(data().colorMarkerColor()[0], Color::black());

    int posts = 0;
    const auto observation = NotificationCenter::defaultCenter().addObserver(
        canvasNotification::colorChanged, static_cast<ColorWell*>(&well), [&](const auto&) { ++posts; });
    well.setBackgroundColor(Color::withoutRGBForm());
    EXPECT_TRUE(well.backgroundColor().calibratedRGB());
    EXPECT_GE(posts, 1);
}

TEST_F(CanvasViewTest, assistiveToolsSeeTheStops) {
    QAccessibleInterface* const view = QAccessible::queryAccessibleInterface(canvas);
    EXPECT_EQ(view->text(QAccessible::Name), QStringLiteral("Gradient canvas"));
    ASSERT_EQ(view->childCount(), 2);
    QAccessibleInterface* const stop = view->child(0);
    EXPECT_EQ(stop->text(QAccessible::Name), QStringLiteral("Stop 1"));
    EXPECT_EQ(stop->text(QAccessible::Description), QStringLiteral("Position 0.000, color #000000"));
    EXPECT_FALSE(stop->state().selected);
    stop->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(stop->state().selected);
    EXPECT_EQ(view->indexOfChild(stop), 0);
    data().colorMarkerPos().clear();
    EXPECT_TRUE(stop->state().invalid);
}

} // namespace
} // namespace tessaly
