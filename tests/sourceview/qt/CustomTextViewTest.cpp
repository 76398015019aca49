#include "sourceview/qt/CustomTextView.h"
#include "support/Palettes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <array>
#include <ctime>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using namespace std::string_literals;

class CustomTextViewTest : public testing::Test {
  protected:
    CustomTextViewTest() {
        QObject::connect(&view, &CustomTextView::userEdited,
                         [this](auto... edit) { edits.push_back({edit...}); });
    }

    void paste(const std::u16string& text) {
        clipboard.setText(QStringView{text}.toString());
        view.paste();
    }

    QClipboard& clipboard = *QGuiApplication::clipboard();
    CustomTextView view;
    std::vector<TextEdit> edits;
};

TEST_F(CustomTextViewTest, keepsEveryCharacterAndEndsLinesWithLF) {
    const std::u16string odd = u"\uFEFFno\u00A0break\u2028nel\u0085\tb\U0001F308 e\u0301\u05D0\u202E\u0000z"s;
    const std::u16string lone{u'x', char16_t{0xD83C}, u'y', char16_t{0xDF08}};
    const std::vector<std::pair<std::u16string, std::u16string>> rows{
        {odd, odd}, {lone, lone}, {u"a\rb\r\nc\u2029d\n\re\r", u"a\nb\nc\nd\n\ne\n"}, {u"", u""}};
    for (const auto& [given, kept] : rows) {
        view.setText(given);
        EXPECT_EQ(view.text(), kept);
        EXPECT_EQ(view.length(), static_cast<std::size_t>(view.document()->characterCount() - 1));
        view.selectAll();
        view.copy();
        if (!kept.empty()) {
            EXPECT_EQ(clipboard.mimeData()->formats(), QStringList{u"text/plain"_s});
            EXPECT_EQ(clipboard.text().toStdU16String(), kept);
        }
        paste(given);
        EXPECT_EQ(view.text(), kept);
    }
}

TEST_F(CustomTextViewTest, writesBehindTheUsersBack) {
    view.setText(u"xxxxxx\n"_s.repeated(300).toStdU16String());
    view.show();
    QTest::keyClicks(&view, u"abcdef"_s);
    view.setSelection({1000, 5});
    view.verticalScrollBar()->setValue(50);
    edits.clear();
    view.replaceCharacters({0, 6}, u"abcdef");
    EXPECT_TRUE(view.document()->isUndoAvailable()) << "nothing changed";
    int touched = 0;
    QObject::connect(view.document(), &QTextDocument::contentsChange,
                     [&](int, int removed, int added) { touched += removed + added; });
    view.replaceCharacters({0, 6}, u"abc-def");
    EXPECT_EQ(touched, 1) << "the part that differs";
    EXPECT_FALSE(view.document()->isUndoAvailable());
    EXPECT_EQ(view.selection(), (TextRange{1001, 5})) << "beside the same text";
    view.replaceCharacters({1001, 0}, u"at the caret");
    EXPECT_EQ(view.selection(), (TextRange{1001, 17})) << "the caret stays before text put in at it";
    view.replaceCharacters({2100, 9999}, u"");
    EXPECT_EQ(view.length(), 2100U);
    EXPECT_EQ(view.verticalScrollBar()->value(), 50);
    EXPECT_TRUE(edits.empty());

    view.setText(u"ab--c");
    view.setSelection({1, 1});
    view.insertText(u"\r\nxy");
    EXPECT_EQ(view.text(), u"a\nxy--c");
    EXPECT_EQ(view.selection(), (TextRange{4, 0}));
    view.moveToBeginningOfDocument();
    EXPECT_EQ(view.selection(), TextRange{});
}

TEST_F(CustomTextViewTest, reportsEveryEditOfTheUserAndNothingElse) {
    std::mt19937 random{6};
    const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
    std::u16string shadow;
    const std::vector<std::function<void()>> actions{
        [&] { paste(u"p\u2028\r\nq\U0001F308"); },
        [&] { view.undo(); },
        [&] { view.redo(); },
        [&] { view.cut(); },
        [&] {
            QInputMethodEvent event{u"ni"_s, {}};
            event.setCommitString(random() % 2 != 0 ? u"\u4F60"_s : QString{}); // or still composing
            QCoreApplication::sendEvent(&view, &event);
        },
        [&] {
            const TextRange range = view.selection();
            view.replaceCharacters(range, u"generated\n");
            ASSERT_TRUE(edits.empty());
            shadow.replace(range.location, range.length, u"generated\n");
        },
        [&] {
            QTest::keyClick(&view, std::array{Qt::Key_A, Qt::Key_Backspace, Qt::Key_Return}[upTo(2)]);
        }};
    for (int i = 0; i < 1500; ++i) {
        view.setSelection({upTo(view.length()), upTo(i % 50 == 0 ? view.length() : 3)});
        edits.clear();
        actions[std::min(upTo(9), actions.size() - 1)]();
        for (const TextEdit& edit : edits) {
            ASSERT_LE(edit.position + edit.removed, shadow.size());
            shadow.replace(edit.position, edit.removed, view.text().substr(edit.position, edit.added));
        }
        ASSERT_EQ(shadow, view.text()) << "step " << i;
    }
}

