#include "canvas/StopTools.h"

#include "model/EditStep.h"
#include "raster/GradientRamp.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>
#include <vector>

namespace tessaly {
namespace {

/// The stops that a tool works on. It leaves them as they are where it has nothing to do.
struct Stops {
    std::vector<ColorStop> list;
    std::int64_t selected;
    bool carriesOpacity; ///< in the notation

    bool hasSelection() const { return selected >= 0 && selected < std::ssize(list); }
};

// As it is drawn; a colour that cannot be seen, since it is transparent, is that of `near`.
ColorStop drawnAt(double position, const Stops& stops, const ColorStop& near) {
    const RGBAComponents drawn = GradientRamp{stops.list, GradientRamp::Opacity::Drawn}.colorAt(position);
    const RGBAComponents opaque =
        stops.carriesOpacity ? drawn
                             : GradientRamp{stops.list, GradientRamp::Opacity::Ignored}.colorAt(position);
    return {position,
            opaque.alpha > 0.0 ? Color::calibratedRGB(opaque.red, opaque.green, opaque.blue) : near.color,
            drawn.alpha};
}

void addInBetween(Stops& stops) {
    if (!stops.hasSelection() || stops.list.size() < 2) {
        return;
    }
    const bool isLast = stops.selected + 1 == std::ssize(stops.list);
    const auto behind = stops.list.begin() + stops.selected + (isLast ? 0 : 1);
    const double position = std::midpoint((behind - 1)->position, behind->position);
    stops.list.insert(behind, drawnAt(position, stops, stops.list[static_cast<std::size_t>(stops.selected)]));
    stops.selected += isLast ? 1 : 0;
}

void duplicate(Stops& stops) {
    if (stops.hasSelection()) {
        const auto original = stops.list.begin() + stops.selected;
        stops.list.insert(original + 1, ColorStop{*original});
        ++stops.selected;
    }
}

void reverse(Stops& stops) {
    std::ranges::reverse(stops.list);
    for (ColorStop& stop : stops.list) {
        stop.position = 1.0 - stop.position;
    }
    if (stops.hasSelection()) {
        stops.selected = std::ssize(stops.list) - 1 - stops.selected;
    }
}

void distribute(Stops& stops) {
    if (stops.list.size() < 2) {
        return;
    }
    const auto [lowest, highest] = std::ranges::minmax(stops.list, {}, &ColorStop::position);
    const auto steps = static_cast<double>(stops.list.size() - 1);
    for (std::size_t i = 0; i < stops.list.size(); ++i) {
        stops.list[i].position = std::lerp(lowest.position, highest.position, static_cast<double>(i) / steps);
    }
}

void sort(Stops& stops) {
    std::vector<std::int64_t> order(stops.list.size());
    std::iota(order.begin(), order.end(), 0);
    const auto stopAt = [&stops](std::int64_t place) { return stops.list[static_cast<std::size_t>(place)]; };
    std::ranges::stable_sort(order, {}, [&](std::int64_t place) { return stopAt(place).position; });
    std::vector<ColorStop> sorted(order.size());
    std::ranges::transform(order, sorted.begin(), stopAt);
    if (stops.hasSelection()) {
        stops.selected = std::ranges::find(order, stops.selected) - order.begin();
    }
    stops.list = std::move(sorted);
}

struct Tool {
    StopTool tool;
    std::string_view name;
    void (*apply)(Stops&);
};

constexpr std::array<Tool, allStopTools.size()> tools{
    {{StopTool::AddInBetween, editStep::addStopInBetween, addInBetween},
     {StopTool::Duplicate, editStep::duplicateStop, duplicate},
     {StopTool::Reverse, editStep::reverse, reverse},
     {StopTool::Distribute, editStep::distributeEvenly, distribute},
     {StopTool::Sort, editStep::sortStops, sort}}};
static_assert(std::ranges::equal(tools, allStopTools, {}, &Tool::tool), "each at its place");

const Tool& toolOf(StopTool tool) {
    return tools[static_cast<std::size_t>(tool)];
}

} // namespace

std::string_view nameOf(StopTool tool) {
    return toolOf(tool).name;
}

std::optional<StopSelection> appliedTo(const GlobalData& record, std::int64_t selected, StopTool tool) {
    const std::vector<ColorStop>& before = record.gradient.stops();
    Stops stops{before, selected, colorFormat::carriesOpacity(record.colorFormatType)};
    const auto apply = toolOf(tool).apply;
    apply(stops);
    if (stops.list == before) {
        return std::nullopt;
    }
    return StopSelection{Gradient{std::move(stops.list), record.gradient.orientation()}, stops.selected};
}

} // namespace tessaly
