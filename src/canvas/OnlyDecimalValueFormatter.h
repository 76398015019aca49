#pragma once

#include "canvas/NumberFormatter.h"

namespace tessaly {

/// Accepts decimal numbers with a point, with or without an exponent. Shows numbers rounded to tenths.
class OnlyDecimalValueFormatter : public NumberFormatter {
  public:
    std::string text(double value) const override;

  protected:
    std::optional<double> scan(std::string_view& text) const override;
};

} // namespace tessaly
