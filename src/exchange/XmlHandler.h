#pragma once

#include <optional>
#include <string_view>

namespace tessaly {

/// The attributes of an element, as long as it is being told.
class XmlAttributes {
  public:
    /// Names and values by turns, ended by a null pointer.
    explicit XmlAttributes(const char* const* pairs) : pairs_{pairs} {}

    /// By the name as it is written, with its prefix.
    std::optional<std::string_view> value(std::string_view name) const {
        for (const char* const* pair = pairs_; *pair != nullptr; pair += 2) {
            if (name == pair[0]) {
                return pair[1];
            }
        }
        return std::nullopt;
    }

  private:
    const char* const* pairs_;
};

/// Is told what stands in a document, in its order. Element names come without prefix.
class XmlHandler {
  public:
    virtual ~XmlHandler() = default;
    virtual void startElement(std::string_view name, const XmlAttributes& attributes) = 0;
    virtual void endElement() = 0;
    virtual void characters(std::string_view /*text*/) {} ///< in as many pieces as it pleases
};

} // namespace tessaly
