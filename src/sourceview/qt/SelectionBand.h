#pragma once

#include "foundation/RGBAComponents.h"

class QColor;
class QPainter;
class QRect;

/// The band behind the selected lines, on the background of a view.
namespace tessaly::selectionBand {

/// What the text on the band stands on. It is harder to read there than beside the band.
RGBAComponents colorOn(const QColor& background);

void draw(QPainter& painter, const QRect& band, const QColor& background);

} // namespace tessaly::selectionBand
