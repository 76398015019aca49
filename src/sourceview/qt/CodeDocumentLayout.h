#pragma once

#include <QPlainTextDocumentLayout>
#include <QTextLayout>

namespace tessaly {

/// The layout of a code view, which lays out a line too long to be wrapped once after each edit and keeps the
/// result, some 25 bytes a character, until it changes again. The toolkit alone does so several times: for
/// the edit, for the caret and for each picture.
class CodeDocumentLayout : public QPlainTextDocumentLayout {
    Q_OBJECT

  public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

    /// Whether that line is too long to be wrapped.
    static bool isLong(const QTextBlock& line);

    /// Colours a line. That is no edit: it is not reported, and nothing is laid out anew but the line, when
    /// it is looked at next.
    void setColors(const QTextBlock& line, const QList<QTextLayout::FormatRange>& colors);

    QRectF blockBoundingRect(const QTextBlock& block) const override;

  protected:
    void documentChanged(int from, int removed, int added) override;

  private:
    int lines_ = 1; ///< as of the last change
    bool isColoring_ = false;
};

} // namespace tessaly
