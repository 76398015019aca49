#pragma once

#include "canvas/StopValue.h"

#include <string>
#include <string_view>

namespace tessaly {

/// Judges what is typed into a number field, keystroke by keystroke, and turns it into a number and back. A
/// text is read as a scanner would: leading white space is skipped, nothing may stand behind the number.
class NumberFormatter {
  public:
    /// Of decimals, with a point and with or without an exponent; else of whole numbers, where one that does
    /// not fit 32 bits is read as the nearest that does.
    explicit constexpr NumberFormatter(bool decimal) : decimal_{decimal} {}

    /// Of the field of a value.
    explicit constexpr NumberFormatter(StopValue value) : NumberFormatter{traitsOf(value).decimal} {}

    /// Whether the field may show `text` while it is edited: it is empty or wholly a number.
    bool isPartialStringValid(std::string_view text) const;

    /// The number that `text` stands for; 0 where it is none.
    double value(std::string_view text) const;

    /// How the field shows a number: decimals rounded to tenths, others cut.
    std::string text(double value) const;

  private:
    bool decimal_;
};

} // namespace tessaly
