#pragma once

#include "codegen/CodeText.h"
#include "foundation/Utf8.h"

#include <string>

namespace tessaly {

/// A code view without a toolkit. Like a toolkit's, it refuses a range that runs past the end.
class FakeCodeText : public CodeText {
  public:
    std::u16string_view text() const override { return contents; }
    void replaceCharacters(TextRange range, std::string_view text) override {
        ++replacements;
        rangesInBounds = rangesInBounds && range.end() <= contents.size();
        contents.replace(range.location, range.length, std::u16string(text.begin(), text.end()));
    }
    void typeOver(std::string_view text) override { contents.assign(text.begin(), text.end()); }

    std::string utf8() const { return toUtf8(contents); }

    std::u16string contents;
    int replacements = 0;
    bool rangesInBounds = true;
};

} // namespace tessaly
