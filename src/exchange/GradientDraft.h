#pragma once

#include "exchange/GradientLine.h"
#include "exchange/Reading.h"
#include "exchange/StopPlacement.h"
#include "model/Orientation.h"

#include <string_view>

namespace tessaly {

/// A gradient while it is read, of CSS or SVG, and what is told of it. What is changed in one of the same way
/// is told in the same words.
struct GradientDraft {
    std::vector<WrittenStop> stops; ///< as StopPlacement wants them
    std::int64_t orientation = orientation::leftToRight;
    StopTrack track;
    StopMixing mixing = StopMixing::Premultiplied;
    bool turned = false;
    bool repeating = false;
    bool mayEndBefore = false; ///< the box may be larger than what the stops cover
    std::vector<std::string> notes;

    /// How angles are counted where they are written.
    enum class Angles {
        Clockwise, ///< from upwards
        Legacy     ///< against the clock, from the right
    };

    /// The nearest of the eight directions, with a note in the angles of the text where it is not exact;
    /// degrees, 0 is upwards, clockwise.
    void takeDirection(double degrees, Angles written = Angles::Clockwise);

    /// The direction of a line, and where its stops come to lie.
    void takeLine(const GradientLine& line);

    void takeCircle();

    /// What is not as it is here. `written` is how it was said, and may be left out.
    void takeSize(std::string_view written = {});
    void takePlace(std::string_view written = {});

    void takeMixing(std::string_view space);

    /// Lengths in a box of unknown size: kept in proportion, or left out.
    void takeLengths(bool inProportion);

    /// The gradient that this comes to.
    FoundGradient finished() const;
};

} // namespace tessaly
