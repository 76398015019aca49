#include "exchange/Readers.h"

#include "exchange/CssReader.h"
#include "exchange/PageStyles.h"
#include "exchange/SvgReader.h"
#include "foundation/Utf8.h"

#include <algorithm>
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

// For a line of the window, whatever a text has in its place.
void shorten(std::string& text) {
    constexpr std::size_t most = 120;
    text = utf8Prefix(text, most);
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
}

void append(Reading& reading, Reading more) {
    std::ranges::move(more.gradients, std::back_inserter(reading.gradients));
    reading.complete = reading.complete && more.complete;
}

} // namespace

Reading readGradients(std::string_view text, const Progress& progress) {
    const std::optional<std::string> converted = fromUtf16(text);
    text = converted ? std::string_view{*converted} : text;
    text.remove_prefix(text.starts_with(utf8Mark) ? utf8Mark.size() : 0);
    const bool maySvg = text.find("Gradient") != std::string_view::npos;
    const double size = maySvg ? 0.5 : 1.0;
    bool goesOn = true;
    const auto part = [&](double begin, double length) {
        const Progress told = [&goesOn, &progress, begin, length](double share) {
            goesOn = goesOn && progress(begin + share * length);
            return goesOn;
        };
        return progress ? told : Progress{};
    };
    Reading reading = readCssGradients(text, part(0.0, size));
    if (maySvg && goesOn &&
        (reading.gradients.empty() || PageStyles::isPage(text))) { // else it is in a string
        append(reading, readSvgGradients(text, part(size, 1.0 - size)));
    }
    for (FoundGradient& found : reading.gradients) {
        shorten(found.name);
        std::ranges::for_each(found.notes, shorten);
    }
    return goesOn ? reading : Reading{};
}

} // namespace tessaly
