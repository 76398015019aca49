#include "exchange/StopPlacement.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

// What was computed, without the last digits that only computing brought in, and on an end that it is near.
double tidied(double position) {
    constexpr double nearEnd = 1e-4; // by far less than can be seen
    constexpr double digits = 1e12;
    const double end = std::round(position);
    return (end == 0.0 || end == 1.0) && std::abs(position - end) < nearEnd
               ? std::abs(end)
               : std::round(position * digits) / digits;
}

double moved(double position, StopTrack track) {
    return track == StopTrack{} ? position : tidied(track.start + position * (track.end - track.start));
}

bool isInside(double position) {
    return position >= 0.0 && position <= 1.0;
}

} // namespace

StopPlacement::StopPlacement(std::span<const WrittenStop> written, StopTrack track, StopMixing mixing) {
    place(written, track);
    replaceHints();
    isCut_ = std::ranges::any_of(stops_, [](const Stop& stop) { return !isInside(stop.drawn); });
    if (isCut_) {
        cut(mixing);
    }
}

void StopPlacement::place(std::span<const WrittenStop> written, StopTrack track) {
    stops_.reserve(written.size());
    std::size_t behindPlaced = 0;
    for (std::size_t i = 0; i < written.size(); ++i) {
        const bool isFirst = i == 0;
        const bool isLast = i + 1 == written.size();
        const bool isSpread = !written[i].position && !isFirst && !isLast;
        const double position = moved(written[i].position.value_or(isFirst ? 0.0 : 1.0), track);
        stops_.push_back({position, position, written[i].color});
        if (isSpread) {
            continue;
        }
        if (!isFirst) {
            stops_[i].drawn = std::max(stops_[i].drawn, stops_[behindPlaced - 1].drawn);
            spread(behindPlaced, i);
        }
        behindPlaced = i + 1;
    }
}

// The stops from `begin` to `end`, whose positions were left out, evenly between their neighbours.
void StopPlacement::spread(std::size_t begin, std::size_t end) {
    const double from = stops_[begin - 1].drawn;
    const double way = stops_[end].drawn - from;
    const auto steps = static_cast<double>(end - begin + 1);
    for (std::size_t i = begin; i < end; ++i) {
        const double position = from + way * static_cast<double>(i - begin + 1) / steps;
        stops_[i].written = position;
        stops_[i].drawn = position;
    }
}

void StopPlacement::replaceHints() {
    constexpr double hair = 1e-9;
    for (std::size_t i = 1; i + 1 < stops_.size(); ++i) {
        Stop& hint = stops_[i];
        if (hint.color) {
            continue;
        }
        const Stop& before = stops_[i - 1];
        const Stop& after = stops_[i + 1];
        const double way = after.drawn - before.drawn;
        const double share = way > 0 ? (hint.drawn - before.drawn) / way : 0.5;
        hint.written = hint.drawn;
        if (share < hair || share > 1 - hair) { // a hard edge, exactly
            hint.color = share < 0.5 ? after.color : before.color;
        } else if (std::abs(share - 0.5) > hair) {
            hint.color = mixed(*before.color, *after.color, 0.5, StopMixing::Premultiplied);
            standsForHints_ = true;
        }
    }
    std::erase_if(stops_, [](const Stop& stop) { return !stop.color; }); // half way: nothing changes
}

// To 0 ... 1, with the colours that the gradient has at both ends.
void StopPlacement::cut(StopMixing mixing) {
    const auto isInsideStop = [](const Stop& stop) { return isInside(stop.drawn); };
    const auto begin = std::ranges::find_if(stops_, [](const Stop& stop) { return stop.drawn >= 0.0; });
    const auto end = std::find_if(begin, stops_.end(), [](const Stop& stop) { return stop.drawn > 1.0; });
    const auto stopAt = [mixing](const Stop& before, const Stop& after, double position) {
        const double way = (position - before.drawn) / (after.drawn - before.drawn);
        return Stop{position, position, mixed(*before.color, *after.color, way, mixing)};
    };
    std::vector<Stop> inside;
    if (begin == stops_.end()) {
        inside.push_back({0.0, 0.0, stops_.back().color});
    } else if (begin != stops_.begin() && begin->drawn > 0.0) {
        inside.push_back(stopAt(*(begin - 1), *begin, 0.0));
    }
    std::copy_if(begin, end, std::back_inserter(inside), isInsideStop);
    if (end == stops_.begin()) {
        inside.push_back({1.0, 1.0, stops_.front().color});
    } else if (end != stops_.end() && (end - 1)->drawn < 1.0) {
        inside.push_back(stopAt(*(end - 1), *end, 1.0));
    }
    stops_ = std::move(inside);
}

bool StopPlacement::coversAll() const {
    return stops_.front().drawn <= 0.0 && stops_.back().drawn >= 1.0;
}

std::vector<ColorStop> StopPlacement::stops(bool turned) const {
    std::vector<ColorStop> stops;
    stops.reserve(stops_.size());
    for (const Stop& stop : stops_) {
        const bool asWritten = !isCut_ && isInside(stop.written);
        const double position = turned ? tidied(1 - stop.drawn) : asWritten ? stop.written : stop.drawn;
        stops.push_back({position, stop.color->color, stop.color->alpha});
    }
    if (turned) {
        std::ranges::reverse(stops);
    }
    return stops;
}

std::vector<std::string> StopPlacement::notes() const {
    std::vector<std::string> notes;
    if (standsForHints_) {
        notes.emplace_back("color hint taken as a stop");
    }
    if (isCut_) {
        notes.emplace_back("cut at the edges");
    }
    return notes;
}

} // namespace tessaly
