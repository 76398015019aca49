#pragma once

#include "foundation/Geometry.h"
#include "foundation/Truncation.h"

#include <array>
#include <cstdint>
#include <optional>

namespace tessaly {

/// The two lines of a guide: the white one runs beside the black, so that the guide shows on any gradient.
struct GuideLine {
    Line black;
    Line white;

    bool operator==(const GuideLine&) const = default;
};

/// Where everything on the canvas lies, and the way back from a point to a place on the track of the markers.
/// Points, origin at the bottom left, y upwards. `orientation` is an orientation code; an unknown one counts
/// as the diagonal to the top left, except where said otherwise.
class CanvasGeometry {
  public:
    static constexpr double frameWidth = 20;               ///< around the strip, on every side
    static constexpr Size colorMarkerSize{20, 20};         ///< of the whole marker
    static constexpr Rect markerRing{1, 1, 18, 18};        ///< white, within its marker
    static constexpr Rect markerInnerRing{6, 6, 8, 8};     ///< grey, within its marker
    static constexpr Rect markerDot{7, 7, 6, 6};           ///< colour of a stop, within its marker
    static constexpr Rect selectedMarkerDot{3, 3, 14, 14}; ///< the same for the selected stop
    static constexpr std::array guideDash{10.0, 15.0};     ///< points on, points off

    /// The way along a track, in points from where position 0 is, and where it ends.
    struct TrackOffset {
        double offset;
        std::int64_t limit;
        std::optional<Point> onDescent; ///< the place itself, on the diagonal to the top left alone
    };

    explicit CanvasGeometry(Size viewSize) : viewSize_{viewSize} {}

    Size viewSize() const { return viewSize_; }
    Size backgroundSize() const { return {strip().width, strip().height}; }

    /// Extents of the strip, cut to whole points.
    std::int64_t extentX() const { return truncated(backgroundSize().width); }
    std::int64_t extentY() const { return truncated(backgroundSize().height); }

    Rect strip() const;
    Rect markerRect(std::int64_t orientation, double position) const;
    /// None for the straight orientations and for an unknown one.
    std::optional<GuideLine> guideLine(std::int64_t orientation) const;

    /// Middle of the radial gradient and the radius of position 1. Deliberately 10 points left of the track
    /// of the radial markers.
    Point radialCenter() const;
    double radialRadius() const { return backgroundSize().width * 0.5; }

    /// Where a double click falls on the track. On a diagonal the point is moved along the other diagonal,
    /// not square to the track.
    TrackOffset offsetOnTrack(std::int64_t orientation, Point point) const;

    /// 1 or -1 when the way {right, up} leads to greater or to smaller positions; 0 when the track does not
    /// run so.
    static int alongTrack(std::int64_t orientation, int right, int up);

    /// Whether a marker is dragged by the mouse's way across (or else up), and how far that way goes.
    static bool dragsHorizontally(std::int64_t orientation);
    std::int64_t dragLimit(std::int64_t orientation) const;

    /// How far along its way a marker is, in points, and the position that a place on the way stands for.
    double dragOffset(std::int64_t orientation, double position) const;
    double positionAtDragOffset(std::int64_t orientation, std::int64_t offset) const;

  private:
    TrackOffset offsetOnDiagonal(double startX, double slope, double startHeight, Point point) const;

    Size viewSize_;
};

} // namespace tessaly
