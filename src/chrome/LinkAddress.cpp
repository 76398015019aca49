#include "chrome/LinkAddress.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view prefix = "http://";

// Of ASCII letters alone, whatever the locale.
char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

LinkAddress LinkAddress::ofLabel(std::string_view text) {
    const auto found = std::search(text.begin(), text.end(), prefix.begin(), prefix.end(),
                                   [](char a, char b) { return lowerCase(a) == b; });
    const std::string whole{text};
    if (found != text.end()) {
        return {whole, "Found " + whole};
    }
    return {std::string{prefix} + whole, "Not Found " + whole};
}

std::string LinkAddress::labelText(std::string_view address) {
    constexpr std::string_view secure = "https://";
    if (address.substr(0, secure.size()) == secure) {
        address.remove_prefix(secure.size());
    }
    if (!address.empty() && address.back() == '/') {
        address.remove_suffix(1);
    }
    return std::string{address};
}

} // namespace tessaly
