#pragma once

namespace tessaly {

struct CanvasScene;

/// What the canvas asks of the view it is shown in.
class CanvasSurface {
  public:
    virtual ~CanvasSurface() = default;

    /// Paints the whole offscreen picture.
    virtual void paint(const CanvasScene& scene) = 0;

    /// Asks that the picture be shown.
    virtual void setNeedsDisplay() = 0;
};

} // namespace tessaly
