#pragma once

#include "codegen/Declaration.h"
#include "foundation/TextEdit.h"
#include "foundation/TextRange.h"
#include "model/Gradient.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace tessaly {

class CodeText;

/// Where each declaration lies in the stylesheet text. The ranges keep their order and never overlap; between
/// them may stand what the user typed there.
using DeclarationRanges = PerDeclaration<TextRange>;

/// Keeps the stylesheet in its code view current: writes it once whole, and from then on rewrites it
/// declaration by declaration, in place, whatever the user types, deletes and drags between them.
class Stylesheet {
  public:
    /// The view must outlive the object.
    explicit Stylesheet(CodeText& view) : view_{view} {}

    /// Writes the whole text.
    void insertCSS3Code(const Gradient& gradient, std::int64_t notation);

    /// Writes the whole text as the user would type it over: that can be taken back in the view.
    void writeAnew(const Gradient& gradient, std::int64_t notation);

    /// Rewrites every declaration. False: they stand there already, and nothing was done.
    bool update(const Gradient& gradient, std::int64_t notation);

    /// The user, not this object, edited the text. To be told of before the text changes again.
    void edited(const TextEdit& edit);

  private:
    /// What the text was last written from, and how long it was then.
    struct Written {
        Gradient gradient;
        std::int64_t notation;
        std::size_t length;
    };

    /// What a text is known by.
    struct TextKey {
        std::size_t hash;
        std::size_t length;

        bool operator==(const TextKey&) const = default;
    };

    /// The ranges in a text.
    struct KnownText {
        TextKey key;
        DeclarationRanges ranges;
    };
    static constexpr std::size_t mostKnownTexts = 1'000;

    TextKey shownText() const;
    void remember(const TextKey& text);
    std::string laidOut(const Gradient& gradient, std::int64_t notation);
    void written(const Gradient& gradient, std::int64_t notation);
    void keepLineFeedsApart(const DeclarationRanges& before, std::size_t typedAt);
    void findDeclarations(const DeclarationRanges& before, const TextEdit& edit);
    TextRange found(Declaration declaration, const TextRange& before, const TextEdit& edit,
                    TextRange room) const;

    CodeText& view_;
    PerDeclaration<std::string> texts_;
    DeclarationRanges ranges_;
    std::optional<Written> written_;   ///< none once the user edited the text
    std::deque<KnownText> knownTexts_; ///< since the last update, oldest first: an undo brings one back
};

} // namespace tessaly
