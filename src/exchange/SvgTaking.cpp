#include "exchange/SvgTaking.h"

#include "exchange/SvgDirection.h"
#include "exchange/SvgDisc.h"
#include "exchange/SvgLine.h"
#include "exchange/SvgStops.h"
#include "model/Orientation.h"

#include <algorithm>

namespace tessaly {
namespace {

using Notes = std::vector<std::string>;

// All that is seen is the last color.
void keepLast(std::vector<SvgStop>& stops, Notes& notes) {
    if (stops.size() > 1) {
        stops.erase(stops.begin(), stops.end() - 1);
        notes.emplace_back("no length, its last color taken");
    }
}

// The orientation; none where nothing is painted.
std::optional<std::int64_t> takeLinear(const SvgGradient& gradient, Size viewport,
                                       std::vector<SvgStop>& stops, Notes& notes) {
    const std::optional<SvgLine> line = svgLine(gradient, viewport);
    if (!line) {
        return std::nullopt;
    }
    if (line->isPoint) {
        keepLast(stops, notes);
        return orientation::leftToRight;
    }
    const SvgDirection direction = nearestSvgDirection(line->angle);
    if (!direction.note.empty()) {
        notes.push_back(direction.note);
    }
    if (gradient.isInUserSpace.value_or(false)) {
        notes.emplace_back("lengths taken in proportion");
    }
    place(stops, line->start, line->end);
    if (cutAtEdges(stops)) {
        notes.emplace_back("cut at the edges");
    }
    if (direction.isTurned) {
        turn(stops);
    }
    return direction.orientation;
}

std::optional<std::int64_t> takeRadial(const SvgGradient& gradient, Size viewport,
                                       std::vector<SvgStop>& stops, Notes& notes) {
    const std::optional<SvgDisc> disc = svgDisc(gradient, viewport);
    if (!disc) {
        return std::nullopt;
    }
    if (disc->isPoint) {
        keepLast(stops, notes);
    } else {
        notes = disc->notes;
    }
    return orientation::radial;
}

} // namespace

std::optional<FoundGradient> takeSvgGradient(const SvgGradient& gradient, std::span<const SvgStop> stops,
                                             Size viewport) {
    if (stops.empty()) {
        return std::nullopt;
    }
    FoundGradient found;
    found.name = gradient.id;
    std::vector<SvgStop> taken = inOrder(stops);
    const auto take = gradient.isRadial ? takeRadial : takeLinear;
    const std::optional<std::int64_t> orientation = take(gradient, viewport, taken, found.notes);
    if (!orientation) {
        return std::nullopt;
    }
    if (gradient.isRepeated.value_or(false)) {
        found.notes.emplace_back("repeating taken once");
    }
    if (gradient.isMixedLinearly) {
        found.notes.emplace_back("mixing in linear light taken as in sRGB");
    }
    if (isMixingSeen(taken)) {
        found.notes.emplace_back("opacity mixed as in CSS");
    }
    if (std::ranges::any_of(taken, &SvgStop::isClipped)) {
        found.notes.emplace_back("colors clipped to sRGB");
    }
    std::vector<ColorStop> colors;
    colors.reserve(taken.size());
    std::ranges::transform(taken, std::back_inserter(colors), &SvgStop::stop);
    found.gradient = Gradient{std::move(colors), *orientation};
    return found;
}

} // namespace tessaly
