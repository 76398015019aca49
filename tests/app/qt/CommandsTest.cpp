// The whole program but for the preview, by keys, mouse and menus.

#include "app/GradientChooser.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/ColorPickerImageView.h"
#include "chrome/qt/MainTabView.h"
#include "foundation/NotificationCenter.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/SourceView.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"
#include "support/TemporaryFolder.h"

#include <QAccessible>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr auto control = Qt::ControlModifier;

class CommandsTest : public testing::Test {
  protected:
    CommandsTest() {
        window().show();
        activateWindow();
        views().canvas->setFocus();
    }

    void activateWindow() {
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    MainWindow& window() { return program->mainWindow(); }
    const MainWindow::Views& views() { return window().views(); }
    QString code() { return views().stylesheet->textView().toPlainText(); }
    QString message() { return views().message->accessibleDescription(); }
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
    void typeInto(const QString& field, const QString& text) {
        auto& edit = *window().findChild<QLineEdit*>(field);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    void paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        key(Qt::Key_V, control);
    }
    // As a drag that comes to the middle of a widget and is let go there.
    static bool drop(QWidget& on, const QMimeData& data) {
        const QPoint place = on.rect().center();
        QDragEnterEvent enter{place, Qt::CopyAction, &data, Qt::LeftButton, {}};
        QDropEvent drop{place, Qt::CopyAction, &data, Qt::LeftButton, {}};
        for (QDropEvent* const event : {static_cast<QDropEvent*>(&enter), &drop}) {
            event->ignore();
            QApplication::sendEvent(&on, event);
            if (!event->isAccepted()) {
                return false;
            }
        }
        return true;
    }
    int presets() {
        return QAccessible::queryAccessibleInterface(window().findChild<QWidget*>(u"presets"_s))
            ->childCount();
    }
    /// All that can be seen of the document, but for the code, in which the user may type.
    QString state() {
        QString text = QString::number(presets());
        for (const QComboBox* const list : window().findChildren<QComboBox*>()) {
            text += u' ' + list->currentText();
        }
        const QAccessibleInterface& canvas = *QAccessible::queryAccessibleInterface(views().canvas);
        for (int stop = 0; stop < canvas.childCount(); ++stop) {
            text += u' ' + canvas.child(stop)->text(QAccessible::Description);
        }
        return text;
    }
    void actAtRandom();

    std::mt19937 random{5};
    int below(qsizetype limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    const LogCapture log;
    const TemporaryFolder temporary;
    std::unique_ptr<Tessaly> program = std::make_unique<Tessaly>(temporary.path, temporary.path);
};

void CommandsTest::actAtRandom() {
    constexpr std::array keys{Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,
                              Qt::Key_Insert, Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_Backtab,
                              Qt::Key_Tab,    Qt::Key_Return, Qt::Key_Home,   Qt::Key_7};
    const std::array commands{u"New"_s, u"Add Stop"_s, u"Delete Stop"_s, u"Paste"_s, u"Write"_s};
    CanvasView& canvas = *views().canvas;
    const QPoint place{20 + below(584), 20 + below(157)};
    switch (below(10)) {
    case 0:
        return QTest::mouseDClick(&canvas, Qt::LeftButton, {}, place);
    case 1:
        QTest::mousePress(&canvas, Qt::LeftButton, {},
                          canvas.accessibleItemCount() > 0
                              ? canvas.accessibleItemRect(below(canvas.accessibleItemCount())).center()
                              : place);
        QTest::mouseMove(&canvas, place);
        return QTest::mouseRelease(&canvas, Qt::LeftButton, {}, place);
    case 2:
        return item(commands[random() % commands.size()]).trigger();
    case 3:
        window().findChild<ColorPickerImageView*>()->click();
        window().findChild<QColorDialog*>()->setCurrentColor(QColor::fromHsv(below(360), 255, 255));
        return window().activateWindow();
    case 4:
        return QTest::mouseClick(window().findChild<QPushButton*>(u"addPreset"_s), Qt::LeftButton);
    default:
        QList<QWidget*> controls = window().findChildren<QWidget*>();
        controls.removeIf([this](const QWidget* widget) { // one of the tabs starts the engine
            return widget->focusPolicy() == Qt::NoFocus || !widget->isEnabled() || !widget->isVisible() ||
                   widget->window() != &window() || widget == views().tabs;
        });
        controls[below(controls.size())]->setFocus();
        key(keys[random() % keys.size()]);
    }
}

TEST_F(CommandsTest, stepsGoBackThroughWhatWasSeenAndForthToTheLast) {
    const QString start = code();
    QGuiApplication::clipboard()->setText(u"radial-gradient(red, lime 40%, blue)"_s);
    std::vector<QString> seen{state()};
    for (int action = 0; action < 1000; ++action) {
        actAtRandom();
        seen.push_back(state());
        views().canvas->setFocus(); // which ends what is being typed
        seen.push_back(state());
    }
    std::size_t at = seen.size() - 1;
    int steps = 0;
    for (; item(u"Undo"_s).isEnabled(); ++steps) {
        steps % 2 == 0 ? undo() : item(u"Undo "_s).trigger();
        while (at > 0 && seen[at] != state()) {
            --at;
        }
        ASSERT_EQ(seen[at], state()) << "step " << steps;
    }
    EXPECT_EQ(seen[at], seen.front());
    EXPECT_GT(steps, 200);
    item(u"Write"_s).trigger(); // over what was typed
    EXPECT_EQ(code(), start);
    for (; item(u"Redo"_s).isEnabled(); --steps) {
        redo();
    }
    EXPECT_EQ(steps, 0);
    EXPECT_EQ(state(), seen.back());
}

TEST_F(CommandsTest, undoBelongsToWhatIsBeingTyped) {
    const QString start = code();
    typeInto(u"redTextField"_s, u"12"_s);
    undo();
    EXPECT_EQ(code(), start);
    EXPECT_EQ(window().findChild<QLineEdit*>(u"redTextField"_s)->text(), u"256"_s);

    CustomTextView& view = views().stylesheet->textView();
    view.setFocus();
    QTest::keyClicks(&view, u"a"_s);
    undo();
    EXPECT_EQ(code(), start);
    key(Qt::Key_Insert);
    key(Qt::Key_Delete);
    EXPECT_EQ(code(), start.mid(1));
    item(u"Write"_s).trigger();
    EXPECT_EQ(code(), start);
    undo();
    EXPECT_EQ(code(), start.mid(1));

    views().canvas->setFocus();
    key(Qt::Key_Insert);
    QContextMenuEvent event{QContextMenuEvent::Keyboard, {}, {}};
    QApplication::sendEvent(views().canvas, &event);
    auto* const menu = views().canvas->findChild<QMenu*>();
    QTest::keyClick(menu, Qt::Key_Z, control);
    EXPECT_TRUE(item(u"Undo Add Stop"_s).isEnabled()) << "not beneath an open menu";
    menu->close();
    undo();
    EXPECT_EQ(code(), start.mid(1)) << "in what the user has changed";
    typeInto(u"redTextField"_s, u"77"_s);
    program.reset(); // applies it, and ends
}

TEST_F(CommandsTest, anItemThatAssistiveToolsPressInAnOpenMenuClosesItAndActs) {
    for (QMenu* const menu : {views().menu->actions().at(2)->menu(), &views().canvas->markerMenu()}) {
        const QString start = code();
        menu->popup({});
        item(u"Duplicate"_s).trigger(); // as the toolkit does for them
        EXPECT_FALSE(menu->isVisible());
        EXPECT_NE(code(), start);
    }
}

TEST_F(CommandsTest, picksOfOneVisitToThePanelAreOneStepUnlessTheyAreGivenUp) {
    const QString start = code();
    auto* const well = window().findChild<ColorPickerImageView*>();
    for (const QColor color : {Qt::red, Qt::green, Qt::yellow}) {
        well->click();
        auto* const panel = window().findChild<QColorDialog*>();
        panel->setCurrentColor(Qt::blue);
        panel->setCurrentColor(color);
        if (color == Qt::yellow) {
            QTest::keyClick(panel, Qt::Key_Escape);
        }
        panel->close();
    }
    EXPECT_TRUE(code().contains(u"#00ff00"_s)) << code().toStdString();
    activateWindow();
    undo();
    EXPECT_TRUE(code().contains(u"#ff0000"_s)) << code().toStdString();
    undo();
    EXPECT_EQ(code(), start);
}

TEST_F(CommandsTest, takesWhatIsPastedDroppedAndTypedOrSaysWhyNot) {
    paste(u"linear-gradient(37deg, #f008, blue)"_s);
    EXPECT_EQ(message(), u"37° taken as 45°"_s);
    const QString taken = code();
    EXPECT_TRUE(taken.contains(u"rgba(256,0,0, 0.5)"_s)) << taken.toStdString();
    paste(u"nothing"_s);
    EXPECT_EQ(message(), u"No gradient in the clipboard"_s);
    typeInto(u"hexadecimalField"_s, u"tea\r"_s);
    EXPECT_EQ(message(), u"“tea” is no color"_s);
    EXPECT_EQ(code(), taken);
    typeInto(u"hexadecimalField"_s, u"teal\r"_s);
    EXPECT_EQ(message(), QString{});
    EXPECT_EQ(window().findChild<QLineEdit*>(u"hexadecimalField"_s)->text(), u"#008080"_s);
    undo();

    QMimeData dropped;
    dropped.setText(u".a{background:radial-gradient(red,blue)} .b{background:linear-gradient(red,lime)}"_s);
    EXPECT_TRUE(drop(window(), dropped));
    auto* chooser = window().findChild<GradientChooser*>();
    ASSERT_NE(chooser, nullptr);
    auto* const list = chooser->findChild<QListView*>();
    EXPECT_EQ(list->model()->index(1, 0).data().toString(), u".b"_s);
    list->selectAll();
    const auto buttons = chooser->findChildren<QPushButton*>();
    (*std::ranges::find(buttons, u"&Add to Presets"_s, &QPushButton::text))->click();
    EXPECT_EQ(presets(), 2);
    EXPECT_TRUE(item(u"Undo Add to Presets"_s).isEnabled());
    EXPECT_EQ(code(), taken);

    const std::string file = temporary.path / "one.css";
    std::ofstream{file} << "background: linear-gradient(37deg, red, blue)";
    dropped.setUrls({QUrl::fromLocalFile(QString::fromStdString(file)), QUrl::fromLocalFile(u"/other"_s)});
    QWidget& codeView = *views().stylesheet->textView().viewport();
    EXPECT_TRUE(drop(codeView, dropped)) << "left to the window";
    EXPECT_EQ(message(), u"37° taken as 45°; 1 more file(s) left out"_s);
    item(u"Undo"_s).trigger();

    dropped.clear();
    dropped.setText(u"/* typed */"_s + QString{600'000, u' '} + u"background: linear-gradient(red, blue)"_s);
    EXPECT_TRUE(drop(window(), dropped));
    window().findChild<QProgressDialog*>()->findChild<QPushButton*>()->click();
    EXPECT_TRUE(eventually([&] { return window().findChild<QProgressDialog*>() == nullptr; }));
    EXPECT_EQ(code(), taken);
    EXPECT_TRUE(drop(window(), dropped));
    EXPECT_TRUE(eventually([&] { return code() != taken; }));
    EXPECT_TRUE(drop(codeView, dropped));
    EXPECT_TRUE(code().contains(u"/* typed */"_s));
}

TEST_F(CommandsTest, listsPresetsAtTheStartAsItDidBefore) {
    const auto fifth = [this] {
        return window().findChild<PresetGradienContainerView*>(u"presets"_s)->accessibleItemRect(4);
    };
    for (int i = 0; i < 11; ++i) { // more than the list is high
        window().findChild<QPushButton*>(u"addPreset"_s)->click();
    }
    const QRect before = fifth();
    EXPECT_EQ(before.left(), 211) << "as beside a scroller";
    program.reset();
    program = std::make_unique<Tessaly>(temporary.path, temporary.path);
    EXPECT_EQ(fifth(), before);
}

TEST_F(CommandsTest, listensToItsOwnTabs) {
    const int others = 0; // those of the related applications
    NotificationCenter::defaultCenter().post({"SelectIndexChanged", &others, {{"Index", std::int64_t{1}}}});
    EXPECT_TRUE(views().stylesheet->isVisible());
}

TEST_F(CommandsTest, everythingIsNamedAndNoTwoShareAKeyOrALetter) {
    QStringList letters;
    for (QWidget* const widget : window().findChildren<QWidget*>()) {
        const bool isMenu = qobject_cast<QMenu*>(widget) != nullptr;
        const QString text = widget->property(isMenu ? "title" : "text").toString();
        if (text.contains(u'&')) {
            letters << text.mid(text.indexOf(u'&') + 1, 1).toLower();
        }
        const bool takesKeys = widget->focusPolicy() != Qt::NoFocus && widget->isVisibleTo(&window());
        if ((takesKeys && widget != views().tabs) || widget == views().message) {
            EXPECT_NE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name), QString{})
                << widget->metaObject()->className();
        }
    }
    QStringList keys;
    for (const QAction* const action : window().findChildren<QAction*>()) {
        keys << action->shortcut().toString();
    }
    keys.removeAll(QString{});
    for (QStringList once : {letters, keys}) {
        EXPECT_GE(once.size(), 8);
        EXPECT_EQ(once.removeDuplicates(), 0) << "but for one, there are " << once.join(u' ').toStdString();
    }
}

} // namespace
} // namespace tessaly
