#pragma once

#include "foundation/TextRange.h"
#include "sourceview/LongLineWatch.h"
#include "sourceview/TextMirror.h"

#include <QColor>
#include <QPlainTextEdit>
#include <QPointer>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessaly {

/// An editable view of generated code. A band runs behind the selected lines, and only plain text gets in and
/// out. Offsets and lengths count UTF-16 units. Lines end with LF whatever ended them in the text put in; all
/// other characters stay exactly as they are.
///
/// What the program writes into the view is no undo step: it ends the undo history instead, since the toolkit
/// has no edit that bypasses it. Long lines wrap at the view's width while none is longer than
/// `LongLineWatch::longestWrapped`.
class CustomTextView : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit CustomTextView(QWidget* parent = nullptr);

    /// Gives the band its colours; without them it is not drawn.
    void awakeFromNib();

    /// -31 from the start. The view itself never reads it.
    std::int64_t currentInsertionPoint() const { return currentInsertionPoint_; }
    QColor textViewSelectColor() const { return textViewSelectColor_; }
    QColor textViewSelectColorBorder() const { return textViewSelectColorBorder_; }

    /// The whole text; valid until it changes.
    std::u16string_view text() const { return mirror_.text(); }
    std::size_t length() const { return text().size(); }

    /// Replaces the whole text, as `replaceCharacters` does.
    void setText(std::u16string_view text);

    /// Replaces a range; what of it lies outside the text is ignored. Only the part that differs is touched,
    /// so equal text leaves the undo history alone. The caret, the selection and the scroll position stay,
    /// the first two beside the text that they stood in.
    void replaceCharacters(TextRange range, std::u16string_view text);

    /// Replaces the selection and puts the caret behind the text.
    void insertText(std::u16string_view text);
    void setSelection(TextRange selection);
    TextRange selection() const;
    void moveToBeginningOfDocument();
    void redisplay() { viewport()->update(); }

    /// The mime types that are read from the clipboard and from drops.
    static QStringList readablePasteboardTypes();

    /// The band for that selection, in the viewport's coordinates: the full width, and the rows that the
    /// range touches.
    QRectF highlightRectForRange(TextRange range) const;
    void drawViewBackgroundInRect(QPainter& painter, const QRectF& rectangle) const;

    /// The rectangle of the laid-out row that starts at that offset, in the coordinates of the text; null
    /// when it is not laid out yet or no row starts there.
    QRectF rectangleOfRowAt(std::size_t offset) const;

    /// The part of the text that is shown, in the coordinates of the text.
    QRectF visibleRect() const;

    /// The characters of the rows that the rectangle touches, looked for from the first visible line on.
    TextRange charactersIn(const QRectF& rectangle) const;

    /// Places a ruler `width` points wide at the left of the text, on the text's background.
    void setVerticalRuler(QWidget* ruler, int width);

  Q_SIGNALS:
    /// The user, not the program, replaced `removed` units at `position` by `added` others.
    void userEdited(std::size_t position, std::size_t removed, std::size_t added);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;

  private:
    void noteChange(int position, int removed, int added);
    void reportEdits();
    void insertInto(QTextCursor& cursor, std::u16string_view text);
    void setWrapping(bool wrapping);
    void placeRuler();
    void replaceUnrecorded(const TextEdit& edit, std::u16string_view added);
    bool leave(bool forwards);
    QString rawText(std::size_t position, std::size_t length) const;
    QRectF rowRectangle(std::size_t offset) const;

    std::int64_t currentInsertionPoint_ = -31;
    QColor textViewSelectColor_;
    QColor textViewSelectColorBorder_;
    TextMirror mirror_;
    LongLineWatch longLines_;
    std::optional<TextEdit> unreported_; ///< all edits since the last report, as one
    bool writing_ = false;               // the program is changing the text
    QPointer<QWidget> ruler_;
};

} // namespace tessaly
