// What a user does to the stylesheet between changes of the gradient: type, delete, undo.

#include "FuzzTarget.h"
#include "codegen/DeclarationText.h"
#include "codegen/Stylesheet.h"
#include "foundation/DiagnosticLog.h"
#include "support/FakeCodeText.h"
#include "support/Gradients.h"

using namespace tessaly;

constexpr char16_t typed = u'\u03BB'; // occurs in no declaration

// What an update makes of a text in which nothing but typed letters lies around the declarations that it
// replaced.
static std::string rewritten(const std::u16string& text,
                             const std::vector<FakeCodeText::Replacement>& replacements,
                             const GlobalData& record) {
    require(replacements.size() == declarationCount, "all of them are replaced");
    std::string result;
    std::size_t end = 0;
    std::size_t grown = 0; // by those in front
    for (const Declaration declaration : allDeclarations) {
        const auto& [location, removed, added] = replacements[static_cast<std::size_t>(declaration)];
        const std::size_t start = location - grown;
        require(end <= start && start <= text.find_first_not_of(typed, end), "no old declaration stays");
        result += toUtf8(text.substr(end, start - end));
        result += declarationText(declaration, record.gradient, record.colorFormatType);
        end = start + removed.size();
        grown += added - removed.size();
    }
    require(end <= text.size() && text.find_first_not_of(typed, end) == text.npos, "nor at the end");
    return result + toUtf8(text.substr(end));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DiagnosticLog::exchangeSink([](auto) {});
    FuzzedDataProvider input{data, size};
    GlobalData record = defaultRecord();
    FakeCodeText css;
    Stylesheet stylesheet{css};
    stylesheet.insertCSS3Code(record.gradient, record.colorFormatType);
    const auto become = [&](const std::u16string& text) {
        const TextEdit edit = TextEdit::between(css.contents, text);
        css.contents = text;
        stylesheet.edited(edit);
    };
    become(css.contents.substr(28, css.contents.size() - 30)); // without the frame
    while (input.remaining_bytes() > 0) {
        const std::u16string before = css.contents;
        const auto [place, removed] = anyRange(input, before.size());
        const std::size_t letters = input.ConsumeIntegralInRange<std::size_t>(0, 9);
        become(std::u16string{before}.replace(place, removed, letters, typed));
        if (input.ConsumeBool()) {
            become(before); // an undo
        }
        const std::uint8_t seed = input.ConsumeIntegral<std::uint8_t>();
        if (seed > 99) {
            std::mt19937 random{seed};
            record = randomRecord(random, 3);
            const std::u16string old{css.text()};
            css.replacements.clear();
            if (stylesheet.update(record.gradient, record.colorFormatType)) {
                require(css.utf8() == rewritten(old, css.replacements, record),
                        "declarations are rewritten, and what was typed stays");
            }
        }
    }
    return 0;
}
