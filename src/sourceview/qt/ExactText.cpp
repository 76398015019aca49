#include "sourceview/qt/ExactText.h"

namespace tessaly {
namespace {

constexpr char16_t frameStart = 0xFDD0;
constexpr char16_t frameEnd = 0xFDD1;

bool endsLine(char16_t c) {
    return c == u'\n' || c == u'\r' || c == u'\u2029' || c == frameStart || c == frameEnd;
}

} // namespace

std::u16string exactText(QString raw) {
    raw.replace(QChar::ParagraphSeparator, QChar::LineFeed);
    return raw.toStdU16String();
}

std::u16string storedText(std::u16string_view text) {
    std::u16string stored;
    stored.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (!pair) {
            stored += endsLine(text[i]) ? u'\n' : text[i];
        }
    }
    return stored;
}

} // namespace tessaly
