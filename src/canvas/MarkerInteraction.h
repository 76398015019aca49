#pragma once

#include "canvas/CanvasGeometry.h"
#include "canvas/ColorMarkers.h"
#include "model/History.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tessaly {

/// What mouse and keyboard do to the markers. Points are those of the canvas, y upwards.
class MarkerInteraction {
  public:
    /// `repaint` repaints the canvas and announces the change. All must outlive the object.
    MarkerInteraction(const CanvasGeometry& geometry, ColorMarkers& markers, History& history,
                      std::function<void()> repaint);

    // From the first to the last it is one action of the user.
    void mouseDown(Point point, int clickCount);
    void mouseDragged(Point point);
    void mouseUp();

    /// Selects the marker at the point, without repainting. True when there is one and its menu is to be
    /// shown.
    bool rightMouseDown(Point point);

    /// The command of that menu.
    void deleteColorMarker();

    /// Adds a black stop, as a double click does, half-way from the selected one to the next, or to the one
    /// before where there is no next; a gradient without two such stops gets it in the middle.
    void addBesideSelected();

    /// Moves the selected marker by points along its track, in the direction of a key: {1, 0} is right, {0,
    /// 1} up. False when its track does not run that way.
    bool moveSelected(int right, int up, std::int64_t points);

    /// Selects a stop. False when there is none of that index.
    bool select(std::int64_t marker);

    /// Selects the stop so many places on; without a selected stop the first, or the last when going back.
    bool selectNeighbour(std::int64_t places);

    /// The least place on the track that a marker can be moved to, in points; a double click on a radial
    /// gradient sets it.
    std::int64_t lowerBound() const { return minColorMarkerPos_; }
    void setLowerBound(std::int64_t place) { minColorMarkerPos_ = place; }

    /// 1 when the last drag step went to a greater position, else 0. Nothing in the program asks; kept for a
    /// picture of the marker that leans into its way.
    std::int64_t markerDragOrientation() const { return markerDragOrientation_; }

  private:
    std::optional<std::int64_t> markerAt(Point point) const;
    bool addAt(Point point);
    void addBlackStop(double position);
    void grab(std::int64_t marker, Point point);
    void moveSelectedTo(double offset);
    std::int64_t orientation() const { return markers_.gradient().orientation(); }

    const CanvasGeometry& geometry_;
    ColorMarkers& markers_;
    History& history_;
    std::function<void()> repaint_;

    bool isDown_ = false; ///< the mouse button
    bool startDrag_ = false;
    Point startDragCursorPos_;
    std::int64_t startDragImagePosX_ = 0; ///< points along the track when the marker was grabbed
    std::int64_t startDragImagePosY_ = 0;
    std::int64_t minColorMarkerPos_ = 0; ///< deliberately not lowered by editing: see addAt
    std::int64_t markerDragOrientation_ = 0;
};

} // namespace tessaly
