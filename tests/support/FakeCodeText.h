#pragma once

#include "codegen/CodeText.h"
#include "foundation/Utf8.h"

#include <string>
#include <vector>

namespace tessaly {

/// A code view without a toolkit. Like a toolkit's, it refuses a range that runs past the end.
class FakeCodeText : public CodeText {
  public:
    struct Replacement {
        std::size_t location;
        std::u16string removed;
        std::size_t added;
    };

    std::u16string_view text() const override { return contents; }
    void replaceCharacters(TextRange range, std::string_view text) override {
        replacements.push_back({range.location, contents.substr(range.location, range.length), text.size()});
        rangesInBounds = rangesInBounds && range.end() <= contents.size();
        contents.replace(range.location, range.length, std::u16string(text.begin(), text.end()));
    }
    void typeOver(std::string_view text) override { contents.assign(text.begin(), text.end()); }

    std::string utf8() const { return toUtf8(contents); }

    std::u16string contents;
    std::vector<Replacement> replacements;
    bool rangesInBounds = true;
};

} // namespace tessaly
