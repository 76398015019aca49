#include "sourceview/qt/CustomTextView.h"

#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <array>
#include <ctime>
#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using namespace std::string_literals;

/// Like a user, gets at what the view keeps from other code.
class OpenTextView : public CustomTextView {
  public:
    using CustomTextView::canInsertFromMimeData;
    using CustomTextView::createMimeDataFromSelection;
    using CustomTextView::insertFromMimeData;
};

class CustomTextViewTest : public testing::Test {
  protected:
    CustomTextViewTest() {
        view.resize(400, 200);
        QObject::connect(&view, &CustomTextView::userEdited,
                         [this](std::size_t position, std::size_t removed, std::size_t added) {
                             edits.push_back({position, removed, added});
                         });
    }

    void paste(const std::u16string& text) {
        QMimeData data;
        data.setText(QStringView{text}.toString());
        view.insertFromMimeData(&data);
    }

    OpenTextView view;
    std::vector<TextEdit> edits;
};

TEST_F(CustomTextViewTest, keepsEveryCharacterAndEndsLinesWithLF) {
    const std::u16string lone{u'x', char16_t{0xD83C}, u'y', char16_t{0xDF08}};
    const std::vector<std::pair<std::u16string, std::u16string>> rows{
        {u"no\u00A0break\u2028sep\u0085nel\tb", u"no\u00A0break\u2028sep\u0085nel\tb"},
        {u"\uFEFFbom \U0001F308 e\u0301 \u05D0\u202E\u0000z"s,
         u"\uFEFFbom \U0001F308 e\u0301 \u05D0\u202E\u0000z"s},
        {lone, lone},
        {u"a\rb\r\nc\u2029d\n\re\r", u"a\nb\nc\nd\n\ne\n"},
        {u"", u""},
    };
    for (const auto& [given, kept] : rows) {
        view.setText(given);
        EXPECT_EQ(view.text(), kept);
        EXPECT_EQ(view.length(), static_cast<std::size_t>(view.document()->characterCount() - 1));
        view.selectAll();
        const std::unique_ptr<QMimeData> copied{view.createMimeDataFromSelection()};
        EXPECT_EQ(copied->formats(), QStringList{u"text/plain"_s});
        EXPECT_EQ(copied->text().toStdU16String(), kept);
        paste(given);
        EXPECT_EQ(view.text(), kept);
    }
}

TEST_F(CustomTextViewTest, writesBehindTheUsersBack) {
    std::u16string text(2000, u'x');
    for (std::size_t i = 6; i < text.size(); i += 7) {
        text[i] = u'\n';
    }
    view.setText(text);
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
    EXPECT_EQ(view.selection(), (CharacterRange{1001, 5})) << "beside the same text";
    EXPECT_EQ(view.verticalScrollBar()->value(), 50);
    view.replaceCharacters({1001, 0}, u"at the caret");
    EXPECT_EQ(view.selection(), (CharacterRange{1001, 17}));
    EXPECT_EQ(view.verticalScrollBar()->value(), 50);
    view.replaceCharacters({2000, 9999}, u"");
    EXPECT_EQ(view.length(), 2000U);
    EXPECT_EQ(view.verticalScrollBar()->value(), 50);
    EXPECT_TRUE(edits.empty());

    view.setText(u"ab");
    view.setSelection({1, 0});
    view.replaceCharacters({1, 0}, u"--");
    EXPECT_EQ(view.selection(), (CharacterRange{1, 0})) << "the caret stays before text put in at it";
    view.insertText(u"\r\nxy");
    EXPECT_EQ(view.text(), u"a\nxy--b");
    EXPECT_EQ(view.selection(), (CharacterRange{4, 0}));
    view.moveToBeginningOfDocument();
    EXPECT_EQ(view.selection(), CharacterRange{});
}

