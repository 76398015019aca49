// Edits of a source text: its copy, line starts and long lines against those of the text taken anew, and the
// colours of the line that is edited against those of the whole text.

#include "FuzzTarget.h"
#include "sourceview/CodeStretches.h"
#include "sourceview/LineIndices.h"
#include "sourceview/LongLineWatch.h"
#include "sourceview/TextMirror.h"

using namespace tessaly;

namespace {

// Of a part that starts where a line does. Near the start of a text nothing is out of sight.
void requireStretches(CodeLanguage language, std::u16string_view text, TextRange part) {
    constexpr std::size_t near = 8'000;
    const auto stretches = codeStretches(language, text, part);
    require(stretches.empty() || stretches.back().range.end() <= part.end(), "stretches end with the part");
    auto whole = codeStretches(language, text, {0, part.end()});
    std::erase_if(whole, [&](const CodeStretch& each) { return each.range.end() <= part.location; });
    require(stretches == whole || part.end() > near || part.length == 0,
            "a part is coloured as in the whole");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::u16string_view alphabet =
        u"\n\r\u0085\u2028\u2029\v\u2027\u202A\xD83C\xDF08\xDF02{}:;/*,\"'\\<!->=@";
    constexpr std::u16string_view terminators = alphabet.substr(0, 5);
    FuzzedDataProvider input{data, size};
    TextMirror mirror;
    LongLineWatch watch;
    std::u16string text;
    while (input.remaining_bytes() > 0) {
        const auto [place, removed] = anyRange(input, text.size());
        std::u16string added(input.PickValueInArray<std::size_t>({0, 0, 0, 1, 5'000, 9'999}), u'x');
        for (const char c : input.ConsumeRandomLengthString()) {
            added += alphabet[static_cast<unsigned char>(c) % alphabet.size()];
        }
        text.replace(place, removed, added);
        watch.textEdited(text, mirror.replace(place, removed, added));
        require(mirror.text() == text, "the copy is exact");
        require(watch.hasLongLine() == LongLineWatch::hasTooLongLine(text), "a line too long is known");
        const std::size_t lineStart = text.substr(0, place).rfind(u'\n') + 1;
        for (const CodeLanguage language : {CodeLanguage::Css, CodeLanguage::Html}) {
            requireStretches(language, text, {lineStart, place + added.size() - lineStart});
        }
        const LineIndices lines{text};
        std::vector<std::uint32_t> starts;
        for (std::uint32_t i = 0; i <= text.size(); ++i) {
            const bool withinPair = text.substr(i > 0 ? i - 1 : 0, 2) == u"\r\n" && i > 0;
            if (i == 0 || (terminators.find(text[i - 1]) != terminators.npos && !withinPair)) {
                starts.push_back(i);
            }
            const std::size_t line = lines.lineNumberForCharacterIndex(i);
            require(i != place || line == starts.size() - 1, "an index is in the line started last");
        }
        require(lines.starts() == starts, "a line starts behind a terminator");
    }
    return 0;
}
