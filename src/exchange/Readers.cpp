#include "exchange/Readers.h"

#include "exchange/CssReader.h"
#include "exchange/SvgReader.h"
#include "foundation/Utf8.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace tessaly {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view bigEndianMark = "\xFE\xFF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";

// None: the text is not in UTF-16, or does not say so. Half a unit at the end is dropped.
std::optional<std::string> fromUtf16(std::string_view bytes) {
    const bool isBigEndian = bytes.starts_with(bigEndianMark);
    if (!isBigEndian && !bytes.starts_with(littleEndianMark)) {
        return std::nullopt;
    }
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (bytes.remove_prefix(bigEndianMark.size()); bytes.size() > 1; bytes.remove_prefix(2)) {
        const auto high = static_cast<unsigned char>(bytes[isBigEndian ? 0 : 1]);
        const auto low = static_cast<unsigned char>(bytes[isBigEndian ? 1 : 0]);
        units += static_cast<char16_t>(high << 8U | low);
    }
    return toUtf8(units);
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

// The end of a document type, which may hold declarations in brackets.
std::size_t typeEnd(std::string_view text) {
    const std::size_t end = text.find_first_of("[>");
    return end == std::string_view::npos || text[end] == '>'
               ? end
               : text.find('>', std::min(text.find(']', end), text.size()));
}

// Takes off the front what may stand before the first element. False: there is none of that.
bool skipOneBeforeElement(std::string_view& text) {
    struct Item {
        std::string_view start;
        std::string_view end; // empty: that of a document type
    };
    constexpr std::array<Item, 3> items{{{"<?", "?>"}, {"<!--", "-->"}, {"<!DOCTYPE", {}}}};
    for (const Item& item : items) {
        if (text.starts_with(item.start)) {
            const std::size_t found =
                item.end.empty() ? typeEnd(text) : text.find(item.end, item.start.size());
            text.remove_prefix(found == std::string_view::npos
                                   ? text.size()
                                   : found + std::max<std::size_t>(item.end.size(), 1));
            return true;
        }
    }
    return false;
}

bool isSvg(std::string_view text) {
    text.remove_prefix(text.starts_with(utf8Mark) ? utf8Mark.size() : 0);
    do {
        skipBlanks(text);
    } while (skipOneBeforeElement(text));
    if (!text.starts_with('<')) {
        return false;
    }
    const std::string_view name = text.substr(1, text.find_first_of(" \t\r\n/>") - 1);
    return name.substr(name.find(':') + 1) == "svg";
}

// For a line of the window, whatever a text has in its place.
void shorten(std::string& text) {
    constexpr std::size_t most = 120;
    text = utf8Prefix(text, most);
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
}

Reading shortened(Reading reading) {
    for (FoundGradient& found : reading.gradients) {
        shorten(found.name);
        std::ranges::for_each(found.notes, shorten);
    }
    return reading;
}

} // namespace

Reading readGradients(std::string_view text, const Progress& progress) {
    const std::optional<std::string> converted = fromUtf16(text);
    text = converted ? std::string_view{*converted} : text;
    if (isSvg(text)) {
        if (auto reading = readSvgGradients(text, progress)) {
            return shortened(std::move(*reading));
        }
    }
    return shortened(
        readCssGradients(text, progress)); // also of a picture in the middle of a page, or with CSS alone
}

} // namespace tessaly
