#pragma once

#include "foundation/TextRange.h"
#include "sourceview/LongLineWatch.h"
#include "sourceview/TextLayout.h"
#include "sourceview/TextMirror.h"

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
class CustomTextView : public QPlainTextEdit, public TextLayout {
    Q_OBJECT

  public:
    explicit CustomTextView(QWidget* parent = nullptr);

    /// Always -31: kept, though nobody reads it, for whoever learns from it that the caret was never
    /// followed.
    static constexpr std::int64_t currentInsertionPoint = -31;

    /// The whole text; valid until it changes.
    std::u16string_view text() const { return mirror_.text(); }
    std::size_t length() const { return text().size(); }

    /// Replaces a range; what of it lies outside the text is ignored. Only the part that differs is touched,
    /// so equal text leaves the undo history alone. The caret, the selection and the scroll position stay,
    /// the first two beside the text that they stood in.
    void replaceCharacters(TextRange range, std::u16string_view text);

    /// Replaces the whole text as the user would.
    void typeOver(std::u16string_view text);

    TextRange selection() const;
    void redisplay() { viewport()->update(); }

    /// The band for that selection, in the viewport's coordinates: the full width, and the rows that the
    /// range touches.
    QRectF highlightRectForRange(TextRange range) const;

    std::optional<Rect> rectangleOfRowAt(std::size_t offset) const override;
    TextRange charactersIn(const Rect& rectangle) const override;
    Rect visibleRect() const override;

    /// Places a ruler `width` points wide at the left of the text, on the text's background.
    void setVerticalRuler(QWidget* ruler, int width);

  Q_SIGNALS:
    /// By the user, not the program.
    void userEdited(const tessaly::TextEdit& edit);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
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
    void drawViewBackgroundInRect(const QRectF& rectangle);

    TextMirror mirror_;
    LongLineWatch longLines_;
    std::optional<TextEdit> unreported_; ///< all edits since the last report, as one
    bool writing_ = false;               // the program is changing the text
    QPointer<QWidget> ruler_;
};

} // namespace tessaly
