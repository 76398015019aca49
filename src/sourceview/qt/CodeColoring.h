#pragma once

#include "foundation/RGBAComponents.h"
#include "sourceview/CodeStretch.h"

#include <QTextBlock>
#include <QTextCharFormat>
#include <array>
#include <span>

namespace tessaly {

class CodeDocument;

/// Colours the lines of a document that are looked at. Others stay as they are, so the colours of a line that
/// changed are wrong until it is seen. A line too long to be wrapped has none.
class CodeColoring {
  public:
    CodeColoring(CodeDocument& document, CodeLanguage language);

    /// Of the plain text and what it stands on. Shows in the lines coloured next.
    void setPalette(const RGBAComponents& text, const RGBAComponents& background);

    /// So many lines from that one on, as far as there are any. Neither the text nor the height of a row
    /// changes.
    void colorLines(const QTextBlock& first, int count);

  private:
    void colorRun(const QTextBlock& first, const QTextBlock& end);
    void colorLine(const QTextBlock& line, std::span<const CodeStretch> stretches);

    CodeDocument& document_;
    CodeLanguage language_;
    std::array<QTextCharFormat, codeRoleCount> formats_; ///< in the order of `CodeRole`
};

} // namespace tessaly
