#pragma once

#include "exchange/SvgGradient.h"
#include "exchange/SvgStyleSheet.h"
#include "exchange/XmlHandler.h"
#include "foundation/Geometry.h"

#include <span>
#include <string_view>
#include <vector>

namespace tessaly {

/// The gradients of a document, or of several pieces of a text, in its order, and what they need of it.
class SvgDocument : public XmlHandler {
  public:
    /// More is left out.
    static constexpr std::size_t mostGradients = 10'000;
    static constexpr std::size_t mostStops = 10'000;       ///< of a gradient
    static constexpr std::size_t mostStopsInAll = 250'000; ///< bounds the memory that a text can ask for

    /// The rules are those of the same text; they must outlive this.
    explicit SvgDocument(SvgStyleSheet& styles) : styles_{styles} {}

    void startElement(std::string_view name, const XmlAttributes& attributes) override;
    void endElement() override;

    /// Hands down what a gradient lacks from the one that it refers to, along chains of any length. What
    /// refers to itself in the end, or to another document, lacks it for good.
    void resolveReferences();

    const std::vector<SvgGradient>& gradients() const { return gradients_; }
    std::span<const SvgStop> stopsOf(const SvgGradient& gradient) const {
        return std::span{stops_}.subspan(gradient.firstStop, gradient.stopCount);
    }

    /// Nothing was left out.
    bool isComplete() const { return isComplete_ && styles_.isComplete(); }

  private:
    void readViewport(const XmlAttributes& attributes);
    void addGradient(bool isRadial, const XmlAttributes& attributes);
    void addStop(const XmlAttributes& attributes);
    void readStyle(SvgStop& stop);

    SvgStyleSheet& styles_;
    std::vector<SvgElement> path_; ///< the open elements, of those very deep only a stop
    std::vector<SvgGradient> gradients_;
    std::vector<SvgStop> stops_;
    Size viewport_;
    std::size_t depth_ = 0;         ///< of elements that are open
    std::size_t gradientDepth_ = 0; ///< that of the gradient being read; 0: there is none
    bool isComplete_ = true;
};

} // namespace tessaly
