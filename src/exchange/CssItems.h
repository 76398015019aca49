#pragma once

#include "exchange/CssBrackets.h"
#include "exchange/CssTokenizer.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tessaly {

/// What stands in a text of CSS between two semicolons or braces.
struct CssItem {
    enum class Kind {
        Declaration,
        Value, ///< one without a name, outside of all rules
        RuleStart,
        RuleEnd
    };

    Kind kind = Kind::Value;
    std::string_view name{}; ///< of a declaration, as it is written
    std::string_view text{}; ///< the value without "!important", the selector or the prelude
    std::size_t rule = 0;    ///< in which it stands or which it is: a number of its own; 0: the text itself
    bool holdsGradient = false; ///< maybe; false: surely not
    bool isImportant = false;
    bool isAtRule = false;
};

/// Cuts a stylesheet, the declarations of one rule or a bare value into items, one after the other. It runs
/// over the text once and never fails: what is no item is passed over, as a browser does.
class CssItems {
  public:
    /// `text` must outlive the items.
    explicit CssItems(std::string_view text) : text_{text}, tokens_{text} {}

    /// The next item; none, once and for ever, when the text has ended.
    std::optional<CssItem> next();

    /// How much of the text is read, in bytes.
    std::size_t place() const { return begin_; }

  private:
    enum class Part { Start, Name, Value, AtRule, Other };

    bool isCustomProperty() const { return part_ == Part::Value && name_.starts_with("--"); }
    void follow(const CssToken& token);
    bool endsItem(const CssToken& token) const;
    std::optional<CssItem> take(const CssToken& end);
    CssItem startRule(std::string_view prelude);
    std::optional<CssItem> endRule();
    void startAfter(std::size_t place);

    std::string_view text_;
    CssTokenizer tokens_;
    std::vector<std::size_t> rules_; ///< that are open
    std::size_t ruleCount_ = 0;
    bool closesRule_ = false; ///< before anything else

    // The item that is being read.
    Part part_ = Part::Start;
    std::size_t begin_ = 0;
    std::size_t value_ = 0; ///< where it begins
    std::string_view name_{};
    bool holdsGradient_ = false;
    CssBrackets brackets_; ///< that are open within it
};

} // namespace tessaly
