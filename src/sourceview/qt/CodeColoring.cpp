#include "sourceview/qt/CodeColoring.h"

#include "foundation/qt/ToQColor.h"
#include "sourceview/CodeColors.h"
#include "sourceview/CodeStretches.h"
#include "sourceview/qt/CodeDocument.h"
#include "sourceview/qt/CodeDocumentLayout.h"

#include <QTextLayout>
#include <algorithm>

namespace tessaly {

CodeColoring::CodeColoring(CodeDocument& document, CodeLanguage language)
    : document_{document}, language_{language} {}

void CodeColoring::setPalette(const RGBAComponents& text, const RGBAComponents& background) {
    for (std::size_t role = 0; role < formats_.size(); ++role) {
        formats_[role].setForeground(
            toQColor(codeColor::ofRole(static_cast<CodeRole>(role), text, background)));
    }
}

void CodeColoring::colorLines(const QTextBlock& first, int count) {
    QTextBlock run = first; // of lines that are not too long
    QTextBlock line = first;
    for (; count > 0 && line.isValid(); --count, line = line.next()) {
        if (CodeDocumentLayout::isLong(line)) {
            colorRun(run, line);
            colorLine(line, {});
            run = line.next();
        }
    }
    colorRun(run, line);
}

void CodeColoring::colorRun(const QTextBlock& first, const QTextBlock& end) {
    if (!first.isValid() || first == end) {
        return;
    }
    const auto start = static_cast<std::size_t>(first.position());
    const std::size_t behind =
        end.isValid() ? static_cast<std::size_t>(end.position()) : document_.text().size();
    const auto stretches = codeStretches(language_, document_.text(), {start, behind - start});
    for (QTextBlock line = first; line != end; line = line.next()) {
        colorLine(line, stretches);
    }
}

void CodeColoring::colorLine(const QTextBlock& line, std::span<const CodeStretch> stretches) {
    QTextLayout& layout = *line.layout();
    if (!layout.preeditAreaText().isEmpty()) {
        return; // an input method has formats of its own there
    }
    const auto start = static_cast<std::size_t>(line.position());
    const std::size_t end = start + static_cast<std::size_t>(line.length() - 1);
    auto stretch = std::partition_point(stretches.begin(), stretches.end(),
                                        [&](const CodeStretch& each) { return each.range.end() <= start; });
    QList<QTextLayout::FormatRange> colors;
    for (; start < end && stretch != stretches.end() && stretch->range.location < end; ++stretch) {
        const std::size_t from = std::max(stretch->range.location, start);
        const std::size_t to = std::min(stretch->range.end(), end);
        colors.append({static_cast<int>(from - start), static_cast<int>(to - from),
                       formats_[static_cast<std::size_t>(stretch->role)]});
    }
    document_.lineLayout().setColors(line, colors);
}

} // namespace tessaly
