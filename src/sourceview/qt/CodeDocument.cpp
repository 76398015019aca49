#include "sourceview/qt/CodeDocument.h"

#include "foundation/qt/ToQString.h"
#include "sourceview/qt/CodeDocumentLayout.h"
#include "sourceview/qt/ExactText.h"

#include <QScopedValueRollback>
#include <QTextCursor>
#include <algorithm>
#include <utility>

namespace tessaly {

CodeDocument::CodeDocument(QObject* parent) : QTextDocument{parent}, layout_{new CodeDocumentLayout{this}} {
    setDocumentLayout(layout_);
    connect(this, &QTextDocument::contentsChange, this, &CodeDocument::noteChange);
}

TextEdit CodeDocument::replace(TextRange range, std::u16string_view text) {
    const std::size_t location = std::min(range.location, this->text().size());
    const std::u16string stored = storedText(text);
    TextEdit edit = TextEdit::between(this->text().substr(location, range.length), stored);
    if (edit.isNone()) {
        return edit;
    }
    const auto added = std::u16string_view{stored}.substr(edit.position, edit.added);
    edit.position += location;

    const QScopedValueRollback writing{writing_, true};
    setUndoRedoEnabled(false);
    QTextCursor editor{this};
    editor.beginEditBlock(); // within one, the toolkit does not lay lines out to see where this cursor is
    editor.setPosition(static_cast<int>(edit.position));
    editor.setPosition(static_cast<int>(edit.position + edit.removed), QTextCursor::KeepAnchor);
    type(editor, added);
    editor.endEditBlock();
    setUndoRedoEnabled(true);
    return edit;
}

// Advises against wrapping first where the text asks for it: afterwards it would be laid out twice.
void CodeDocument::type(QTextCursor& cursor, std::u16string_view text) {
    const std::u16string stored = storedText(text);
    if (LongLineWatch::hasTooLongLine(stored)) {
        Q_EMIT wrappingAdvised(false);
    }
    cursor.insertText(toQString(stored));
}

std::optional<TextEdit> CodeDocument::takeUserEdit() {
    return std::exchange(userEdit_, std::nullopt);
}

// Runs before the change is laid out.
void CodeDocument::noteChange(int position, int removed, int added) {
    const TextEdit report{static_cast<std::size_t>(position), static_cast<std::size_t>(removed),
                          static_cast<std::size_t>(added)};
    const auto newLength = static_cast<std::size_t>(characterCount() - 1);
    const TextEdit coarse = TextEdit::reported(report, text().size(), newLength);
    const TextEdit edit =
        mirror_.replace(coarse.position, coarse.removed, exactText(rawText(coarse.position, coarse.added)));
    if (edit.isNone()) {
        return;
    }
    longLines_.textEdited(text(), edit);
    Q_EMIT wrappingAdvised(!longLines_.hasLongLine());
    if (!writing_) {
        userEdit_ = userEdit_ ? userEdit_->followedBy(edit) : edit;
    }
}

QString CodeDocument::rawText(std::size_t position, std::size_t length) {
    QTextCursor reader{this};
    reader.setPosition(static_cast<int>(position));
    reader.setPosition(static_cast<int>(position + length), QTextCursor::KeepAnchor);
    return reader.selectedText();
}

} // namespace tessaly
