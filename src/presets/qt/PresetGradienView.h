#pragma once

#include "presets/Preset.h"

#include <QImage>

class QPainter;
class QPointF;

namespace tessaly {

/// One thumbnail in the gallery: shows a preset and announces what is done to it. It lives as long as one
/// event, since a gallery may hold thousands.
class PresetGradienView {
  public:
    /// The preset, which is the thumbnail's identity too, must outlive it.
    explicit PresetGradienView(const Preset& preset) : preset_{preset} {}

    /// Draws the thumbnail with its top left corner at `origin`; crisp at the painter's device pixel ratio.
    void drawRect(QPainter& painter, QPointF origin) const;

    /// A click: announces the preset, to be applied.
    void mouseDown() const;
    void sendUpdateDataNotification() const;

    /// "Delete" was chosen in its menu.
    void deletePresetGradientItem() const;

  private:
    /// In device pixels.
    QImage gradientPicture(double devicePixelRatio) const;

    const Preset& preset_;
};

} // namespace tessaly
