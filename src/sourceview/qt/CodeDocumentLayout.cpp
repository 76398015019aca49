#include "sourceview/qt/CodeDocumentLayout.h"

#include "sourceview/LongLineWatch.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <algorithm>

namespace tessaly {

bool CodeDocumentLayout::isLong(const QTextBlock& line) {
    return LongLineWatch::isTooLong(static_cast<std::size_t>(line.length() - 1));
}

void CodeDocumentLayout::setColors(const QTextBlock& line, const QList<QTextLayout::FormatRange>& colors) {
    QTextLayout& layout = *line.layout();
    if (layout.formats() == colors) {
        return;
    }
    const QScopedValueRollback coloring{isColoring_, true};
    layout.setFormats(colors);
    // The toolkit has noted a change, which the report of the next edit would include.
    document()->markContentsDirty(line.position(), 0);
}

QRectF CodeDocumentLayout::blockBoundingRect(const QTextBlock& block) const {
    if (block.isValid()) {
        block.layout()->setCacheEnabled(isLong(block));
    }
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}

// A change within one line is laid out at once, twice, to learn whether the line has grown. One that reaches
// into the next, or changes the number of lines, is laid out when it is looked at.
void CodeDocumentLayout::documentChanged(int from, int removed, int added) {
    if (isColoring_) {
        return;
    }
    const QTextBlock line = document()->findBlock(from);
    if (line.isValid() && isLong(line)) {
        line.layout()->clearFormats(); // later it would have to be laid out again
    }
    const bool isInOneLine = lines_ == document()->blockCount();
    lines_ = document()->blockCount();
    if (isInOneLine && line.isValid() && isLong(line)) {
        added = std::max(added, line.position() + line.length() + 1 - from);
    }
    QPlainTextDocumentLayout::documentChanged(from, removed, added);
}

} // namespace tessaly
