#pragma once

class QPainter;
class QPointF;

namespace tessaly {

class Gradient;

/// Draws the thumbnail of a preset with its top left corner at `origin`; crisp at the painter's device pixel
/// ratio.
void drawPresetThumbnail(QPainter& painter, const Gradient& gradient, QPointF origin);

} // namespace tessaly
