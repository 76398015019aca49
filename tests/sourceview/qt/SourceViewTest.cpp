// A code view, the band behind its selected lines, and its gutter.

#include "sourceview/qt/SourceView.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/MarkerLineNumberView.h"
#include "support/Palettes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <ctime>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using namespace std::string_literals;

class SourceViewTest : public testing::Test {
  protected:
    SourceViewTest() {
        QObject::connect(&view, &CustomTextView::userEdited,
                         [this](const TextEdit& edit) { edits.push_back(edit); });
        page.resize(300, 200);
        page.show();
    }

    void setText(std::u16string_view text) { view.replaceCharacters({0, view.length()}, text); }
    void select(std::size_t from, std::size_t length) {
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(int(from));
        cursor.setPosition(int(std::min(from + length, view.length())), QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
    }
    // A row of pixels through the middle of a row of the text.
    QImage lineThrough(QWidget& widget, int row) const {
        const QRectF first = view.highlightRectForRange({0, 0});
        const double y = first.center().y() + row * first.height();
        return widget.grab().toImage().copy(0, static_cast<int>(y), widget.width(), 1);
    }

    QClipboard& clipboard = *QGuiApplication::clipboard();
    SourceView page{u"CSS code"_s};
    CustomTextView& view = page.textView();
    MarkerLineNumberView& gutter = *view.findChild<MarkerLineNumberView*>();
    std::vector<TextEdit> edits;
};

TEST_F(SourceViewTest, keepsEveryCharacterAndEndsLinesWithLF) {
    const std::u16string odd = u"\uFEFFno\u00A0break\u2028nel\u0085\tb\U0001F308 e\u0301\u05D0\u202E\u0000z"s;
    const std::u16string lone{u'x', char16_t{0xD83C}, u'y', char16_t{0xDF08}};
    const std::vector<std::pair<std::u16string, std::u16string>> rows{
        {odd, odd}, {lone, lone}, {u"a\rb\r\nc\u2029d\n\re\r", u"a\nb\nc\nd\n\ne\n"}};
    for (const auto& [given, kept] : rows) {
        setText(given);
        EXPECT_EQ(view.text(), kept);
        view.selectAll();
        view.copy();
        EXPECT_EQ(clipboard.mimeData()->formats(), QStringList{u"text/plain"_s});
        EXPECT_EQ(clipboard.text().toStdU16String(), kept);
        clipboard.setText(QStringView{given}.toString());
        view.paste();
        EXPECT_EQ(view.text(), kept);
    }
}

TEST_F(SourceViewTest, writesBehindTheUsersBack) {
    const std::u16string lines = u"xxxxxx\n"_s.repeated(300).toStdU16String();
    setText(lines);
    QTest::keyClicks(&view, u"abcdef"_s);
    select(1000, 5);
    view.verticalScrollBar()->setValue(50);
    setText(u"abcdef" + lines);
    EXPECT_TRUE(view.document()->isUndoAvailable()) << "nothing changed";
    setText(u"abc-def" + lines);
    EXPECT_FALSE(view.document()->isUndoAvailable());
    EXPECT_EQ(view.selection(), (TextRange{1001, 5})) << "beside the same text";
    view.replaceCharacters({1001, 0}, u"at the caret");
    EXPECT_EQ(view.selection(), (TextRange{1001, 17})) << "the caret stays before text put in at it";
    view.replaceCharacters({2100, 9999}, u"");
    EXPECT_EQ(view.length(), 2100U);
    EXPECT_EQ(view.verticalScrollBar()->value(), 50);
}

TEST_F(SourceViewTest, reportsEveryEditOfTheUserAndNothingElse) {
    std::mt19937 random{6};
    const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
    const QStringList keys =
        u"A Backspace Return Ctrl+X Ctrl+V Ctrl+Z Ctrl+Shift+Z composed composing"_s.split(u' ');
    std::u16string shadow;
    for (int i = 0; i < 1500; ++i) {
        if (i % 10 == 0) {
            view.replaceCharacters(view.selection(), u"generated\n");
            shadow = view.text();
            clipboard.setText(u"p\u2028\r\nq\U0001F308"_s);
        }
        select(upTo(view.length()), upTo(i % 50 == 0 ? view.length() : 3));
        if (const QString& key = keys[qsizetype(upTo(8))]; key.startsWith(u"compos")) {
            QInputMethodEvent event{u"ni"_s, {}};
            event.setCommitString(key == u"composed"_s ? u"\u4F60"_s : QString{});
            QCoreApplication::sendEvent(&view, &event);
        } else {
            QTest::keySequence(&view, QKeySequence{key});
        }
        for (const TextEdit& edit : std::exchange(edits, {})) {
            ASSERT_LE(edit.position + edit.removed, shadow.size());
            shadow.replace(edit.position, edit.removed, view.text().substr(edit.position, edit.added));
        }
        ASSERT_EQ(shadow, view.text()) << "step " << i;
        ASSERT_EQ(view.document()->toRawText().replace(u'\u2029', u'\n').toStdU16String(), shadow);
    }
}

TEST_F(SourceViewTest, takesPlainTextOnlyAndGoesOnFromThere) {
    auto* const data = new QMimeData; // the clipboard owns it
    data->setHtml(u"<b>bold</b>"_s);
    data->setUrls({QUrl{u"file:///etc/passwd"_s}});
    clipboard.setMimeData(data);
    setText(u"\n0123456789");
    view.paste();
    EXPECT_EQ(view.length(), 11U);
    data->setText(u"abc"_s);
    view.paste();
    EXPECT_EQ(view.text(), u"abc\n0123456789");
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(view.selection().location, 7U) << "in the column behind what was pasted";
    view.setReadOnly(true);
    view.paste();
    EXPECT_EQ(view.length(), 14U);
}

TEST_F(SourceViewTest, answersSoonAfterAPasteOfFiveMegabytes) {
    const QString line = u"\tbackground: linear-gradient(to right, #000000 0%, #ffffff 100%);\n"_s;
    for (const QString& text : {u"\r"_s.repeated(11'000), line.repeated(75'000), QString{5'000'000, u'x'}}) {
        EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth) << "many lines, none of them long";
        view.selectAll();
        clipboard.setText(text);
        const std::clock_t start = std::clock();
        view.paste();
        page.grab();
        QTest::keyClick(&view, Qt::Key_Left);
        // Far more than any machine and build takes, of processor time; wrapping such a line takes minutes.
        // How soon it really answers is for the benchmark to say.
        EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 20.0);
    }
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::NoWrap) << "a line is too long";
    view.undo();
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(SourceViewTest, aLongLineIsShownAsItIsAfterEachEdit) {
    setText(u"a\n" + std::u16string(20'000, u'w') + u"\nb");
    page.grab();
    select(4, 0);
    for (const auto& keys :
         {u"i"_s, u"Return"_s, u"Backspace"_s, u"Ctrl+Shift+Home"_s, u"Delete"_s, u"Ctrl+Z"_s}) {
        QTest::keySequence(&view, QKeySequence{keys});
        const QImage shown = page.grab().toImage();
        view.document()->markContentsDirty(0, int(view.length()));
        EXPECT_EQ(shown, page.grab().toImage()) << keys.toStdString();
    }
}

TEST_F(SourceViewTest, theKeyboardIsNotTrapped) {
    QWidget window;
    QLineEdit before{&window};
    page.setParent(&window);
    QLineEdit after{&window};
    window.show();
    using Row = std::pair<QString, QWidget*>;
    for (const auto& [keys, focused] :
         {Row{u"Ctrl+Tab"_s, &after}, {u"Shift+Backtab"_s, &before}, {u"Tab"_s, &view}}) {
        view.setFocus();
        QTest::keySequence(&view, QKeySequence{keys});
        EXPECT_EQ(window.focusWidget(), focused);
    }
    EXPECT_EQ(view.text(), u"\t");
    page.setParent(nullptr);
}

TEST_F(SourceViewTest, aBandCoversTheRowsThatTheSelectionTouches) {
    setText(u"one\ntwo\nthree\n" + std::u16string(45, u'w') + u"\n");
    const QRect row = view.highlightRectForRange({0, 0}).toAlignedRect();
    // A range may end with the end of a line, wrap (55), be the empty last line (60) or lie behind the text.
    const std::vector<std::tuple<TextRange, int, int>> table{
        {{0, 0}, 0, 1},  {{3, 0}, 0, 1},  {{4, 0}, 1, 1},  {{1, 8}, 0, 3},  {{0, 4}, 0, 1},
        {{14, 0}, 3, 1}, {{55, 0}, 4, 1}, {{60, 0}, 5, 1}, {{999, 5}, 5, 1}};
    for (const auto& [range, first, count] : table) {
        const QRect rows{0, row.y() + first * row.height(), view.viewport()->width(), count * row.height()};
        EXPECT_EQ(view.highlightRectForRange(range).toAlignedRect(), rows) << range.location;
    }
    const auto paintedIn = [&](int i) {
        return lineThrough(*view.viewport(), i).pixelColor(row.right() - 3, 0);
    };
    select(5, 5);
    const QColor band{237, 243, 250}; // two fifths of the fill over white
    EXPECT_TRUE(paintedIn(0) == Qt::white && paintedIn(1) == band && paintedIn(2) == band &&
                paintedIn(3) == Qt::white);
    view.setPalette(darkPalette());
    EXPECT_EQ(paintedIn(1), QColor(55, 57, 60)) << "still seen, and at least 7 : 1 below the light text";
}

TEST_F(SourceViewTest, theGutterTakesTheWidthOfTheLastNumberOnTheNextPass) {
    setText(std::u16string(999, u'\n'));
    EXPECT_EQ(gutter.width(), 22) << "not while it may be drawn";
    EXPECT_TRUE(QTest::qWaitFor([&] { return gutter.width() == gutter.requiredThickness(); }));
    page.resize(200, 100);
    EXPECT_EQ(gutter.geometry().bottomRight(), view.viewport()->geometry().bottomLeft() - QPoint(1, 0));
}

TEST_F(SourceViewTest, theGutterNumbersTheFirstRowOfEachLineOfItsClient) {
    setText(u"a\n" + std::u16string(60, u'w') + u"\nnel\u0085is no row\u2028but this is");
    QTest::keyClick(&view, Qt::Key_Return);
    const int end = 4 + view.document()->findBlock(3).layout()->lineCount();
    for (int row = 0; row < end; ++row) { // the toolkit starts no row for the line behind NEL
        const bool isNumbered = lineThrough(gutter, row) != lineThrough(gutter, end);
        EXPECT_EQ(isNumbered, row < 3 || row >= end - 2) << row;
    }
    EXPECT_EQ(view.rectangleOfRowAt(68), std::nullopt);
}

TEST_F(SourceViewTest, theGutterDrawsAMarkerUnderTheNumberOfItsLine) {
    setText(std::u16string(49, u'\n'));
    view.verticalScrollBar()->setValue(1);
    gutter.addMarker(2);
    gutter.setMarkers({3, 4});
    gutter.addMarker(6);
    gutter.removeMarker(4);
    const auto isMarked = [&](int row) {
        return lineThrough(gutter, row).pixelColor(4, 0) == QColor{1, 143, 217};
    };
    EXPECT_TRUE(!isMarked(1) && isMarked(2) && !isMarked(3) && isMarked(5));
}

} // namespace
} // namespace tessaly
