#pragma once

#include "canvas/CanvasScene.h"
#include "raster/PixelBuffer.h"

#include <QColor>
#include <QImage>
#include <optional>

namespace tessaly {

/// The offscreen picture of the canvas, in device pixels. The scene is in points with y upwards.
class CanvasPicture {
  public:
    /// The geometry must outlive the picture.
    explicit CanvasPicture(const CanvasGeometry& geometry) : geometry_{geometry} {}

    /// What the picture is shown on. Paints the last scene anew when anything here differs from before.
    void setMedium(double devicePixelRatio, const QColor& controlColor);

    /// Paints the whole picture, unless it shows that very scene already.
    void paint(const CanvasScene& scene);

    const QImage& image() const { return backgroundOffscreenRep_; }

  private:
    PixelBuffer buffer();
    void paintScene();
    void paintGuideLine(const GuideLine& guide);

    const CanvasGeometry& geometry_;
    double devicePixelRatio_ = 0.0; ///< 0 before there is a medium
    QColor controlColor_;
    QImage backgroundOffscreenRep_;
    std::optional<CanvasScene> scene_;
};

} // namespace tessaly
