#include "Measure.h"
#include "sourceview/LineIndices.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/SourceView.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QKeyEvent>
#include <QScrollBar>
#include <benchmark/benchmark.h>
#include <string>

namespace tessaly {
namespace {

constexpr std::u16string_view lineOfCode = u"\tbackground: linear-gradient(to right, #000000 0%);\n";

std::u16string textOf(std::size_t units, std::u16string_view line) {
    std::u16string text;
    text.reserve(units + line.size());
    while (text.size() < units) {
        text += line;
    }
    return text;
}

// Of a text of 10 MB, counted as the file that the code would be: a byte a unit.
void lineStarts(benchmark::State& state, std::u16string_view line) {
    const std::u16string text = textOf(10'000'000, line);
    measure(state, [&](std::size_t /*number*/) { benchmark::DoNotOptimize(LineIndices{text}); });
}

/// The stylesheet's page as the window shows it.
class Page : public QObject {
  public:
    Page() {
        page_.resize(980, 300);
        view().viewport()->installEventFilter(this);
        page_.show();
        waitForPaint();
    }

    CustomTextView& view() { return page_.textView(); }

    void setText(std::u16string_view text, int caret = 0) {
        view().replaceCharacters({0, view().length()}, text);
        QTextCursor cursor = view().textCursor();
        cursor.setPosition(caret);
        view().setTextCursor(cursor);
    }

    /// Runs the event loop until the text has been painted.
    void waitForPaint() { untilPaint_.exec(); }

    void press(Qt::Key key, const QString& text = {}) {
        QKeyEvent event{QEvent::KeyPress, key, Qt::NoModifier, text};
        QCoreApplication::sendEvent(&view(), &event);
        waitForPaint();
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            untilPaint_.quit();
        }
        return false;
    }

  private:
    SourceView page_{CodeLanguage::Css, QStringLiteral("CSS code")};
    QEventLoop untilPaint_;
};

// Of 5 MB between other text, until it is painted and the next key is answered.
void paste(benchmark::State& state, std::u16string_view line) {
    const std::u16string text = textOf(5'000'000, line);
    QGuiApplication::clipboard()->setText(QStringView{text}.toString());
    Page page;
    const auto empty = [&] {
        page.setText(u"before\n\nafter", 7);
        page.waitForPaint();
    };
    empty();
    const auto pasteAndMove = [&](std::size_t /*number*/) {
        page.view().paste();
        page.waitForPaint();
        page.press(Qt::Key_Left);
        if (page.view().length() != text.size() + 13) {
            state.SkipWithError("the text is not there");
        }
    };
    measure(state, pasteAndMove, empty);
}

// A letter in the middle of 5 MB, until it is painted.
void typeLetter(benchmark::State& state, std::u16string_view line) {
    Page page;
    page.setText(textOf(5'000'000, line), 2'500'000);
    page.waitForPaint();
    const std::size_t before = page.view().length();
    measure(state, [&](std::size_t number) {
        page.press(Qt::Key_X, QStringLiteral("x"));
        if (page.view().length() != before + number + 1) {
            state.SkipWithError("the letter is not there");
        }
    });
}

// To somewhere else in 5 MB of code.
void scrollCode(benchmark::State& state) {
    Page page;
    page.setText(textOf(5'000'000, lineOfCode));
    page.waitForPaint();
    QScrollBar& bar = *page.view().verticalScrollBar();
    measure(state, [&](std::size_t number) {
        bar.setValue(static_cast<int>(number * 7919) % bar.maximum());
        page.waitForPaint();
    });
}

BENCHMARK_CAPTURE(lineStarts, ofCode, lineOfCode)->UseManualTime();
BENCHMARK_CAPTURE(lineStarts, ofShortLines, u"}\r\n")->UseManualTime();
BENCHMARK_CAPTURE(paste, ofLines, lineOfCode)->Iterations(5)->UseManualTime();
BENCHMARK_CAPTURE(paste, ofOneLine, u"x")->Iterations(5)->UseManualTime();
BENCHMARK_CAPTURE(typeLetter, inLines, lineOfCode)->Iterations(51)->UseManualTime();
BENCHMARK_CAPTURE(typeLetter, inOneLine, u"x")->Iterations(5)->UseManualTime();
BENCHMARK(scrollCode)->Iterations(500)->UseManualTime();

} // namespace
} // namespace tessaly
