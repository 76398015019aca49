#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// Judges what is typed into a number field, keystroke by keystroke, and turns it into a number and back. A
/// text is read as a scanner would: leading white space is skipped, nothing may stand behind the number.
class NumberFormatter {
  public:
    virtual ~NumberFormatter() = default;

    /// Whether the field may show `text` while it is edited: it is empty or wholly a number.
    bool isPartialStringValid(std::string_view text) const { return text.empty() || scanned(text); }

    /// The number that `text` stands for; 0 where it is none.
    double value(std::string_view text) const { return scanned(text).value_or(0.0); }

    /// How the field shows a number.
    virtual std::string text(double value) const = 0;

  protected:
    /// Takes the longest number off the front of `text`; none when it does not start with one.
    virtual std::optional<double> scan(std::string_view& text) const = 0;

  private:
    std::optional<double> scanned(std::string_view text) const;
};

} // namespace tessaly
