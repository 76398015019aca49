#include "exchange/GradientDraft.h"

#include "exchange/LinearDirection.h"
#include "foundation/NumberText.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

std::string taken(std::string_view what, std::string_view written, std::string_view as) {
    std::string note{what};
    return note.append(what.empty() || written.empty() ? "" : " ")
        .append(written)
        .append(" taken as ")
        .append(as);
}

std::string degreesText(double degrees) {
    const double tenths = std::round(degrees * 10) / 10;
    return fixedText(tenths, tenths == std::round(tenths) ? 0 : 1) + "°";
}

} // namespace

void GradientDraft::takeDirection(double degrees, Angles written) {
    const LinearDirection direction = nearestDirection(degrees);
    orientation = direction.orientation;
    turned = direction.turned;
    if (!direction.isExact()) {
        const bool isLegacy = written == Angles::Legacy;
        const double said = isLegacy ? 90 - degrees : degrees;
        const int way = isLegacy ? (450 - direction.degrees) % 360 : direction.degrees;
        notes.push_back(taken({}, degreesText(said), degreesText(said < 0 && way > 0 ? way - 360 : way)));
    }
}

void GradientDraft::takeLine(const GradientLine& line) {
    takeDirection(line.angle);
    track = {line.start, line.end};
}

void GradientDraft::takeCircle() {
    notes.push_back(taken("circle", {}, "ellipse"));
}

void GradientDraft::takeSize(std::string_view written) {
    notes.push_back(taken("size", written, "farthest-corner"));
    mayEndBefore = true;
}

void GradientDraft::takePlace(std::string_view written) {
    notes.push_back(taken("place", written, "center"));
    mayEndBefore = true;
}

void GradientDraft::takeMixing(std::string_view space) {
    notes.push_back(taken("mixing in", space, "in sRGB"));
}

void GradientDraft::takeLengths(bool inProportion) {
    notes.emplace_back(inProportion ? "lengths taken in proportion" : "lengths left out");
    mayEndBefore = true;
}

FoundGradient GradientDraft::finished() const {
    const StopPlacement placement{stops, track, mixing};
    FoundGradient found{Gradient{placement.stops(turned), orientation}, {}, notes};
    std::ranges::copy(placement.notes(), std::back_inserter(found.notes));
    if (std::ranges::any_of(stops, [](const WrittenStop& s) { return s.color && s.color->clipped; })) {
        found.notes.emplace_back("colors clipped to sRGB");
    }
    if (repeating && (mayEndBefore || !placement.coversAll())) {
        found.notes.emplace_back("repeating taken once");
    }
    return found;
}

} // namespace tessaly
