#include "model/History.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace tessaly {
namespace {

std::size_t bytesOf(const Gradient& gradient) {
    return sizeof(Gradient) + gradient.stops().size() * sizeof(ColorStop) +
           gradient.leftOpacities().size() * sizeof(double);
}

// What did not change is held once.
void share(DocumentState& state, const DocumentState& other) {
    if (*state.gradient == *other.gradient) {
        state.gradient = other.gradient;
    }
    if (*state.presets == *other.presets) {
        state.presets = other.presets;
    }
}

// The gradients of the one list that the other has not; lists of one length have the same ones.
std::size_t bytesOfOthers(const GradientList& some, const GradientList& others) {
    if (some.size() <= others.size()) {
        return 0;
    }
    const auto [from, _] = std::mismatch(some.begin(), some.end(), others.begin(), others.end());
    std::size_t bytes = 0;
    std::for_each_n(from, some.size() - others.size(),
                    [&](const auto& gradient) { bytes += bytesOf(*gradient); });
    return bytes;
}

} // namespace

History::History(Document document, Clock clock) : History{std::move(document), std::move(clock), Limits{}} {}

History::History(Document document, Clock clock, Limits limits)
    : document_{std::move(document)}, clock_{std::move(clock)}, limits_{limits} {}

void History::begin(std::string_view name, const Run& run) {
    if (depth_++ > 0) {
        return;
    }
    open_ = {name, run, document_.state()};
    if (done_ > 0) {
        share(open_.before, steps_[done_ - 1].after);
    }
    if (!continuesRun()) {
        run_.reset();
    }
}

void History::end() {
    if (--depth_ > 0) {
        return;
    }
    DocumentState after = document_.state();
    share(after, open_.before);
    if (!sameContent(open_.before, after)) {
        record(std::move(after));
    }
    if (run_) {
        run_->last = clock_();
    }
    open_ = {};
    document_.actionEnded();
}

void History::act(std::string_view name, const Run& run, const std::function<void()>& change) {
    begin(name, run);
    change();
    end();
}

bool History::continuesRun() const {
    return run_ && run_->run.control == open_.run.control && clock_() - run_->last < run_->run.pause &&
           (!run_->madeStep || steps_[done_ - 1].after.selectedStop == open_.before.selectedStop);
}

void History::record(DocumentState after) {
    while (steps_.size() > done_) {
        dropLast();
    }
    Step step{open_.name, open_.before, std::move(after)};
    if (run_ && run_->madeStep) {
        step.before = steps_.back().before;
        dropLast();
    }
    const bool isStep = !sameContent(step.before, step.after); // a run may come back to where it began
    if (isStep) {
        push(std::move(step));
    }
    run_.reset();
    if (!open_.run.control.empty()) {
        run_ = RunUnderWay{open_.run, {}, isStep};
    }
}

void History::push(Step step) {
    step.bytes = bytesOf(step);
    bytes_ += step.bytes;
    steps_.push_back(std::move(step));
    done_ = steps_.size();
    while (bytes_ > limits_.bytes && steps_.size() > limits_.leastSteps) {
        dropOldest();
    }
}

void History::dropLast() {
    bytes_ -= steps_.back().bytes;
    steps_.pop_back();
    done_ = std::min(done_, steps_.size());
}

void History::dropOldest() {
    bytes_ -= steps_.front().bytes;
    steps_.pop_front();
    --done_;
}

// What the step holds that the one before it does not.
std::size_t History::bytesOf(const Step& step) const {
    const DocumentState* held = steps_.empty() ? nullptr : &steps_.back().after;
    std::size_t taken = sizeof(Step);
    for (const DocumentState* state : {&step.before, &step.after}) {
        if (held == nullptr || held->gradient != state->gradient) {
            taken += tessaly::bytesOf(*state->gradient);
        }
        if (held == nullptr || held->presets != state->presets) {
            taken += sizeof(GradientList) + state->presets->size() * sizeof(GradientList::value_type);
        }
        held = state;
    }
    return taken + bytesOfOthers(*step.after.presets, *step.before.presets) +
           bytesOfOthers(*step.before.presets, *step.after.presets);
}

bool History::undo() {
    if (depth_ > 0 || done_ == 0) {
        return false;
    }
    const Step step = steps_[--done_];
    restore(step.after, step.before);
    return true;
}

bool History::redo() {
    if (depth_ > 0 || done_ == steps_.size()) {
        return false;
    }
    const Step step = steps_[done_++];
    restore(step.before, step.after);
    return true;
}

void History::undoRun(std::string_view control) {
    if (run_ && run_->run.control == control && run_->madeStep) {
        undo();
    }
}

void History::restore(const DocumentState& shown, const DocumentState& wanted) {
    run_.reset();
    ++depth_; // what the controls report while they are written to is no action
    document_.restore(shown, wanted);
    --depth_;
    document_.actionEnded();
}

void History::prependPresets(const GradientList& presets) {
    std::map<std::shared_ptr<const GradientList>, std::shared_ptr<const GradientList>> longer;
    const auto prepend = [&](DocumentState& state) {
        std::shared_ptr<const GradientList>& known = longer[state.presets];
        if (known == nullptr) {
            GradientList list = presets;
            list.insert(list.end(), state.presets->begin(), state.presets->end());
            known = std::make_shared<const GradientList>(std::move(list));
        }
        state.presets = known;
    };
    for (Step& step : steps_) {
        prepend(step.before);
        prepend(step.after);
    }
    if (depth_ > 0) {
        prepend(open_.before);
    }
}

} // namespace tessaly
