#pragma once

#include "foundation/TextRange.h"
#include "sourceview/LongLineWatch.h"
#include "sourceview/TextMirror.h"

#include <QTextDocument>
#include <optional>
#include <string_view>

class QTextCursor;

namespace tessaly {

class CodeDocumentLayout;

/// A document of code that knows its exact text, which of its edits are the user's, and whether its lines can
/// be wrapped. Offsets and lengths count UTF-16 units. Lines end with LF whatever ended them in the text put
/// in; all other characters stay exactly as they are.
class CodeDocument : public QTextDocument {
    Q_OBJECT

  public:
    explicit CodeDocument(QObject* parent);

    CodeDocumentLayout& lineLayout() { return *layout_; }

    /// The whole text; valid until it changes.
    std::u16string_view text() const { return mirror_.text(); }

    /// Replaces a range, of which what lies outside the text is ignored, and returns what really differed.
    /// Only that is touched. It is no undo step: it ends the undo history instead, since the toolkit has no
    /// edit that bypasses it.
    TextEdit replace(TextRange range, std::u16string_view text);

    /// Puts the text in the place of the cursor's selection as the user would.
    void type(QTextCursor& cursor, std::u16string_view text);

    /// All edits by the user since the last call, as one.
    std::optional<TextEdit> takeUserEdit();

  Q_SIGNALS:
    /// Whether no line is longer than `LongLineWatch::longestWrapped`. Comes with each change, before it is
    /// laid out: that is the time to switch wrapping.
    void wrappingAdvised(bool wrapping);

  private:
    void noteChange(int position, int removed, int added);
    QString rawText(std::size_t position, std::size_t length);

    CodeDocumentLayout* layout_;
    TextMirror mirror_;
    LongLineWatch longLines_;
    std::optional<TextEdit> userEdit_;
    bool writing_ = false; // the program is changing the text
};

} // namespace tessaly
