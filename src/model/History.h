#pragma once

#include "model/DocumentState.h"

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string_view>

namespace tessaly {

/// The steps in which a document was made, to be taken back and done again. One action of the user is one
/// step, however many changes it consists of; one that changed nothing, a mere selection too, is none. Where
/// the bytes run out, the oldest steps go.
class History {
  public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    struct Document {
        std::function<DocumentState()> state;
        /// Brings back `wanted` where `shown` is; the lists of presets only if the two differ in them.
        std::function<void(const DocumentState& shown, const DocumentState& wanted)> restore;
        std::function<void()> actionEnded; ///< or a step was taken back or done again
    };

    struct Limits {
        std::size_t bytes = std::size_t{64} << 20U;
        std::size_t leastSteps = 50; ///< are kept, however large
    };

    /// Actions on one control and one stop that follow each other within a pause are one step.
    struct Run {
        std::string_view control; ///< none: an action for itself
        std::chrono::milliseconds pause = std::chrono::seconds{1};
    };
    static constexpr std::chrono::milliseconds anyPause = std::chrono::years{10};

    explicit History(Document document, Clock clock = std::chrono::steady_clock::now);
    History(Document document, Clock clock, Limits limits);

    /// An action, named after EditStep.h, that takes its time. Actions within it are part of it.
    void begin(std::string_view name) { begin(name, {}); }
    void end();
    bool isActing() const { return depth_ > 0; }
    /// Gives the action under way another name.
    void rename(std::string_view name) { open_.name = name; }

    /// A whole action.
    void act(std::string_view name, const std::function<void()>& change) { act(name, {}, change); }
    void act(std::string_view name, const Run& run, const std::function<void()>& change);

    /// False: there is no such step, or an action is under way.
    bool undo();
    bool redo();
    /// What the user does next is no part of a run.
    void endRun() { run_.reset(); }
    /// Takes back the run on that control if it is not over.
    void undoRun(std::string_view control);

    /// What `undo` and `redo` would take; empty: nothing.
    std::string_view undoName() const { return done_ == 0 ? "" : steps_[done_ - 1].name; }
    std::string_view redoName() const { return done_ == steps_.size() ? "" : steps_[done_].name; }

    /// Puts presets in front of those of every state, as if they had always been there.
    void prependPresets(const GradientList& presets);

    /// How full it is: asked by nobody but who measures it.
    std::size_t stepCount() const { return steps_.size(); }
    std::size_t bytes() const { return bytes_; }

  private:
    struct Step {
        std::string_view name;
        DocumentState before;
        DocumentState after;
        std::size_t bytes = 0;
    };
    struct Action {
        std::string_view name;
        Run run;
        DocumentState before;
    };
    struct RunUnderWay {
        Run run;
        std::chrono::steady_clock::time_point last;
        bool madeStep = false; ///< the last one done
    };

    void begin(std::string_view name, const Run& run);
    bool continuesRun() const;
    void record(DocumentState after);
    void push(Step step);
    void dropLast();
    void dropOldest();
    std::size_t bytesOf(const Step& step) const;
    void restore(const DocumentState& shown, const DocumentState& wanted);

    Document document_;
    Clock clock_;
    Limits limits_;
    std::deque<Step> steps_;
    std::size_t done_ = 0; ///< of the steps; those behind can be done again
    std::size_t bytes_ = 0;
    int depth_ = 0; ///< of the actions under way
    Action open_;
    std::optional<RunUnderWay> run_;
};

} // namespace tessaly
