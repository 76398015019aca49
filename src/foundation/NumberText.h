#pragma once

#include <cstdint>
#include <string>

/// Numbers as text, independent of the locale: the decimal separator is always a point.
namespace tessaly {

/// As printf's "%.<decimals>f".
std::string fixedText(double value, int decimals);

/// As printf's "%.<digits>g".
std::string significantText(double value, int digits);

/// The shortest text that reads as exactly this number.
std::string exactText(double value);

/// As printf's "%02x".
std::string hexByteText(std::uint32_t value);

/// A fraction as percent, without the sign: at most one decimal, further digits cut, not rounded. Works from
/// the shortest decimal form of the single-precision value, so 0.333 gives 33.3 and 0.9999 gives 99.9.
std::string percentText(double fraction);

} // namespace tessaly
