#pragma once

#include "exchange/CssDefinitions.h"
#include "exchange/SvgSelector.h"
#include "exchange/SvgStyle.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tessaly {

/// What the `style` elements of a text say of elements. Rules within other rules are passed over.
class SvgStyleSheet : public XmlHandler {
  public:
    void startElement(std::string_view name, const XmlAttributes& attributes) override;
    void endElement() override;
    void characters(std::string_view text) override;

    /// What is declared of the last element of a path, by its attributes, the rules and its own style.
    SvgStyle styleOf(SvgPath path);

    /// A value of the last element of a path, with what it names put in as far as that is known.
    std::string resolved(std::string_view value, SvgPath path);

    /// Nothing was left out.
    bool isComplete() const { return isComplete_; }

  private:
    struct Rule {
        SvgSelector selector;
        SvgStyle style;
    };

    void addRules(std::string_view sheet);
    void addRule(std::string_view selectors, const SvgStyle& style);
    void applyTo(SvgStyle& style, const std::string& key, SvgPath path);

    std::deque<std::string> sheets_;
    std::vector<Rule> rules_;
    std::unordered_map<std::string, std::vector<std::size_t>> rulesByKey_; ///< their places
    CssDefinitions definitions_;
    bool isInStyle_ = false;
    bool isComplete_ = true;
    std::size_t work_ = 0; ///< bytes and elements looked at, which a text of a few lines could multiply
};

} // namespace tessaly
