#include "exchange/SvgTaking.h"

#include "exchange/GradientDraft.h"
#include "exchange/SvgDisc.h"
#include "exchange/SvgLine.h"
#include "exchange/SvgStops.h"

#include <algorithm>

namespace tessaly {
namespace {

enum class Extent { Nothing, Point, Whole };

Extent takeLine(const SvgGradient& gradient, GradientDraft& draft) {
    const std::optional<SvgLine> line = svgLine(gradient);
    if (!line || line->isPoint) {
        return line ? Extent::Point : Extent::Nothing;
    }
    draft.takeLine(line->line);
    if (line->isInProportion) {
        draft.takeLengths(true);
    }
    return Extent::Whole;
}

Extent takeDisc(const SvgGradient& gradient, GradientDraft& draft) {
    draft.orientation = orientation::radial;
    const std::optional<SvgDisc> disc = svgDisc(gradient);
    if (!disc || disc->isPoint) {
        return disc ? Extent::Point : Extent::Nothing;
    }
    if (gradient.isInUserSpace.value_or(false)) {
        draft.takeLengths(true);
    }
    if (disc->isEllipse) {
        draft.notes.emplace_back("ellipse taken as the box has it");
        draft.mayEndBefore = true;
    }
    if (disc->hasOtherSize) {
        draft.takeSize();
    }
    if (disc->hasOtherCenter) {
        draft.takePlace();
    }
    if (disc->hasFocus) {
        draft.notes.emplace_back("focus moved to the center");
    }
    return Extent::Whole;
}

} // namespace

std::optional<FoundGradient> takeSvgGradient(const SvgGradient& gradient, std::span<const SvgStop> stops) {
    if (stops.empty()) {
        return std::nullopt;
    }
    GradientDraft draft;
    draft.mixing = StopMixing::Plain;
    draft.repeating = gradient.isRepeated.value_or(false);
    const auto take = gradient.isRadial ? takeDisc : takeLine;
    const Extent extent = take(gradient, draft);
    if (extent == Extent::Nothing) {
        return std::nullopt;
    }
    std::vector<SvgStop> seen(stops.begin(), stops.end());
    if (extent == Extent::Point && seen.size() > 1) {
        seen.erase(seen.begin(), seen.end() - 1);
        draft.notes.emplace_back("no length, its last color taken");
    }
    if (gradient.isMixedLinearly) {
        draft.takeMixing("linear light");
    }
    if (isMixingSeen(inOrder(seen), draft.track)) {
        draft.notes.emplace_back("opacity mixed as in CSS");
    }
    const auto unread = std::ranges::find_if(seen, [](const SvgStop& stop) { return !stop.unread.empty(); });
    if (unread != seen.end()) {
        draft.notes.push_back("style of a stop left out: it " + std::string{unread->unread});
    }
    draft.stops.reserve(seen.size());
    std::ranges::transform(seen, std::back_inserter(draft.stops), [](const SvgStop& stop) {
        return WrittenStop{stop.color, stop.position};
    });
    FoundGradient found = draft.finished();
    found.name = gradient.id;
    return found;
}

} // namespace tessaly
