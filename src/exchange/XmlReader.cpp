#include "exchange/XmlReader.h"

#include <algorithm>
#include <expat.h>
#include <memory>

namespace tessaly {
namespace {

struct ParserEnd {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<XML_ParserStruct, ParserEnd>;

bool isUtf8(std::string_view text) {
    std::size_t following = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool continues = (byte & 0xC0U) == 0x80U;
        if (continues != (following > 0)) {
            return false;
        }
        following = continues ? following - 1 : byte >= 0xF0U ? 3 : byte >= 0xE0U ? 2 : byte >= 0xC0U ? 1 : 0;
    }
    return true;
}

// Of the parser that is at work.
struct Work {
    XmlHandler& handler;
    std::size_t depth = 0; ///< of open elements
    XML_Index behind = 0;  ///< the root, once it has ended
};

Work& workOf(void* parser) {
    return *static_cast<Work*>(XML_GetUserData(static_cast<XML_Parser>(parser)));
}

void start(void* parser, const XML_Char* name, const XML_Char** attributes) {
    const std::string_view whole = name;
    Work& work = workOf(parser);
    ++work.depth;
    work.handler.startElement(whole.substr(whole.find(':') + 1), XmlAttributes{attributes});
}

// Nothing behind the root matters.
void end(void* parser, const XML_Char* /*name*/) {
    Work& work = workOf(parser);
    work.handler.endElement();
    --work.depth;
    if (work.depth == 0) {
        auto* const at = static_cast<XML_Parser>(parser);
        work.behind = XML_GetCurrentByteIndex(at) + XML_GetCurrentByteCount(at);
        XML_StopParser(at, XML_FALSE);
    }
}

void characters(void* parser, const XML_Char* text, int length) {
    workOf(parser).handler.characters({text, static_cast<std::size_t>(length)});
}

void refuse(void* parser, const XML_Char*, int, const XML_Char*, int, const XML_Char*, const XML_Char*,
            const XML_Char*, const XML_Char*) {
    XML_StopParser(static_cast<XML_Parser>(parser), XML_FALSE);
}

// A few lines of entities can stand for gigabytes of text, so only such are let in as drawing programs write:
// short, and without others in them.
void refuseUnlessShort(void* parser, const XML_Char*, int isParameter, const XML_Char* value, int length,
                       const XML_Char*, const XML_Char*, const XML_Char*, const XML_Char*) {
    constexpr std::size_t most = 64; // an address
    const std::string_view text{value == nullptr ? "&" : value,
                                value == nullptr ? 1 : static_cast<std::size_t>(length)};
    if (isParameter != 0 || text.size() > most || text.find('&') != std::string_view::npos) {
        XML_StopParser(static_cast<XML_Parser>(parser), XML_FALSE);
    }
}

constexpr std::size_t mostWithEntities = std::size_t{1} << 20U;

Parser makeParser(const char* encoding, bool isLong, Work& work) {
    Parser parser{XML_ParserCreate(encoding)};
    if (parser) {
        XML_SetUserData(parser.get(), &work);
        XML_UseParserAsHandlerArg(parser.get());
        XML_SetElementHandler(parser.get(), start, end);
        XML_SetCharacterDataHandler(parser.get(), characters);
        XML_SetEntityDeclHandler(parser.get(), isLong ? refuse : refuseUnlessShort);
    }
    return parser;
}

bool endedTooSoon(XML_Error error) {
    return error == XML_ERROR_UNCLOSED_TOKEN || error == XML_ERROR_PARTIAL_CHAR ||
           error == XML_ERROR_NO_ELEMENTS || error == XML_ERROR_UNCLOSED_CDATA_SECTION;
}

} // namespace

XmlReader::XmlReader(std::string_view text, bool isCut, ReadingProgress& progress, std::size_t offset)
    : text_{text},
      isCut_{isCut},
      progress_{progress},
      offset_{offset},
      encoding_{isUtf8(text) ? "UTF-8" : "ISO-8859-1"} {}

XmlElement XmlReader::read(std::size_t begin, XmlHandler& handler) {
    // Pieces grow, since the parser looks at an unfinished token from its beginning with each, and most
    // elements are short.
    constexpr std::size_t shortest = std::size_t{4} << 10U;
    constexpr std::size_t longest = std::size_t{4} << 20U;
    Work work{handler};
    const Parser parser = makeParser(encoding_, text_.size() > mostWithEntities, work);
    std::size_t size = shortest;
    for (std::size_t place = begin; parser && place < text_.size(); size = std::min(2 * size, longest)) {
        const std::string_view piece = text_.substr(place, size);
        place += piece.size();
        const bool isLast = !isCut_ && place == text_.size();
        const auto status =
            XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), isLast ? 1 : 0);
        if (!progress_.reach(offset_ + place)) {
            return {XmlEnd::Cancelled, place};
        }
        if (work.behind > 0) {
            return {XmlEnd::Whole, begin + static_cast<std::size_t>(work.behind)};
        }
        if (status != XML_STATUS_OK) {
            const XML_Index index = std::max<XML_Index>(XML_GetCurrentByteIndex(parser.get()), 0);
            const bool isMistake = !endedTooSoon(XML_GetErrorCode(parser.get()));
            return {isMistake ? XmlEnd::Malformed : XmlEnd::Unfinished,
                    begin + static_cast<std::size_t>(index)};
        }
    }
    return {parser && isCut_ ? XmlEnd::Whole : XmlEnd::Unfinished, text_.size()};
}

} // namespace tessaly
