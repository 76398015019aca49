// A code view and its gutter.

#include "sourceview/qt/SourceView.h"
#include "foundation/Contrast.h"
#include "foundation/qt/ToQColor.h"
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
#include <algorithm>
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

    /// The colours of a line, as far as it has been seen.
    QList<QTextLayout::FormatRange> colorsOf(int line) const {
        return view.document()->findBlockByNumber(line).layout()->formats();
    }
    MarkerLineNumberView& gutter() { return *view.findChild<MarkerLineNumberView*>(); }

    QClipboard& clipboard = *QGuiApplication::clipboard();
    SourceView page{CodeLanguage::Css, u"CSS code"_s};
    CustomTextView& view = page.textView();
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

TEST_F(SourceViewTest, aLineTooLongEndsTheWrappingAndIsShownAsItIsAfterEachEdit) {
    setText(u"a\n" + std::u16string(10'000, u'w') + u"\nb");
    page.grab();
    select(4, 0);
    using Row = std::pair<QString, bool>; // whether it wraps then
    for (const auto& [keys, wraps] : {Row{u"i"_s, false},
                                      {u"j"_s, false},
                                      {u"Return"_s, true},
                                      {u"Backspace"_s, false},
                                      {u"Ctrl+Shift+Home"_s, false},
                                      {u"Delete"_s, true},
                                      {u"Ctrl+Z"_s, false}}) {
        QTest::keySequence(&view, QKeySequence{keys});
        EXPECT_EQ(view.lineWrapMode() == QPlainTextEdit::WidgetWidth, wraps) << keys.toStdString();
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

TEST_F(SourceViewTest, theGutterNumbersTheFirstRowOfEachLineOfItsClient) {
    setText(u"a\n" + std::u16string(60, u'w') + u"\nnel\u0085is no row\u2028but this is");
    QTest::keyClick(&view, Qt::Key_Return);
    const QRectF first = view.highlightRectForRange({0, 0});
    const auto pixelsBeside = [&](int row) {
        const auto y = static_cast<int>(first.center().y() + row * first.height());
        return gutter().grab().toImage().copy(0, y, gutter().width(), 1);
    };
    const int end = 4 + view.document()->findBlock(3).layout()->lineCount();
    for (int row = 0; row < end; ++row) { // the toolkit starts no row for the line behind NEL
        const bool isNumbered = pixelsBeside(row) != pixelsBeside(end);
        EXPECT_EQ(isNumbered, row < 3 || row >= end - 2) << row;
    }
    EXPECT_EQ(view.rectangleOfRowAt(68), std::nullopt);
}

TEST_F(SourceViewTest, theWheelScrollsOverTheGutterAsOverTheText) {
    setText(u"x\n"_s.repeated(300).toStdU16String());
    for (QWidget* const target : {view.viewport(), static_cast<QWidget*>(&gutter())}) {
        view.verticalScrollBar()->setValue(0);
        QWheelEvent event{{}, {}, {}, {0, -240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false};
        QCoreApplication::sendEvent(target, &event);
        EXPECT_EQ(view.verticalScrollBar()->value(), 2 * QApplication::wheelScrollLines());
    }
}

TEST_F(SourceViewTest, whatIsSeenIsColored) {
    const QString rule = u"a { /* b */\n\tc: d; }\n"_s;
    setText((rule + QString{10'001, u'x'} + u'\n' + rule.repeated(300)).toStdU16String());
    page.grab();
    EXPECT_EQ(colorsOf(0).size(), 2);
    EXPECT_EQ(colorsOf(2).size(), 0) << "a long line";
    EXPECT_EQ(colorsOf(4).at(1).length, 1);
    EXPECT_EQ(colorsOf(300).size(), 0) << "not seen yet";
    view.verticalScrollBar()->setValue(300);
    page.grab();
    EXPECT_EQ(colorsOf(300), colorsOf(4));
    select(static_cast<std::size_t>(view.document()->findBlockByNumber(300).position() + 2), 0);
    QTest::keyClicks(&view, u"/*"_s);
    page.grab();
    ASSERT_EQ(colorsOf(301).size(), 1);
    EXPECT_EQ(colorsOf(301).at(0).format, colorsOf(0).at(1).format) << "a comment now";
    QInputMethodEvent composing{u"ni"_s, {{QInputMethodEvent::TextFormat, 0, 2, QTextCharFormat{}}}};
    QCoreApplication::sendEvent(&view, &composing);
    page.grab();
    EXPECT_EQ(colorsOf(300).size(), 1) << "the input method's own";
}

TEST_F(SourceViewTest, coloringIsNoEdit) {
    const std::u16string rules = u"a { /* b */ }\n"_s.repeated(300).toStdU16String();
    setText(rules);
    select(14, 0);
    QTest::keyClicks(&view, u"x"_s);
    std::vector<std::pair<int, int>> reports;
    QObject::connect(
        view.document(), &QTextDocument::contentsChange,
        [&](int position, int /*removed*/, int added) { reports.emplace_back(position, added); });
    const double height = view.highlightRectForRange({0, 40}).height();
    page.grab();
    view.verticalScrollBar()->setValue(290);
    page.grab();
    EXPECT_EQ(view.highlightRectForRange({view.length() - 41, 40}).height(), height);
    QTest::keyClicks(&view, u"y"_s);
    EXPECT_EQ(reports, (std::vector{std::pair{15, 1}}));
    view.undo();
    EXPECT_EQ(view.text(), rules) << "typed in one go";
    EXPECT_FALSE(view.document()->isUndoAvailable());
}

TEST_F(SourceViewTest, whatIsColoredCanBeRead) {
    setText(u"a { /* b */\n\tc: d; }");
    for (const QPalette& palette : {QPalette{Qt::white}, darkPalette()}) {
        page.setPalette(palette);
        const QImage shown = view.viewport()->grab().toImage();
        const QRectF band = view.highlightRectForRange({0, 0}).toAlignedRect();
        const auto base = toComponents(palette.color(QPalette::Base));
        for (const auto& range : colorsOf(0) + colorsOf(1)) {
            const auto color = toComponents(range.format.foreground().color());
            EXPECT_GE(contrastBetween(color, base), 4.5);
            EXPECT_GE(contrastBetween(color, toComponents(shown.pixelColor(band.center().toPoint()))), 4.5);
        }
        const auto border = toComponents(shown.pixelColor(int(band.center().x()), int(band.top())));
        EXPECT_GE(contrastBetween(border, base), isDark(palette.color(QPalette::Base)) ? 3.0 : 1.3);
        const QImage numbers = gutter().grab().toImage();
        double strongest = 0;
        for (int i = 0; i < numbers.width() * numbers.height(); ++i) {
            const auto pixel = toComponents(numbers.pixelColor(i % numbers.width(), i / numbers.width()));
            strongest = std::max(strongest, contrastBetween(pixel, base));
        }
        EXPECT_GE(strongest, 4.4) << "as far as smoothing lets it";
        EXPECT_LT(strongest, 8) << "less than the text";
    }
}

} // namespace
} // namespace tessaly
