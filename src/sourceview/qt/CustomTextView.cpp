#include "sourceview/qt/CustomTextView.h"

#include "foundation/qt/KeptKeys.h"
#include "foundation/qt/ToQColor.h"
#include "foundation/qt/ToQString.h"
#include "sourceview/qt/CodeDocument.h"
#include "sourceview/qt/SelectionBand.h"

#include <QDragEnterEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

constexpr int tabWidth = 4; // in characters

} // namespace

CustomTextView::CustomTextView(CodeLanguage language, QWidget* parent)
    : QPlainTextEdit{parent}, code_{new CodeDocument{this}}, coloring_{*code_, language} {
    setDocument(code_);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    code_->setDefaultFont(font());
    setTabStopDistance(tabWidth * fontMetrics().horizontalAdvance(QLatin1Char{' '}));
    setInputMethodHints(Qt::ImhMultiLine | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    followPalette();
    connect(code_, &CodeDocument::wrappingAdvised, this, &CustomTextView::setWrapping);
    connect(code_, &QTextDocument::contentsChanged, this, &CustomTextView::reportEdits);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CustomTextView::redisplay);
    connect(this, &QPlainTextEdit::selectionChanged, this, &CustomTextView::redisplay);
    connect(this, &QPlainTextEdit::textChanged, this, &CustomTextView::redisplay);
}

void CustomTextView::replaceCharacters(TextRange range, std::u16string_view text) {
    const QTextCursor before = textCursor();
    const std::pair ends{before.anchor(), before.position()}; // the cursor itself would move with the edit
    const std::pair scroll{horizontalScrollBar()->value(), verticalScrollBar()->value()};
    const TextEdit edit = code_->replace(range, text);
    if (edit.isNone()) {
        return;
    }
    const auto mapped = [&](int offset) {
        return static_cast<int>(edit.mapped(static_cast<std::size_t>(offset)));
    };
    const int anchor = mapped(ends.first);
    const int caret = mapped(ends.second);
    QTextCursor cursor = textCursor();
    if (cursor.anchor() != anchor || cursor.position() != caret) {
        cursor.setPosition(anchor);
        cursor.setPosition(caret, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }
    horizontalScrollBar()->setValue(scroll.first);
    verticalScrollBar()->setValue(scroll.second);
}

void CustomTextView::typeOver(std::u16string_view text) {
    QTextCursor cursor{code_};
    cursor.select(QTextCursor::Document);
    code_->type(cursor, text);
}

TextRange CustomTextView::selection() const {
    const auto start = static_cast<std::size_t>(textCursor().selectionStart());
    return {start, static_cast<std::size_t>(textCursor().selectionEnd()) - start};
}

void CustomTextView::reportEdits() {
    if (const auto edit = code_->takeUserEdit()) {
        Q_EMIT userEdited(*edit);
    }
}

// A line too long to be wrapped is also set without the finer points of typography (ligatures, kerning),
// which takes a third off the time that it costs. Scripts that cannot be read without them keep them.
void CustomTextView::setWrapping(bool wrapping) {
    const LineWrapMode mode = wrapping ? WidgetWidth : NoWrap;
    if (lineWrapMode() == mode) {
        return;
    }
    setLineWrapMode(mode);
    QFont typeface = font();
    typeface.setStyleStrategy(wrapping ? QFont::PreferDefault : QFont::PreferNoShaping);
    setFont(typeface);
}

bool CustomTextView::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasFormat(QStringLiteral("text/plain"));
}

void CustomTextView::insertFromMimeData(const QMimeData* source) {
    if (!isReadOnly() && canInsertFromMimeData(source)) {
        QTextCursor cursor = textCursor();
        code_->type(cursor, source->text().toStdU16String());
        setTextCursor(cursor); // Up and Down go on from the column that it is in now
    }
}

// Files are for the window to open.
void CustomTextView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) {
        event->ignore();
    } else {
        QPlainTextEdit::dragEnterEvent(event);
    }
}

QMimeData* CustomTextView::createMimeDataFromSelection() const {
    auto* const plainText = new QMimeData; // the caller owns it
    const TextRange range = selection();
    plainText->setText(toQString(text().substr(range.location, range.length)));
    return plainText;
}

// Tab types a tab; Shift+Tab and Ctrl+Tab leave the view, so that the keyboard is not trapped in it.
bool CustomTextView::focusNextPrevChild(bool next) {
    return next ? QPlainTextEdit::focusNextPrevChild(true) : leave(false);
}

bool CustomTextView::event(QEvent* event) {
    return keepKeys(*event, {Qt::Key_Insert}) || leaveKeys(*event) || QPlainTextEdit::event(event);
}

