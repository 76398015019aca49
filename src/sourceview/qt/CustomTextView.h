#pragma once

#include "foundation/TextRange.h"
#include "sourceview/TextLayout.h"
#include "sourceview/qt/CodeColoring.h"
#include "sourceview/qt/CodeDocument.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessaly {

/// An editable view of generated code, whose visible lines are coloured. A band runs behind the selected
/// lines, and only plain text gets in and out. Offsets and lengths count UTF-16 units. What the program
/// writes into the view ends the undo history. Long lines wrap at the view's width while none is longer than
/// `LongLineWatch::longestWrapped`.
class CustomTextView : public QPlainTextEdit, public TextLayout {
    Q_OBJECT

  public:
    explicit CustomTextView(CodeLanguage language, QWidget* parent = nullptr);

    /// Always -31: kept, though nobody reads it, for whoever learns from it that the caret was never
    /// followed.
    static constexpr std::int64_t currentInsertionPoint = -31;

    /// The whole text; valid until it changes.
    std::u16string_view text() const { return code_->text(); }
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
    void changeEvent(QEvent* event) override;
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
    void reportEdits();
    void followPalette();
    void setWrapping(bool wrapping);
    void placeRuler();
    bool leave(bool forwards);
    QRectF rowRectangle(std::size_t offset) const;
    void drawViewBackgroundInRect(const QRectF& rectangle);

    CodeDocument* code_;
    CodeColoring coloring_;
    QPointer<QWidget> ruler_;
};

} // namespace tessaly
