#pragma once

namespace tessaly {

struct CanvasScene;

/// What the canvas asks of the view it is shown in.
class CanvasSurface {
  public:
    virtual ~CanvasSurface() = default;

    /// Paints the whole offscreen picture, and shows it as soon as it can.
    virtual void paint(const CanvasScene& scene) = 0;
};

} // namespace tessaly
