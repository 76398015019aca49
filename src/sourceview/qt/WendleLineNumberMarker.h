#pragma once

#include "foundation/Truncation.h"
#include "sourceview/qt/RulerMarker.h"

#include <QVariantMap>
#include <cstdint>

namespace tessaly {

/// A marker that belongs to a line; the gutter knows its place. A copy keeps the line.
class WendleLineNumberMarker final : public RulerMarker {
  public:
    /// `lineNumber` is 1-based; its fraction is cut.
    WendleLineNumberMarker(VerticalRuler* ruler, float lineNumber, std::shared_ptr<RulerImage> image,
                           QPointF imageOrigin)
        : RulerMarker{ruler, 0.0, std::move(image), imageOrigin},
          lineNumber_{static_cast<std::uint32_t>(truncated(static_cast<double>(lineNumber)))} {}

    std::uint32_t lineNumber() const { return lineNumber_; }
    void setLineNumber(std::uint32_t lineNumber) { lineNumber_ = lineNumber; }

    /// Saves and restores the line.
    void encodeWithCoder(QVariantMap& archive) const {
        archive.insert(QStringLiteral("line"), QVariant::fromValue(lineNumber_));
    }
    void initWithCoder(const QVariantMap& archive) {
        lineNumber_ = archive.value(QStringLiteral("line")).value<std::uint32_t>();
    }

  private:
    std::uint32_t lineNumber_;
};

} // namespace tessaly
