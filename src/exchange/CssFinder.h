#pragma once

#include "exchange/CssDefinitions.h"
#include "exchange/CssItems.h"
#include "exchange/CssValue.h"
#include "exchange/FoundGradients.h"
#include "exchange/ReadingProgress.h"

#include <optional>
#include <string>
#include <vector>

namespace tessaly {

/// Finds the gradients of a stylesheet, of the declarations of one rule, or of a bare value. It runs over the
/// text once, and keeps only the rules that are open; once more when a gradient needs what is defined
/// elsewhere.
class CssFinder {
  public:
    /// Everything must outlive the finder. `offset`: where the text begins in what the progress counts.
    CssFinder(std::string_view text, FoundGradients& found, ReadingProgress& progress, std::size_t offset = 0)
        : text_{text}, found_{found}, progress_{progress}, offset_{offset} {}

    /// False: it ended early, as there are too many gradients or nobody waits for them.
    bool run();

  private:
    struct OpenRule {
        std::string_view selector{};
        std::size_t named = 0;             ///< the rule whose selector counts: that around an at-rule
        std::optional<std::string> name{}; ///< as it is told, once it was needed
        RuleGradients gradients{};
    };

    bool take(const CssItem& item);
    void openRule(const CssItem& rule);
    void closeRule();
    bool takeValue(const CssItem& item);
    CssValue read(const CssItem& item);
    const std::string& ruleName();

    std::string_view text_;
    FoundGradients& found_;
    ReadingProgress& progress_;
    std::size_t offset_;
    std::optional<CssDefinitions> definitions_; ///< of the whole text, once they were needed
    std::vector<OpenRule> rules_{1};            ///< the first is the text itself
    std::size_t tooDeep_ = 0;                   ///< rules that are open and passed over
};

} // namespace tessaly