void CustomTextView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Tab && event->modifiers() == Qt::ControlModifier) {
        leave(true);
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

bool CustomTextView::leave(bool forwards) {
    setTabChangesFocus(true);
    const bool left = QPlainTextEdit::focusNextPrevChild(forwards);
    setTabChangesFocus(false);
    return left;
}

void CustomTextView::followPalette() {
    coloring_.setPalette(toComponents(palette().color(QPalette::Text)),
                         selectionBand::colorOn(palette().color(QPalette::Base)));
}

void CustomTextView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        followPalette();
    }
    QPlainTextEdit::changeEvent(event);
}

void CustomTextView::paintEvent(QPaintEvent* event) {
    coloring_.colorLines(firstVisibleBlock(), viewport()->height() / fontMetrics().height() + 2);
    drawViewBackgroundInRect(event->rect());
    QPlainTextEdit::paintEvent(event); // the text; the background is the viewport's own
}

void CustomTextView::drawViewBackgroundInRect(const QRectF& rectangle) {
    const QRect band = highlightRectForRange(selection()).toAlignedRect();
    if (rectangle.intersects(band)) {
        QPainter painter{viewport()};
        selectionBand::draw(painter, band, palette().color(QPalette::Base));
    }
}

QRectF CustomTextView::highlightRectForRange(TextRange range) const {
    const std::size_t last = range.length == 0 ? range.location : range.end() - 1;
    const QRectF rows = rowRectangle(range.location).united(rowRectangle(last));
    return {0, rows.y() + contentOffset().y(), static_cast<double>(viewport()->width()), rows.height()};
}

// Lays the row's block out if it is not yet.
QRectF CustomTextView::rowRectangle(std::size_t offset) const {
    const int position = static_cast<int>(std::min(offset, length()));
    const QTextBlock block = document()->findBlock(position);
    const QRectF geometry = blockBoundingGeometry(block);
    const QTextLine row = block.layout()->lineForTextPosition(position - block.position());
    return row.isValid() ? row.rect().translated(geometry.topLeft()) : geometry;
}

std::optional<Rect> CustomTextView::rectangleOfRowAt(std::size_t offset) const {
    const int position = static_cast<int>(std::min(offset, length()));
    const QTextBlock block = document()->findBlock(position);
    const QTextLine row = block.layout()->lineForTextPosition(position - block.position());
    // The toolkit starts no row behind NEL; the row has its number already.
    if (!row.isValid() || block.position() + row.textStart() != position) {
        return std::nullopt;
    }
    const QRectF place = rowRectangle(offset);
    return Rect{place.x(), place.y(), place.width(), place.height()};
}

Rect CustomTextView::visibleRect() const {
    const QRectF shown{-contentOffset(), viewport()->size()};
    return {shown.x(), shown.y(), shown.width(), shown.height()};
}

TextRange CustomTextView::charactersIn(const Rect& rectangle) const {
    QTextBlock block = firstVisibleBlock();
    double top = blockBoundingGeometry(block).top();
    int from = -1;
    int to = block.position();
    for (; block.isValid() && top < rectangle.maxY(); block = block.next()) {
        const double height = blockBoundingRect(block).height(); // lays the block out
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine row = block.layout()->lineAt(i);
            const QRectF place = row.rect().translated(0, top);
            if (place.bottom() > rectangle.y && place.top() < rectangle.maxY()) {
                from = from < 0 ? block.position() + row.textStart() : from;
                to = block.position() + row.textStart() + row.textLength() +
                     (i + 1 == block.layout()->lineCount() ? 1 : 0); // with the end of the line
            }
        }
        top += height;
    }
    const auto start = static_cast<std::size_t>(from < 0 ? to : from);
    return {start, std::min(static_cast<std::size_t>(to), length()) - start};
}

void CustomTextView::setVerticalRuler(QWidget* ruler, int width) {
    ruler_ = ruler;
    ruler->setParent(this);
    ruler->setBackgroundRole(QPalette::Base);
    ruler->setAutoFillBackground(true);
    setViewportMargins(width, 0, 0, 0);
    placeRuler();
    ruler->show();
}

void CustomTextView::placeRuler() {
    if (ruler_ != nullptr) {
        const QRect area = viewport()->geometry();
        const int width = viewportMargins().left();
        ruler_->setGeometry(area.left() - width, area.top(), width, area.height());
    }
}

void CustomTextView::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    placeRuler();
}

void CustomTextView::scrollContentsBy(int dx, int dy) {
    QPlainTextEdit::scrollContentsBy(dx, dy);
    redisplay(); // the band does not move sideways with the text
}

} // namespace tessaly
