// The whole program but for the preview, by keys, mouse and menus.

#include "app/GradientChooser.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/ColorPickerImageView.h"
#include "canvas/qt/NumberFieldEdit.h"
#include "canvas/qt/StopControlPanel.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/SourceView.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <QAccessible>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace tessaly {
namespace {

constexpr auto control = Qt::ControlModifier;

class CommandsTest : public testing::Test {
  protected:
    CommandsTest() {
        program->mainWindow().show();
        QApplication::setActiveWindow(&window());
        views().canvas->setFocus();
    }

    MainWindow& window() { return program->mainWindow(); }
    const MainWindow::Views& views() { return window().views(); }
    QString code() { return views().stylesheet->textView().toPlainText(); }
    QString message() { return views().message->accessibleDescription(); }
    NumberFieldEdit& field(const char* name) {
        return *window().findChild<NumberFieldEdit*>(QLatin1StringView{name});
    }
    QAction& item(const QString& start) {
        for (QAction* const menu : views().menu->actions()) {
            for (QAction* const action : menu->menu()->actions()) {
                if (action->text().remove(u'&').startsWith(start)) {
                    return *action;
                }
            }
        }
        throw std::runtime_error{"no such item"};
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    void undo() { key(Qt::Key_Z, control); }
    void redo() { key(Qt::Key_Z, control | Qt::ShiftModifier); }
    void doubleClick(QPoint place) { QTest::mouseDClick(views().canvas, Qt::LeftButton, {}, place); }
    void type(NumberFieldEdit& edit, const QString& text) {
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    void paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        key(Qt::Key_V, control);
    }
    QString presets() {
        return QString::number(
            QAccessible::queryAccessibleInterface(window().findChild<QWidget*>(QStringLiteral("presets")))
                ->childCount());
    }
    void actAtRandom();

    std::mt19937 random{5};
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    const LogCapture log;
    const TemporaryFolder temporary;
    std::unique_ptr<Tessaly> program = std::make_unique<Tessaly>(temporary.path, temporary.path);
};

void CommandsTest::actAtRandom() {
    CanvasView& canvas = *views().canvas;
    const QPoint place{20 + below(584), 20 + below(157)};
    constexpr std::array keys{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,
                              Qt::Key_Tab,  Qt::Key_Insert, Qt::Key_Delete, Qt::Key_PageUp};
    constexpr std::array fields{"redTextField", "hueTextField", "selectedPosTextField",
                                "selectedOpacityTextField"};
    auto* const list = window().findChildren<QComboBox*>().at(below(2));
    switch (below(7)) {
    case 0:
        canvas.setFocus();
        return key(keys[random() % keys.size()]);
    case 1:
        QTest::mousePress(&canvas, Qt::LeftButton, {},
                          canvas.accessibleItemCount() > 0
                              ? canvas.accessibleItemRect(below(canvas.accessibleItemCount())).center()
                              : place);
        QTest::mouseMove(&canvas, place);
        return QTest::mouseRelease(&canvas, Qt::LeftButton, {}, place);
    case 2:
        return doubleClick(place);
    case 3:
        type(field(fields[random() % fields.size()]), QString::number(below(300)));
        return key(Qt::Key_Return);
    case 4:
        list->setFocus();
        return key(below(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
    case 5:
        return QTest::mouseClick(window().findChild<QPushButton*>(QStringLiteral("addPreset")),
                                 Qt::LeftButton);
    default:
        return item(below(8) == 0 ? QStringLiteral("New") : QStringLiteral("Add Stop")).trigger();
    }
}

TEST_F(CommandsTest, stepsGoBackThroughWhatWasSeenAndForthToTheLast) {
    std::vector<QString> seen{code() + presets()};
    for (int action = 0; action < 500; ++action) {
        actAtRandom();
        seen.push_back(code() + presets());
    }
    const QString last = seen.back();
    std::size_t at = seen.size() - 1;
    int steps = 0;
    for (; item(QStringLiteral("Undo")).isEnabled(); ++steps) {
        steps % 2 == 0 ? undo() : item(QStringLiteral("Undo ")).trigger();
        const QString now = code() + presets();
        while (at > 0 && seen[at] != now) {
            --at;
        }
        ASSERT_EQ(seen[at], now) << "step " << steps;
    }
    EXPECT_EQ(seen[at], seen.front());
    EXPECT_GT(steps, 200);
    for (; item(QStringLiteral("Redo")).isEnabled(); --steps) {
        redo();
    }
    EXPECT_EQ(steps, 0);
    EXPECT_EQ(code() + presets(), last);
}

TEST_F(CommandsTest, undoBelongsToWhatIsBeingTyped) {
    const QString start = code();
    NumberFieldEdit& red = field("redTextField");
    type(red, QStringLiteral("12"));
    undo();
    EXPECT_EQ(code(), start);
    EXPECT_EQ(red.QLineEdit::text(), QStringLiteral("256"));
    for (const char* const text : {"12", "5"}) {
        type(red, QLatin1StringView{text});
        key(Qt::Key_Return);
    }
    undo();
    EXPECT_EQ(red.QLineEdit::text(), QStringLiteral("12"));
    EXPECT_EQ(item(QStringLiteral("Redo")).text(), QStringLiteral("&Redo Change Color"));
    undo();
    undo();
    EXPECT_EQ(code(), start);

    CustomTextView& view = views().stylesheet->textView();
    view.setFocus();
    QTest::keyClicks(&view, QStringLiteral("a"));
    undo();
    EXPECT_EQ(code(), start);
    EXPECT_TRUE(item(QStringLiteral("Redo")).isEnabled());
    key(Qt::Key_Insert);
    key(Qt::Key_Delete);
    EXPECT_EQ(code(), start.mid(1));
    item(QStringLiteral("Write")).trigger();
    EXPECT_EQ(code(), start);
    undo();
    EXPECT_EQ(code(), start.mid(1));

    views().canvas->setFocus();
    doubleClick({100, 50});
    auto* const menu = views().canvas->findChild<QMenu*>();
    menu->popup({});
    QTest::keyClick(menu, Qt::Key_Z, control);
    EXPECT_TRUE(item(QStringLiteral("Undo Add Stop")).isEnabled()) << "not beneath an open menu";
    menu->close();
    type(red, QStringLiteral("77"));
    program.reset(); // applies it, and ends
}

TEST_F(CommandsTest, picksOfOneVisitToThePanelAreOneStep) {
    const QString start = code();
    auto* const well = window().findChild<ColorPickerImageView*>();
    for (const Qt::GlobalColor color : {Qt::red, Qt::green}) {
        well->click();
        auto* const panel = window().findChild<QColorDialog*>();
        panel->setCurrentColor(Qt::blue);
        panel->setCurrentColor(color);
        panel->close();
    }
    well->click();
    QTest::keyClick(window().findChild<QColorDialog*>(), Qt::Key_Escape);
    EXPECT_TRUE(code().contains(QStringLiteral("#00ff00"))) << "nothing was picked in the third";
    well->click();
    window().findChild<QColorDialog*>()->setCurrentColor(Qt::yellow);
    QTest::keyClick(window().findChild<QColorDialog*>(), Qt::Key_Escape);
    EXPECT_TRUE(code().contains(QStringLiteral("#00ff00")));
    QApplication::setActiveWindow(&window());
    undo();
    EXPECT_TRUE(code().contains(QStringLiteral("#ff0000")));
    undo();
    EXPECT_EQ(code(), start);
}

TEST_F(CommandsTest, takesWhatIsPastedDroppedAndTyped) {
    paste(QStringLiteral("linear-gradient(37deg, #f008, blue)"));
    EXPECT_TRUE(code().contains(QStringLiteral("rgba(256,0,0, 0.5)"))) << code().toStdString();
    EXPECT_EQ(message(), QStringLiteral("37° taken as 45°"));
    const QString taken = code();
    paste(QStringLiteral("nothing"));
    EXPECT_EQ(message(), QStringLiteral("No gradient in the clipboard"));
    EXPECT_EQ(code(), taken);
    paste(QStringLiteral("rebeccapurple"));
    EXPECT_EQ(message(), QString{});
    EXPECT_TRUE(code().contains(QStringLiteral("rgba(102,51,154, 1)"))) << code().toStdString();
    undo();
    EXPECT_EQ(code(), taken);

    auto* const hex = window().findChild<FieldEdit*>(QStringLiteral("hexadecimalField"));
    for (const auto& [text, shown] : {std::pair{"teal", "#008080"}, {"tea", "#008080"}}) {
        hex->setFocus();
        hex->selectAll();
        QTest::keyClicks(hex, QLatin1StringView{text});
        key(Qt::Key_Return);
        EXPECT_EQ(hex->text(), shown);
    }
    EXPECT_EQ(message(), QStringLiteral("“tea” is no color"));
    undo();

    QMimeData dropped;
    dropped.setText(
        QStringLiteral(".a{background:radial-gradient(red,blue)} .b{background:linear-gradient(red,lime)}"));
    Q_EMIT window().dropped(dropped);
    auto* chooser = window().findChild<GradientChooser*>();
    ASSERT_NE(chooser, nullptr);
    auto* const list = chooser->findChild<QListView*>();
    EXPECT_EQ(list->model()->index(1, 0).data().toString(), QStringLiteral(".b"));
    list->selectAll();
    for (QPushButton* const button : chooser->findChildren<QPushButton*>()) {
        if (button->text() == QStringLiteral("&Add to Presets")) {
            button->click();
        }
    }
    EXPECT_EQ(presets(), QStringLiteral("2"));
    EXPECT_EQ(item(QStringLiteral("Undo")).text(), QStringLiteral("&Undo Add to Presets"));
    EXPECT_EQ(code(), taken);
}

TEST_F(CommandsTest, everyCommandIsNamedAndNoTwoShareAKeyOrALetter) {
    std::multiset<QString> letters;
    const auto collect = [&](const QString& text) {
        const auto mark = text.indexOf(u'&');
        if (mark >= 0) {
            letters.insert(text.mid(mark + 1, 1).toLower());
        }
    };
    std::multiset<QString> keys;
    for (QAction* const menu : views().menu->actions()) {
        collect(menu->text());
        QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(menu->menu());
        for (int i = 0; i < list->childCount(); ++i) {
            const QAction* const action = menu->menu()->actions().at(i);
            QAccessibleInterface* const entry = list->child(i);
            EXPECT_EQ(entry->text(QAccessible::Name), action->text().remove(u'&'));
            EXPECT_EQ(entry->state().disabled, !action->isEnabled() || action->isSeparator());
            if (!action->shortcut().isEmpty()) {
                keys.insert(action->shortcut().toString());
                EXPECT_TRUE(entry->text(QAccessible::Accelerator).contains(action->shortcut().toString()));
            }
        }
    }
    for (const QLabel* const label : window().findChildren<QLabel*>()) {
        collect(label->text());
    }
    for (const QPushButton* const button : window().findChildren<QPushButton*>()) {
        collect(button->text());
    }
    for (const std::multiset<QString>& once : {letters, keys}) {
        EXPECT_GE(once.size(), 8U);
        for (const QString& one : once) {
            EXPECT_EQ(once.count(one), 1U) << one.toStdString();
        }
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(views().message)->text(QAccessible::Name),
              QStringLiteral("Message"));
}

} // namespace
} // namespace tessaly
