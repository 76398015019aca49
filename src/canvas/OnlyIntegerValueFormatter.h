#pragma once

#include "canvas/NumberFormatter.h"

namespace tessaly {

/// Accepts whole numbers. One that does not fit 32 bits is read as the nearest that does.
class OnlyIntegerValueFormatter : public NumberFormatter {
  public:
    std::string text(double value) const override;

  protected:
    std::optional<double> scan(std::string_view& text) const override;
};

} // namespace tessaly
