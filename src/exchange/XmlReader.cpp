#include "exchange/XmlReader.h"

#include <algorithm>
#include <expat.h>
#include <memory>

namespace tessaly {
namespace {

// With every piece the parser looks at an unfinished token from its beginning.
constexpr std::size_t pieceSize = std::size_t{4} << 20U;

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

// None: the parser finds it out from the byte-order mark.
const char* encodingOf(std::string_view text) {
    if (text.starts_with("\xFE\xFF") || text.starts_with("\xFF\xFE")) {
        return nullptr;
    }
    return isUtf8(text) ? "UTF-8" : "ISO-8859-1";
}

// The document without what may precede it in a pasted text but not in XML.
std::string_view withoutMargin(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    text.remove_prefix(text.starts_with(mark) ? mark.size() : 0);
    return text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

XmlHandler& handlerOf(void* parser) {
    return *static_cast<XmlHandler*>(XML_GetUserData(static_cast<XML_Parser>(parser)));
}

void start(void* parser, const XML_Char* name, const XML_Char** attributes) {
    const std::string_view whole = name;
    handlerOf(parser).startElement(whole.substr(whole.find(':') + 1), XmlAttributes{attributes});
}

void end(void* parser, const XML_Char* /*name*/) {
    handlerOf(parser).endElement();
}

void characters(void* parser, const XML_Char* text, int length) {
    handlerOf(parser).characters({text, static_cast<std::size_t>(length)});
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

Parser makeParser(const char* encoding, bool isLong, XmlHandler& handler) {
    Parser parser{XML_ParserCreate(encoding)};
    if (parser) {
        XML_SetUserData(parser.get(), &handler);
        XML_UseParserAsHandlerArg(parser.get());
        XML_SetElementHandler(parser.get(), start, end);
        XML_SetCharacterDataHandler(parser.get(), characters);
        XML_SetEntityDeclHandler(parser.get(), isLong ? refuse : refuseUnlessShort);
    }
    return parser;
}

} // namespace

XmlEnd readXml(std::string_view text, XmlHandler& handler, const Progress& progress) {
    const bool isWhole = text.size() <= longestXml;
    text = withoutMargin(text.substr(0, longestXml));
    const Parser parser = makeParser(encodingOf(text), text.size() > mostWithEntities, handler);
    std::size_t read = 0;
    while (parser && read < text.size()) {
        const std::string_view piece = text.substr(read, pieceSize);
        read += piece.size();
        const bool isLast = isWhole && read == text.size();
        if (XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), isLast ? 1 : 0) !=
            XML_STATUS_OK) {
            return XmlEnd::Malformed;
        }
        if (progress && !progress(static_cast<double>(read) / static_cast<double>(text.size()))) {
            return XmlEnd::Cancelled;
        }
    }
    return parser && read > 0 ? XmlEnd::Whole : XmlEnd::Malformed;
}

} // namespace tessaly