TEST_F(CustomTextViewTest, takesPlainTextOnly) {
    auto* const data = new QMimeData; // the clipboard owns it
    data->setHtml(u"<b>bold</b>"_s);
    data->setData(u"text/markdown"_s, "**bold**");
    data->setUrls({QUrl{u"file:///etc/passwd"_s}});
    clipboard.setMimeData(data);
    view.paste();
    EXPECT_FALSE(view.canPaste());
    EXPECT_EQ(view.text(), u"");
    data->setText(u"**plain**"_s);
    view.paste();
    EXPECT_EQ(view.text(), u"**plain**");
    view.setReadOnly(true);
    view.paste();
    EXPECT_EQ(view.length(), 9U);
}

TEST_F(CustomTextViewTest, answersSoonAfterAPasteOfFiveMegabytes) {
    const QString line = u"\tbackground: linear-gradient(to right, #000000 0%, #ffffff 100%);\n"_s;
    view.show();
    for (const std::u16string& text :
         {line.repeated(75'000).toStdU16String(), std::u16string(5'000'000, u'x')}) {
        view.setText(u"before\n\nafter");
        EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
        view.setSelection({7, 0});
        QCoreApplication::processEvents();
        const std::clock_t start = std::clock();
        paste(text);
        view.grab();
        QTest::keyClick(&view, Qt::Key_Left);
        // Of processor time, so that a busy machine does not make it fail.
        EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 2.0);
        EXPECT_EQ(view.length(), text.size() + 13);
    }
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::NoWrap) << "a line is too long";
    view.undo();
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(CustomTextViewTest, theKeyboardIsNotTrapped) {
    QWidget window;
    QLineEdit before{&window};
    view.setParent(&window);
    QLineEdit after{&window};
    window.show();
    using Row = std::tuple<Qt::Key, Qt::KeyboardModifier, QWidget*>;
    for (const auto& [key, modifier, focused] : {Row{Qt::Key_Tab, Qt::NoModifier, &view},
                                                 {Qt::Key_Tab, Qt::ControlModifier, &after},
                                                 {Qt::Key_Backtab, Qt::ShiftModifier, &before}}) {
        view.setFocus();
        QTest::keyClick(&view, key, modifier);
        EXPECT_EQ(window.focusWidget(), focused);
    }
    EXPECT_EQ(view.text(), u"\t");
    view.setParent(nullptr);
}

class BandTest : public CustomTextViewTest {
  protected:
    BandTest() {
        view.resize(300, 200);
        view.awakeFromNib();
        view.setText(u"one\ntwo\nthree\n" + std::u16string(60, u'w') + u"\n");
        view.show();
    }
    // Rows that stand below one another, as the band covers them on whole points.
    QRect rows(int first, int count) const {
        const QRect row = view.highlightRectForRange({0, 0}).toAlignedRect();
        return {0, row.top() + first * row.height(), view.viewport()->width(), count * row.height()};
    }
    // At the right of all text.
    QColor paintedIn(int row) {
        const QImage image = view.viewport()->grab().toImage();
        return image.pixelColor(image.width() - 4, rows(row, 1).center().y());
    }
};

TEST_F(BandTest, coversTheRowsThatTheRangeTouches) {
    // A range may end with the end of a line, wrap (70), be the empty last line (75) or lie behind the text.
    const std::vector<std::tuple<TextRange, int, int>> table{
        {{0, 0}, 0, 1},  {{3, 0}, 0, 1},  {{4, 0}, 1, 1},  {{1, 8}, 0, 3},  {{0, 4}, 0, 1},
        {{14, 0}, 3, 1}, {{70, 0}, 4, 1}, {{75, 0}, 5, 1}, {{999, 5}, 5, 1}};
    for (const auto& [range, first, count] : table) {
        EXPECT_EQ(view.highlightRectForRange(range).toAlignedRect(), rows(first, count)) << range.location;
    }
    view.setText(u"");
    EXPECT_GT(view.highlightRectForRange({0, 0}).height(), 5);
}

TEST_F(BandTest, isPaintedBehindTheSelectedLinesInEveryState) {
    const QColor base{Qt::white};
    const QColor band{237, 243, 250}; // two fifths of the fill over white
    view.setReadOnly(true);
    view.setSelection({5, 5});
    const std::vector painted{paintedIn(0), paintedIn(1), paintedIn(2), paintedIn(3)};
    EXPECT_EQ(painted, (std::vector{base, band, band, base}));
    view.setEnabled(false);
    EXPECT_NE(paintedIn(1), paintedIn(0));
    view.setEnabled(true);
    view.setPalette(darkPalette());
    EXPECT_NE(paintedIn(1), paintedIn(0)) << "the band is still seen";
    EXPECT_LT(paintedIn(1).lightness(), 72) << "at least 7 : 1 below the light text";

    CustomTextView bare;
    EXPECT_EQ(bare.currentInsertionPoint(), -31);
    bare.resize(100, 50);
    EXPECT_EQ(bare.viewport()->grab().toImage().pixelColor(50, 8), base) << "no band without its colours";
}

} // namespace
} // namespace tessaly
