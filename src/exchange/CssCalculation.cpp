#include "exchange/CssCalculation.h"

#include "exchange/CssName.h"
#include "exchange/CssTokenizer.h"

#include <cmath>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

constexpr std::size_t mostOpenOperands = 1000;

int precedence(char sign) {
    return sign == '*' || sign == '/' ? 2 : sign == '(' ? 0 : 1;
}

std::optional<CssQuantity> applied(char sign, const CssQuantity& left, const CssQuantity& right) {
    CssQuantity result = left;
    switch (sign) {
    case '*':
        if (left.kind == Kind::Number) {
            result = right;
        } else if (right.kind != Kind::Number) {
            return std::nullopt;
        }
        result.value = left.value * right.value;
        break;
    case '/':
        if (right.kind != Kind::Number) {
            return std::nullopt;
        }
        result.value /= right.value;
        break;
    default:
        if (left.kind != right.kind || left.unit != right.unit) {
            return std::nullopt;
        }
        result.value += sign == '+' ? right.value : -right.value;
    }
    return std::isfinite(result.value) ? std::optional{result} : std::nullopt;
}

} // namespace

bool CssCalculation::takeOperand(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    const bool fits = quantity && operands_.size() < mostOpenOperands;
    if (fits) {
        operands_.push_back(*quantity);
    }
    return fits;
}

bool CssCalculation::applyLast() {
    const CssQuantity right = operands_.back();
    operands_.pop_back();
    const auto value = applied(operators_.back(), operands_.back(), right);
    operators_.pop_back();
    if (value) {
        operands_.back() = *value;
    }
    return value.has_value();
}

bool CssCalculation::takeOperator(char sign) {
    while (!operators_.empty() && precedence(operators_.back()) >= precedence(sign)) {
        if (!applyLast()) {
            return false;
        }
    }
    operators_ += sign;
    return true;
}

bool CssCalculation::closeBracket() {
    while (!operators_.empty() && operators_.back() != '(') {
        if (!applyLast()) {
            return false;
        }
    }
    if (operators_.empty()) {
        return false;
    }
    operators_.pop_back();
    return true;
}

std::optional<CssQuantity> CssCalculation::result(std::string_view content) {
    CssCalculation calculation;
    CssTokenizer tokens{content};
    bool operandIsNext = true;
    for (CssToken token = tokens.next(); token.kind != CssToken::Kind::End; token = tokens.next()) {
        bool fits = true;
        if (token.kind == CssToken::Kind::Blank) {
            continue;
        }
        if (token.is('(') || (token.kind == CssToken::Kind::Function && isCssName(token.name, "calc"))) {
            fits = operandIsNext;
            calculation.operators_ += '(';
        } else if (token.is(')')) {
            fits = !operandIsNext && calculation.closeBracket();
        } else if (operandIsNext) {
            fits = token.kind != CssToken::Kind::Function && calculation.takeOperand({token, {}, {}});
            operandIsNext = false;
        } else {
            operandIsNext = true;
            fits = (token.is('+') || token.is('-') || token.is('*') || token.is('/')) &&
                   calculation.takeOperator(token.text.front());
        }
        if (!fits) {
            return std::nullopt;
        }
    }
    const bool closed = !operandIsNext && calculation.takeOperator(')');
    return closed && calculation.operators_ == ")" ? std::optional{calculation.operands_.back()}
                                                   : std::nullopt;
}

} // namespace tessaly
