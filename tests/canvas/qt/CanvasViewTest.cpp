#include "canvas/qt/CanvasView.h"
#include "canvas/qt/ColorPickerImageView.h"
#include "canvas/qt/NumberFieldEdit.h"
#include "canvas/qt/StopControlPanel.h"
#include "canvas/qt/ValueStepper.h"
#include "support/LogCapture.h"
#include "support/NoHistory.h"

#include <QAccessible>
#include <QColorDialog>
#include <QComboBox>
#include <QMenu>
#include <QSplitter>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Positions = std::vector<double>;

class CanvasViewTest : public testing::Test {
  protected:
    CanvasViewTest() {
        window.addWidget(canvas);
        window.addWidget(panel);
        canvas->edit(editor);
        panel->connectTo(editor.controls());
        editor.awakeFromNib();
        canvas->setFocus();
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    Positions positions() const {
        Positions all;
        std::ranges::transform(data.gradient.stops(), std::back_inserter(all), &ColorStop::position);
        return all;
    }

    template <typename Control>
    Control& named(const char* name) {
        const auto controls = window.findChildren<Control*>();
        return **std::ranges::find(controls, QLatin1String{name}, &Control::accessibleName);
    }

    std::string text(const char* field) { return named<NumberFieldEdit>(field).text(); }
    QPoint marker(int stop) { return canvas->accessibleItemRect(stop).center(); }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.focusWidget(), code, modifiers);
    }
    void type(const char* field, const QString& text) {
        named<NumberFieldEdit>(field).setFocus(Qt::TabFocusReason); // selects all
        QTest::keyClicks(window.focusWidget(), text);
    }

    const LogCapture log;
    QSplitter window;
    StopControlPanel* panel = new StopControlPanel;
    CanvasView* canvas = new CanvasView;
    GlobalData data;
    NoHistory history;
    GradientEditor editor{data, history, canvas->geometry(), *canvas, panel->controlSet()};
};

TEST_F(CanvasViewTest, addsMovesSelectsAndDeletesWithMouseAndKeyboard) {
    QTest::mousePress(canvas, Qt::LeftButton, {}, marker(0));
    QTest::mouseMove(canvas, marker(0) + QPoint{146, -40});
    QTest::mouseRelease(canvas, Qt::LeftButton);
    QTest::mouseDClick(canvas, Qt::LeftButton, {}, {20 + 292, 150});
    QTest::mouseRelease(canvas, Qt::LeftButton);
    EXPECT_EQ(positions(), (Positions{0.25, 0.5, 1.0}));
    QContextMenuEvent menu{QContextMenuEvent::Mouse, marker(0), canvas->mapToGlobal(marker(0))};
    QApplication::sendEvent(canvas, &menu);
    auto* const popup = canvas->findChild<QMenu*>();
    ASSERT_TRUE(popup->isVisible());
    popup->actions().first()->trigger();
    popup->hide();
    EXPECT_EQ(positions(), (Positions{0.5, 1.0}));
    canvas->pressAccessibleItem(1);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(positions()[0], (292 - 9) / 584.0);
    key(Qt::Key_Insert);
    key(Qt::Key_Delete);
    EXPECT_EQ(positions().size(), 2U);
    for (int tabs = 0; tabs < 3; ++tabs) {
        key(Qt::Key_Tab);
    }
    EXPECT_FALSE(canvas->hasFocus()) << "past the last stop Tab leaves the canvas";
}

TEST_F(CanvasViewTest, fieldsRefuseWhatIsNoNumberAndActWhenChanged) {
    type("Red", QStringLiteral("1x2.8"));
    EXPECT_EQ(text("Hue"), "0") << "not before the end of the edit";
    key(Qt::Key_Return);
    EXPECT_EQ(text("Red") + ' ' + text("Hue"), "128 180");
    named<NumberFieldEdit>("Green").setFocus();
    type("Position", QStringLiteral("0.5"));
    EXPECT_EQ(text("Green"), "256") << "passed through without a change";
    key(Qt::Key_PageUp);
    key(Qt::Key_Down);
    EXPECT_DOUBLE_EQ(positions()[1], 0.59);
    type("Position", QStringLiteral("7"));
    key(Qt::Key_Escape);
    EXPECT_EQ(text("Position"), "0.590");
}

