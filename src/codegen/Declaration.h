#pragma once

#include <array>
#include <cstddef>

namespace tessaly {

/// The declarations of the gradient rule, in the order in which they stand in the stylesheet and every loop
/// visits them. The standard form deliberately comes second, before the prefixed ones.
enum class Declaration {
    Old,       ///< plain colour of the first stop
    Standard,  ///< current syntax
    Moz,       ///< -moz- prefix
    OldWebKit, ///< legacy -webkit-gradient
    NewWebKit, ///< -webkit- prefix
    Opera,     ///< -o- prefix
    IE,        ///< -ms- prefix
    MSFilter   ///< filter with the first and the last stop
};

inline constexpr std::array allDeclarations{
    Declaration::Old,       Declaration::Standard, Declaration::Moz, Declaration::OldWebKit,
    Declaration::NewWebKit, Declaration::Opera,    Declaration::IE,  Declaration::MSFilter};

inline constexpr std::size_t declarationCount = allDeclarations.size();

/// One value for each declaration.
template <typename Value>
class PerDeclaration {
  public:
    Value& operator[](Declaration declaration) { return values_[static_cast<std::size_t>(declaration)]; }
    const Value& operator[](Declaration declaration) const {
        return values_[static_cast<std::size_t>(declaration)];
    }

  private:
    std::array<Value, declarationCount> values_{};
};

} // namespace tessaly
