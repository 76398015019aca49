#include "app/CodeTextAdapter.h"

#include "sourceview/qt/CustomTextView.h"

#include <string>

namespace tessaly {

std::u16string_view CodeTextAdapter::text() const {
    return view_.text();
}

void CodeTextAdapter::replaceCharacters(TextRange range, std::string_view text) {
    view_.replaceCharacters(range, std::u16string(text.begin(), text.end()));
}

} // namespace tessaly
