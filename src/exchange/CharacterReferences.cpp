#include "exchange/CharacterReferences.h"

#include "exchange/CssCharacter.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace tessaly {
namespace {

struct Reference {
    std::string_view name;
    char32_t character;
};

constexpr std::array references{Reference{"quot", U'"'}, Reference{"apos", U'\''},
                                Reference{"amp", U'&'},  Reference{"lt", U'<'},
                                Reference{"gt", U'>'},   Reference{"nbsp", U'\u00A0'}};
constexpr std::size_t longestReference = 10; // with the largest number

// Of what stands between & and ;.
std::optional<char32_t> characterOf(std::string_view reference) {
    if (!reference.starts_with('#')) {
        const Reference* const row = std::ranges::find(references, reference, &Reference::name);
        return row == references.end() ? std::nullopt : std::optional{row->character};
    }
    reference.remove_prefix(1);
    const bool isHexadecimal = !reference.empty() && lowered(reference.front()) == 'x';
    reference.remove_prefix(isHexadecimal ? 1 : 0);
    std::uint32_t number = 0;
    const char* const end = reference.data() + reference.size();
    const auto result = std::from_chars(reference.data(), end, number, isHexadecimal ? 16 : 10);
    if (reference.empty() || result.ptr != end || result.ec != std::errc{}) {
        return std::nullopt;
    }
    return number == 0 ? replacementCharacter : char32_t{number};
}

} // namespace

std::string withoutCharacterReferences(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    while (!text.empty()) {
        const auto mark = std::min(text.find('&'), text.size());
        plain += text.substr(0, mark);
        text.remove_prefix(mark);
        const auto length = text.substr(0, longestReference + 2).find(';');
        const auto character =
            length == std::string_view::npos ? std::nullopt : characterOf(text.substr(1, length - 1));
        if (character) {
            appendUtf8(plain, *character);
            text.remove_prefix(length + 1);
        } else if (!text.empty()) {
            plain += '&';
            text.remove_prefix(1);
        }
    }
    return plain;
}

} // namespace tessaly
