#pragma once

#include "exchange/SvgStopStyle.h"
#include "exchange/XmlHandler.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace tessaly {

/// What the `style` elements of a document say of stops: rules for elements, classes and ids by themselves,
/// or a list of these. Any other rule is passed over.
class SvgStyleSheet : public XmlHandler {
  public:
    void startElement(std::string_view name, const XmlAttributes& attributes) override;
    void endElement() override;
    void characters(std::string_view text) override;

    /// Adds to `style` what the rules say of a stop with these attributes.
    void applyTo(SvgStopStyle& style, std::string_view classes, std::string_view id) const;

  private:
    void addRules(std::string_view sheet);
    void addRule(std::string_view selectors, std::string_view declarations);

    std::unordered_map<std::string, SvgStopStyle> styles_; ///< by selector
    std::string text_;
    bool isInStyle_ = false;
    std::uint64_t rules_ = 0;
};

} // namespace tessaly
