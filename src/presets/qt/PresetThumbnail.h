#pragma once

class QImage;
class QPainter;
class QPointF;

namespace tessaly {

class Gradient;

/// What the thumbnail of a preset shows within its lines, for that device pixel ratio.
QImage presetPicture(const Gradient& gradient, double devicePixelRatio);

/// Draws a thumbnail with its top left corner at `origin`; crisp at the painter's device pixel ratio, for
/// which the picture must have been made.
void drawPresetThumbnail(QPainter& painter, const QImage& picture, QPointF origin);
void drawPresetThumbnail(QPainter& painter, const Gradient& gradient, QPointF origin);

} // namespace tessaly
