#pragma once

#include "codegen/CodeText.h"
#include "foundation/Utf8.h"

#include <string>

namespace tessaly {

/// A code view without a toolkit. Like a toolkit's, it refuses a range that runs past the end.
class FakeCodeText : public CodeText {
  public:
    void setText(std::string_view text) override { contents.assign(text.begin(), text.end()); }
    void setEditable(bool value) override { editable = value; }
    void setSelection(TextRange selection) override { caret = selection.location; }
    void insertText(std::string_view text) override {
        contents.insert(caret, std::u16string(text.begin(), text.end()));
        caret += text.size();
    }
    void moveToBeginningOfDocument() override { caret = 0; }
    std::u16string_view text() const override { return contents; }
    std::size_t length() const override { return contents.size(); }
    void replaceCharacters(TextRange range, std::string_view text) override {
        rangesInBounds = rangesInBounds && range.end() <= contents.size();
        contents.replace(range.location, range.length, std::u16string(text.begin(), text.end()));
    }
    void redisplay() override {}

    std::string utf8() const { return toUtf8(contents); }

    std::u16string contents;
    std::size_t caret = 0;
    bool editable = false;
    bool rangesInBounds = true;
};

} // namespace tessaly
