#include "document/Document.h"

#include "model/EditStep.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace tessaly {

Document::Document(const Views& views, const std::filesystem::path& applicationSupport,
                   std::function<void()> actionEnded, History::Clock clock)
    : history_{{[this] { return state(); },
                [this](const DocumentState& shown, const DocumentState& wanted) { restore(shown, wanted); },
                std::move(actionEnded)},
               std::move(clock)},
      editor_{record_, history_, views.geometry, views.surface, views.controls},
      gallery_{record_.gradient,
               history_,
               views.gallery,
               {[this] { editor_.gradientReplaced(); }, [this] { store_.insertData(); }}},
      store_{gallery_, applicationSupport} {}

void Document::open() {
    store_.openDB();
    editor_.awakeFromNib();
}

void Document::newGradient() {
    history_.act(editStep::newGradient, [this] {
        replaceGradient(Gradient{{{0.0, Color::black()}, {1.0, Color::white()}}});
    });
}

void Document::takeGradient(const Gradient& gradient, std::string_view step) {
    history_.act(step, [&] {
        const auto isOpaque = [](const ColorStop& stop) { return stop.opacity >= 1.0; };
        if (!std::ranges::all_of(gradient.stops(), isOpaque)) {
            record_.colorFormatType = colorFormat::carryingOpacity(record_.colorFormatType);
        }
        replaceGradient(gradient);
    });
}

// The selection stays where it is, if there is such a stop.
void Document::replaceGradient(const Gradient& gradient) {
    record_.gradient = gradient;
    const std::int64_t last = std::ssize(gradient.stops()) - 1;
    editor_.gradientReplaced(std::clamp<std::int64_t>(editor_.markers().selectedColorMarkerIndex(), 0,
                                                      std::max<std::int64_t>(last, 0)));
}

std::optional<StopSelection> Document::madeBy(StopTool tool) const {
    return appliedTo(record_, editor_.markers().selectedColorMarkerIndex(), tool);
}

bool Document::canUse(StopTool tool) const {
    return madeBy(tool).has_value();
}

void Document::use(StopTool tool) {
    if (const auto made = madeBy(tool)) {
        history_.act(nameOf(tool), [&] {
            record_.gradient = made->gradient;
            editor_.gradientReplaced(made->selected);
        });
    }
}

bool Document::takeColor(const ReadColor& color) {
    const bool isSelected = editor_.markers().selectedStop().has_value();
    if (isSelected) {
        editor_.controls().takeColor(color.color, color.alpha);
    }
    return isSelected;
}

DocumentState Document::state() const {
    return {std::make_shared<const Gradient>(record_.gradient), record_.colorFormatType,
            editor_.markers().selectedColorMarkerIndex(), editor_.interaction().lowerBound(),
            gallery_.snapshot()};
}

void Document::restore(const DocumentState& shown, const DocumentState& wanted) {
    record_ = {*wanted.gradient, wanted.notation};
    editor_.interaction().setLowerBound(wanted.lowerBound);
    editor_.gradientReplaced(wanted.selectedStop);
    if (wanted.presets != shown.presets) {
        gallery_.restore(wanted.presets);
    }
}

} // namespace tessaly
