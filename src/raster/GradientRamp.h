#pragma once

#include "model/ColorFormat.h"
#include "model/ColorStop.h"

#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace tessaly {

/// The colours along a gradient, resolved as a browser resolves them: stops in the given order, one whose
/// position lies below an earlier one's drawn at that earlier one, equal positions a hard edge, extended at
/// both ends, interpolated premultiplied. A colour without RGB form is transparent.
class GradientRamp {
  public:
    /// Whether the stops are drawn with their opacity or as their colours are.
    enum class Opacity { Drawn, Ignored };
    static constexpr Opacity opacityIn(std::int64_t notation) {
        return colorFormat::carriesOpacity(notation) ? Opacity::Drawn : Opacity::Ignored;
    }

    /// The gradient lies over `backdrop`; a transparent one leaves it as it is. There must be at least one
    /// stop.
    GradientRamp(std::span<const ColorStop> stops, Opacity opacity,
                 const RGBAComponents& backdrop = {0.0, 0.0, 0.0, 0.0});

    /// The colour at `t` as 0xAARRGGBB, premultiplied, every channel rounded.
    std::uint32_t pixelAt(double t) const { return segmentAt(t).pixelAt(t); }

    /// The same as it is before it is rounded, not premultiplied; all zero where it is transparent.
    RGBAComponents colorAt(double t) const;

    /// A stretch of the ramp between two stops or beyond one.
    struct Segment {
        double start;
        double end;                   ///< the first place behind the segment
        std::array<double, 4> color;  ///< at the start, alpha first, 0.5 ... 255.5: rounded when cut
        std::array<double, 4> change; ///< per unit of position

        std::uint32_t pixelAt(double t) const {
            const double way = t - start;
            std::uint32_t pixel = 0;
            for (std::size_t channel = 0; channel < color.size(); ++channel) {
                pixel = pixel << 8U | static_cast<std::uint32_t>(color[channel] + way * change[channel]);
            }
            return pixel;
        }

        /// Not premultiplied, rounded: red, green, blue and alpha as they follow each other in memory. What
        /// nobody sees is black.
        std::uint32_t straightPixelAt(double t) const {
            constexpr double half = 0.5; // what rounds when cut
            const double way = t - start;
            const double alpha = color[0] + way * change[0] - half;
            const double share = alpha >= half ? 255.0 / alpha : 0.0;
            std::array<std::uint8_t, 4> pixel{};
            for (std::size_t channel = 1; channel < color.size(); ++channel) {
                const double straight = (color[channel] + way * change[channel] - half) * share + half;
                pixel[channel - 1] = static_cast<std::uint8_t>(straight);
            }
            pixel[3] = static_cast<std::uint8_t>(alpha + half);
            return std::bit_cast<std::uint32_t>(pixel);
        }
    };

    /// The segments in order, without a gap: the first reaches back, the last ahead without an end.
    std::span<const Segment> segments() const { return segments_; }

    /// The segment that `t` lies in.
    const Segment& segmentAt(double t) const;

  private:
    std::vector<Segment> segments_;
};

} // namespace tessaly
