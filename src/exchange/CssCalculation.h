#pragma once

#include "exchange/CssQuantity.h"

#include <string>

namespace tessaly {

/// What calc() of plain arithmetic over quantities of one kind gives. Works without recursion, so that
/// brackets may be as deep as they like.
class CssCalculation {
  public:
    /// `content` is what stands between the brackets; none: it cannot be calculated.
    static std::optional<CssQuantity> result(std::string_view content);

  private:
    bool takeOperand(const CssComponent& component);
    bool takeOperator(char sign);
    bool closeBracket();
    bool applyLast();

    std::vector<CssQuantity> operands_;
    std::string operators_; ///< + - * / and open brackets
};

} // namespace tessaly