TEST_F(CustomTextViewTest, reportsEveryEditOfTheUserAndNothingElse) {
    std::mt19937 random{6};
    const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
    std::u16string shadow;
    for (int i = 0; i < 1500; ++i) {
        view.setSelection({upTo(view.length()), upTo(i % 50 == 0 ? view.length() : 3)});
        edits.clear();
        switch (random() % 9) {
        case 0:
            paste(u"p\u2028\r\nq\U0001F308");
            break;
        case 1:
            view.undo();
            break;
        case 2:
            view.redo();
            break;
        case 3:
            view.cut();
            break;
        case 4: {
            const CharacterRange range = view.selection();
            view.replaceCharacters(range, u"generated\n");
            ASSERT_TRUE(edits.empty());
            shadow.replace(range.location, range.length, u"generated\n");
            break;
        }
        default:
            QTest::keyClick(&view, std::array{Qt::Key_A, Qt::Key_Backspace, Qt::Key_Return}[random() % 3]);
        }
        for (const TextEdit& edit : edits) {
            ASSERT_LE(edit.position + edit.removed, shadow.size());
            shadow.replace(edit.position, edit.removed, view.text().substr(edit.position, edit.added));
        }
        ASSERT_EQ(shadow, view.text()) << "step " << i;
    }
}

TEST_F(CustomTextViewTest, anInputMethodReportsWhatItCommitsOnly) {
    view.setText(u"ab");
    view.setSelection({1, 0});
    QInputMethodEvent composing{u"ni"_s, {}};
    QCoreApplication::sendEvent(&view, &composing);
    EXPECT_TRUE(edits.empty());
    QInputMethodEvent committing;
    committing.setCommitString(u"\u4F60"_s);
    QCoreApplication::sendEvent(&view, &committing);
    EXPECT_EQ(edits, (std::vector<TextEdit>{{1, 0, 1}}));
    EXPECT_EQ(view.text(), u"a\u4F60b");
}

TEST_F(CustomTextViewTest, takesPlainTextOnly) {
    QMimeData data;
    data.setHtml(u"<b>bold</b>"_s);
    data.setData(u"text/markdown"_s, "**bold**");
    data.setUrls({QUrl{u"file:///etc/passwd"_s}});
    EXPECT_FALSE(view.canInsertFromMimeData(&data));
    view.insertFromMimeData(&data);
    EXPECT_EQ(view.text(), u"");
    data.setText(u"**plain**"_s);
    EXPECT_TRUE(view.canInsertFromMimeData(&data));
    view.insertFromMimeData(&data);
    EXPECT_EQ(view.text(), u"**plain**");
    EXPECT_EQ(CustomTextView::readablePasteboardTypes(), QStringList{u"text/plain"_s});
    view.setReadOnly(true);
    view.insertFromMimeData(&data);
    EXPECT_EQ(view.length(), 9U);
}

TEST_F(CustomTextViewTest, wrapsUntilALineIsTooLong) {
    view.setText(std::u16string(9'999, u'x') + u"\nshort");
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
    view.setSelection({5, 0});
    QTest::keyClick(&view, Qt::Key_A);
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
    QTest::keyClick(&view, Qt::Key_A);
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::NoWrap);
    view.undo();
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
    paste(std::u16string(20'000, u'y'));
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::NoWrap);
    view.setText(u"");
    EXPECT_EQ(view.lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(CustomTextViewTest, answersSoonAfterAPasteOfFiveMegabytes) {
    std::u16string lines;
    while (lines.size() < 5'000'000) {
        lines += u"\tbackground: linear-gradient(to right, #000000 0%, #ffffff 100%);\n";
    }
    view.show();
    for (const std::u16string& text : {lines, std::u16string(5'000'000, u'x')}) {
        view.setText(u"before\n\nafter");
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
}

TEST_F(CustomTextViewTest, theKeyboardIsNotTrapped) {
    QWidget window;
    QWidget before{&window};
    view.setParent(&window);
    QWidget after{&window};
    before.setFocusPolicy(Qt::StrongFocus);
    after.setFocusPolicy(Qt::StrongFocus);
    window.show();
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), &view);
    QTest::keyClick(&view, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(window.focusWidget(), &after);
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(window.focusWidget(), &before);
    EXPECT_EQ(view.text(), u"\t");
    view.setParent(nullptr);
}

} // namespace
} // namespace tessaly
