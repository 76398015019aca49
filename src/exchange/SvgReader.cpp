#include "exchange/SvgReader.h"

#include "exchange/SvgDocument.h"
#include "exchange/SvgTaking.h"
#include "exchange/XmlReader.h"

namespace tessaly {
namespace {

// The share that is read, when all is read twice.
Progress halfOf(const Progress& progress, double before) {
    return progress ? [&progress, before](double share) { return progress(before + share / 2); } : Progress{};
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
        if (auto found = takeSvgGradient(gradient, document.stopsOf(gradient), document.viewport())) {
            reading.gradients.push_back(std::move(*found));
        }
    }
    return reading;
}

} // namespace

std::optional<Reading> readSvgGradients(std::string_view text, const Progress& progress) {
    SvgStyleSheet styles; // first, since it may stand behind the gradients
    SvgDocument document{styles};
    XmlEnd end = readXml(text, styles, halfOf(progress, 0.0));
    if (end == XmlEnd::Whole) {
        end = readXml(text, document, halfOf(progress, 0.5));
    }
    if (end == XmlEnd::Cancelled) {
        return Reading{};
    }
    if (end == XmlEnd::Malformed) {
        return std::nullopt;
    }
    document.resolveReferences();
    Reading reading = readingOf(document);
    reading.complete = reading.complete && text.size() <= longestXml;
    return reading.gradients.empty() ? std::nullopt : std::optional{std::move(reading)};
}

} // namespace tessaly
