#pragma once

#include <QPlainTextDocumentLayout>

namespace tessaly {

/// The layout of a code view, which lays out a line too long to be wrapped once after each edit and keeps the
/// result, some 25 bytes a character, until it changes again. The toolkit alone does so several times: for
/// the edit, for the caret and for each picture.
class CodeDocumentLayout : public QPlainTextDocumentLayout {
    Q_OBJECT

  public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

    QRectF blockBoundingRect(const QTextBlock& block) const override;

  protected:
    void documentChanged(int from, int removed, int added) override;

  private:
    int lines_ = 1; ///< as of the last change
};

} // namespace tessaly