TEST_F(CanvasViewTest, steppersListsAndTheWellAct) {
    auto& stepper = named<ValueStepper>("Red stepper");
    const int up = stepper.height() / 4;
    for (const auto& [y, shown] : {std::pair{3 * up, "254"}, {up, "255"}, {up, "255"}}) {
        QTest::mouseClick(&stepper, Qt::LeftButton, {}, {stepper.width() / 2, y});
        EXPECT_EQ(text("Red"), shown);
    }
    QTest::keyClick(&named<QComboBox>("Orientation"), Qt::Key_Down);
    EXPECT_EQ(data.gradient.orientation(), orientation::bottomToTop);
    EXPECT_FALSE(named<ValueStepper>("Opacity stepper").isEnabled());
    QTest::keyClicks(&named<QComboBox>("Color notation"), QStringLiteral("HSLA"));
    EXPECT_EQ(data.colorFormatType, colorFormat::hsla);
    EXPECT_TRUE(named<ValueStepper>("Opacity stepper").isEnabled());

    QTest::mouseClick(&named<ColorPickerImageView>("Stop color"), Qt::LeftButton);
    auto* const colorPanel = window.findChild<QColorDialog*>();
    colorPanel->setCurrentColor(Qt::blue);
    EXPECT_EQ(text("Red") + text("Blue"), "0256");
    const Color fine = Color::calibratedRGB(0.3001, 0, 0);
    data.gradient.replace(0, {0.0, fine});
    canvas->pressAccessibleItem(0);
    EXPECT_EQ(colorPanel->currentColor().blue(), 0) << "the open panel follows the selection";
    EXPECT_EQ(data.gradient.stopAt(0)->color, fine) << "rounding nothing";
}

TEST_F(CanvasViewTest, whatAssistiveToolsPutInIsTakenAtOnce) {
    canvas->pressAccessibleItem(1);
    const auto put = [&](const char* name, const QString& wanted) {
        auto& field = named<NumberFieldEdit>(name);
        auto* const access = QAccessible::queryAccessibleInterface(&field)->editableTextInterface();
        access->replaceText(0, static_cast<int>(field.QLineEdit::text().size()), wanted);
        return text(name);
    };
    EXPECT_EQ(put("Position", QStringLiteral("0.25")), "0.250");
    EXPECT_DOUBLE_EQ(positions()[1], 0.25);
    EXPECT_EQ(put("Position", QStringLiteral("quarter")), "0.250");
    EXPECT_DOUBLE_EQ(positions()[1], 0.25);
    EXPECT_EQ(put("Red", QStringLiteral("7")), "7");
    EXPECT_EQ(text("Hue"), "180") << "in the stop too";
}

TEST_F(CanvasViewTest, assistiveToolsSeeTheStops) {
    QAccessibleInterface* const view = QAccessible::queryAccessibleInterface(canvas);
    ASSERT_EQ(view->childCount(), 2);
    QAccessibleInterface* const stop = view->child(0);
    EXPECT_EQ(stop->text(QAccessible::Name), QStringLiteral("Stop 1"));
    EXPECT_EQ(stop->text(QAccessible::Description), QStringLiteral("Position 0.000, color #000000"));
    stop->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(stop->state().selected);
    data.gradient =
        Gradient{{{0.5, Color::black()}, {0.5, Color::white()}}}; // the second lies under the first
    view->child(1)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    canvas->findChild<QMenu*>()->actions().first()->trigger();
    EXPECT_EQ(data.gradient.stops(), (std::vector<ColorStop>{{0.5, Color::black()}}));
    data.gradient = {};
    EXPECT_TRUE(stop->state().invalid);
}

} // namespace
} // namespace tessaly
