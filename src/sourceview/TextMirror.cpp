#include "sourceview/TextMirror.h"

namespace tessaly {

TextEdit TextMirror::replace(std::size_t position, std::size_t removed, std::u16string_view added) {
    TextEdit edit = TextEdit::between(text().substr(position, removed), added);
    const std::size_t start = edit.position;
    edit.position += position;
    text_.replace(edit.position, edit.removed, added.substr(start, edit.added));
    return edit;
}

} // namespace tessaly
