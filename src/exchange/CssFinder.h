#pragma once

#include "exchange/CssBrackets.h"
#include "exchange/CssTokenizer.h"
#include "exchange/FoundGradients.h"
#include "exchange/ReadingProgress.h"

#include <optional>
#include <string>
#include <vector>

namespace tessaly {

/// Finds the gradients of a stylesheet, of the declarations of one rule, or of a bare value. It runs over the
/// text once, and keeps only the rules that are open.
class CssFinder {
  public:
    /// Everything must outlive the finder. `offset`: where the text begins in what the progress counts.
    CssFinder(std::string_view text, FoundGradients& found, ReadingProgress& progress, std::size_t offset = 0)
        : text_{text}, tokens_{text}, found_{found}, progress_{progress}, offset_{offset} {}

    /// False: it ended early, as there are too many gradients or nobody waits for them.
    bool run();

  private:
    // What stands between two semicolons or braces.
    struct Item {
        enum class Part { Start, Name, Value, AtRule, Other };

        Part part = Part::Start;
        std::size_t begin = 0;
        std::string_view name{};
        std::size_t value = 0; ///< where it begins
        bool holdsGradient = false;

        bool isCustomProperty() const { return part == Part::Value && name.starts_with("--"); }
    };

    struct OpenRule {
        std::string_view selector{};
        std::size_t named = 0;             ///< the rule whose selector counts: that around an at-rule
        std::optional<std::string> name{}; ///< as it is told, once it was needed
        RuleGradients gradients{};
    };

    bool take(const CssToken& token);
    bool takeClosing(const CssToken& token);
    void follow(const CssToken& token);
    void openRule(const CssToken& brace);
    bool endItem(std::size_t end);
    const std::string& ruleName();
    bool readDeclaration(std::string_view value);

    std::string_view text_;
    CssTokenizer tokens_;
    FoundGradients& found_;
    ReadingProgress& progress_;
    std::size_t offset_;
    Item item_;
    CssBrackets brackets_;           ///< that are open within the item
    std::vector<OpenRule> rules_{1}; ///< the first is the text itself
    std::size_t tooDeep_ = 0;        ///< rules that are open and passed over
};

} // namespace tessaly
