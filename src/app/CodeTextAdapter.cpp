#include "app/CodeTextAdapter.h"

#include "sourceview/qt/CustomTextView.h"

namespace tessaly {
namespace {

std::u16string widened(std::string_view ascii) {
    return {ascii.begin(), ascii.end()};
}

} // namespace

void CodeTextAdapter::setText(std::string_view text) {
    view_.setText(widened(text));
}

void CodeTextAdapter::setEditable(bool editable) {
    view_.setReadOnly(!editable);
}

void CodeTextAdapter::setSelection(TextRange selection) {
    view_.setSelection(selection);
}

void CodeTextAdapter::insertText(std::string_view text) {
    view_.insertText(widened(text));
}

void CodeTextAdapter::moveToBeginningOfDocument() {
    view_.moveToBeginningOfDocument();
}

std::u16string_view CodeTextAdapter::text() const {
    return view_.text();
}

std::size_t CodeTextAdapter::length() const {
    return view_.length();
}

void CodeTextAdapter::replaceCharacters(TextRange range, std::string_view text) {
    view_.replaceCharacters(range, widened(text));
}

void CodeTextAdapter::redisplay() {
    view_.redisplay();
}

} // namespace tessaly
