#include "exchange/SvgReader.h"

#include "exchange/SvgDocument.h"
#include "exchange/SvgTaking.h"
#include "exchange/XmlReader.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tessaly {
namespace {

constexpr std::size_t mostBytes = std::size_t{16} << 20U;

// What may hold gradients, or their style.
bool isOfSvg(std::string_view tag) {
    constexpr std::array<std::string_view, 5> names{"svg", "defs", "style", "linearGradient",
                                                    "radialGradient"};
    const std::string_view whole = tag.substr(0, tag.find_first_of(" \t\r\n/>"));
    const std::string_view name = whole.substr(whole.find(':') + 1);
    return std::ranges::find(names, name) != names.end();
}

// Where the next element of SVG begins; the size of the text: nowhere.
std::size_t nextPiece(std::string_view text, std::size_t place) {
    constexpr std::string_view comment = "<!--";
    constexpr std::size_t longestTag = 64; // as far as its name goes
    for (place = text.find('<', place); place < text.size(); place = text.find('<', place + 1)) {
        if (isOfSvg(text.substr(place + 1, longestTag))) {
            return place;
        }
        place = text.substr(place).starts_with(comment) ? text.find("-->", place) : place;
        if (place == std::string_view::npos) {
            break;
        }
    }
    return text.size();
}

// Where a document would begin with what precedes its root; the size of the text: there is no such.
std::size_t prologOf(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const std::string_view start = text.substr(begin, 2);
    return start == "<?" || start == "<!" ? begin : text.size();
}

// Where elements begin that are well-formed.
struct Pieces {
    std::vector<std::size_t> places;
    bool areAll = true;
};

// What stands in a piece is told to the handler on the way, also of one that proves malformed.
Pieces piecesOf(std::string_view text, XmlReader& xml, XmlHandler& handler) {
    constexpr std::size_t most = 10'000; // with those that are malformed
    Pieces pieces;
    std::size_t place = prologOf(text);
    const bool hasProlog = place < text.size();
    place = hasProlog ? place : nextPiece(text, 0);
    for (std::size_t count = 0; place < text.size(); ++count) {
        const XmlElement element = xml.read(place, handler);
        const bool isWhole = element.end == XmlEnd::Whole;
        const bool isPage = hasProlog && count == 0 && !isWhole; // pieces of which may be well-formed
        if (isWhole) {
            pieces.places.push_back(place);
        }
        if (element.end == XmlEnd::Cancelled || (element.end == XmlEnd::Unfinished && !isPage)) {
            break;
        }
        if (count == most) {
            pieces.areAll = false;
            break;
        }
        place = nextPiece(text, isPage ? 0 : std::max(element.place, place + 1));
    }
    return pieces;
}

// Everything that one gradient refers to may be found in many: what they have in all is limited too.
Reading readingOf(const SvgDocument& document) {
    Reading reading;
    reading.complete = document.isComplete();
    std::size_t stops = 0;
    for (const SvgGradient& gradient : document.gradients()) {
        stops += gradient.stopCount;
        if (stops > SvgDocument::mostStopsInAll) {
            reading.complete = false;
            break;
        }
        if (auto found = takeSvgGradient(gradient, document.stopsOf(gradient))) {
            reading.gradients.push_back(std::move(*found));
        }
    }
    return reading;
}

} // namespace

Reading readSvgGradients(std::string_view text, const Progress& progress) {
    const std::string_view read = text.substr(0, mostBytes);
    const bool isCut = read.size() < text.size();
    ReadingProgress share{2 * read.size(), progress};
    SvgStyleSheet styles; // first, since it may stand behind the gradients
    XmlReader first{read, isCut, share, 0};
    const Pieces pieces = piecesOf(read, first, styles);
    SvgDocument document{styles};
    XmlReader second{read, isCut, share, read.size()};
    for (const std::size_t place : pieces.places) {
        if (share.goesOn()) {
            second.read(place, document);
        }
    }
    if (!share.goesOn()) {
        return {};
    }
    document.resolveReferences();
    Reading reading = readingOf(document);
    reading.complete = reading.complete && pieces.areAll && !isCut;
    return reading;
}

} // namespace tessaly
