#include "document/Document.h"

#include "model/EditStep.h"

#include <iterator>
#include <memory>
#include <utility>

namespace tessaly {

Document::Document(const Views& views, const std::filesystem::path& applicationSupport,
                   std::function<void()> historyChanged, History::Clock clock)
    : history_{{[this] { return state(); },
                [this](const DocumentState& shown, const DocumentState& wanted) { restore(shown, wanted); },
                std::move(historyChanged)},
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
        record_.gradient = Gradient{{{0.0, Color::black()}, {1.0, Color::white()}}};
        editor_.gradientReplaced(std::ssize(record_.gradient.stops()) - 1);
    });
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
