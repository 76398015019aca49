#include "document/Document.h"

#include "model/EditStep.h"
#include "presets/PresetReader.h"
#include "support/FakeControls.h"
#include "support/FileSizeLimit.h"
#include "support/LogCapture.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using namespace std::chrono_literals;

/// Everything that an undo has to give back.
struct Content {
    GlobalData record;
    std::int64_t lowerBound;
    std::vector<Gradient> presets;
    std::vector<Gradient> stored;

    bool operator==(const Content&) const = default;
};

class DocumentTest : public testing::Test {
  protected:
    DocumentTest() { document.open(); }

    Content content() {
        return {document.record(), document.editor().interaction().lowerBound(),
                gradientsIn(document.gallery()), stored()};
    }
    std::vector<Gradient> stored() const {
        return readPresetFile(temporary.path / "Tessaly" / "localDB.sqlite3").value();
    }
    std::int64_t selection() { return document.editor().markers().selectedColorMarkerIndex(); }
    History& history() { return document.history(); }
    MarkerInteraction& mouse() { return document.editor().interaction(); }

    Point markerAt(std::int64_t stop) {
        const Gradient& gradient = document.record().gradient;
        return geometry.markerRect(gradient.orientation(), gradient.stopAt(stop)->position).center();
    }
    void drag(Point from, int moves, int clickCount = 1) {
        mouse().mouseDown(from, clickCount);
        for (int i = 1; i <= moves; ++i) {
            mouse().mouseDragged({from.x - i, from.y - i});
        }
        mouse().mouseUp();
    }
    void step(StopValue value, double to) {
        controls.steppers[static_cast<std::size_t>(value)].setValue(to);
        document.editor().controls().updateStepperValue(value);
    }
    void type(StopValue value, const std::string& text) {
        controls.fields[static_cast<std::size_t>(value)].shown = text;
        document.editor().controls().updateTextFieldValue(value);
    }
    void choose(FakeComboBox& list, std::int64_t item) {
        list.selected = item;
        document.editor().controls().updateOrientationComboBoxValue();
        document.editor().controls().updateColorFormatComboBoxValue();
    }
    bool isSorted() {
        return std::ranges::is_sorted(document.record().gradient.stops(), {}, &ColorStop::position);
    }
    bool isPainted() { return surface.scene == CanvasScene{geometry, document.record(), selection()}; }
    bool actAtRandom();

    std::mt19937 random{12};
    int below(std::ptrdiff_t limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    const LogCapture log;
    const TemporaryFolder temporary;
    std::chrono::steady_clock::time_point now;
    FakeControls controls;
    FakeSurface surface;
    FakeGalleryView gallery;
    const CanvasGeometry geometry{Size{440, 140}};
    Document document{
        {geometry, surface, controls.set, gallery}, temporary.path, [] {}, [this] { return now; }};
};

/// False: it may have unsorted the stops.
bool DocumentTest::actAtRandom() {
    const auto stops = static_cast<int>(document.record().gradient.stops().size());
    const auto presets = static_cast<int>(document.gallery().presetGradient().size());
    const auto anyPreset = static_cast<std::size_t>(below(std::max(presets, 1)));
    const Point anywhere{below(500) - 30.0, below(200) - 30.0};
    const Point anyStop = stops > 0 ? markerAt(below(stops)) : anywhere;
    const auto anyValue = static_cast<StopValue>(below(8));
    constexpr std::array texts{"", "0", "0.5", "300", "-4", "1e99", "abc", "128"};
    const std::function<void()> actions[] = {
        [&] { type(anyValue, texts[random() % texts.size()]); },
        [&] { step(anyValue, below(300) / 100.0), step(anyValue, below(300) / 100.0); },
        [&] { presets > 0 ? document.gallery().applyPreset(anyPreset) : void(); },
        [&] { drag(anyStop, below(40)); },
        [&] { drag(anywhere, below(3) * 10, 2); },
        [&] { mouse().deleteColorMarker(); },
        [&] { mouse().addBesideSelected(); },
        [&] { mouse().moveSelected(below(3) - 1, below(3) - 1, below(10)); },
        [&] { mouse().selectNeighbour(1 - 2 * below(2)); },
        [&] { mouse().select(below(12) - 2); },
        [&] { controls.well.setBackgroundColor(Color::calibratedRGB(below(9) / 8.0, 0, 0)); },
        [&] { choose(controls.orientation, below(6) - 1); },
        [&] { choose(controls.colorFormat, below(6) - 1); },
        [&] { document.gallery().addGradientIntoPreset(); },
        [&] { presets > 0 ? document.gallery().deletePreset(anyPreset) : void(); },
        [&] { presets > 0 ? document.gallery().movePresetBeside(anyPreset, 1 - 2 * below(2)) : void(); },
        [&] { document.use(allStopTools[static_cast<std::size_t>(below(5))]); },
        [&] { below(4) == 0 ? document.newGradient() : void(); }};
    now += std::chrono::milliseconds{below(1500)};
    const int action = below(std::ssize(actions));
    actions[action]();
    return action > 2;
}

TEST_F(DocumentTest, anyActionsKeepTheInvariantsAndUndoGivesBackEveryStateThatTheyMade) {
    struct State {
        Content content;
        std::int64_t before; ///< the selection before the step that led here
        std::int64_t after;
    };
    std::vector<State> states{{content(), 0, selection()}}; // by the number of steps done
    for (int action = 0; action < 1500; ++action) {
        const std::int64_t selected = selection();
        const bool wasSorted = isSorted();
        ASSERT_TRUE(!actAtRandom() || !wasSorted || isSorted());
        ASSERT_TRUE(isPainted());
        ASSERT_TRUE(std::ranges::all_of(document.record().gradient.stops(), [](const ColorStop& stop) {
            return stop.opacity >= 0 && stop.opacity <= 1;
        }));
        ASSERT_EQ(history().redoName(), "");
        const Content made = content();
        const std::size_t steps = history().stepCount();
        if (steps == states.size()) {
            states.push_back({made, selected, selection()});
        } else if (steps + 2 == states.size()) {
            states.pop_back();
            ASSERT_EQ(made, states.back().content) << "a run back to its start";
        } else if (made != states.back().content) { // one run with the action before
            states.back().content = made;
            states.back().after = selection();
        }
        ASSERT_EQ(steps + 1, states.size());
        if (action % 50 == 49) {
            const std::size_t first =
                action == 1499 ? 0 : steps - std::min<std::size_t>(steps, random() % 30);
            for (std::size_t at = steps; at > first; --at) {
                ASSERT_TRUE(history().undo());
                ASSERT_EQ(content(), states[at - 1].content) << history().redoName();
                ASSERT_TRUE(isPainted() && selection() == states[at].before);
            }
            for (std::size_t at = first; at < steps; ++at) {
                ASSERT_TRUE(history().redo());
                ASSERT_EQ(content(), states[at + 1].content);
                ASSERT_TRUE(isPainted() && selection() == states[at + 1].after);
            }
            ASSERT_FALSE(history().redo());
            now += 2s;
        }
    }
    EXPECT_GT(states.size(), 800U);
}

TEST_F(DocumentTest, takesAGradientInANotationThatCanSayIt) {
    const Gradient opaque{{{0.0, Color::white()}, {0.5}, {1.0}}, orientation::radial};
    const Gradient translucent{{{0.5, Color::white(), 0.5}}};
    for (const auto& [notation, carrying] : {std::pair{0, 2}, {1, 2}, {2, 2}, {3, 4}, {4, 4}}) {
        choose(controls.colorFormat, notation);
        document.takeGradient(opaque, editStep::openGradient);
        EXPECT_EQ(document.record(), (GlobalData{opaque, notation}));
        document.takeGradient(translucent, editStep::pasteGradient);
        EXPECT_EQ(document.record(), (GlobalData{translucent, carrying}));
        EXPECT_EQ(controls.colorFormat.selected, carrying);
        EXPECT_EQ(selection(), 0);
    }
    history().undo();
    mouse().select(2);
    EXPECT_TRUE(document.takeColor({Color::black(), 0.25}));
    EXPECT_EQ(document.record().gradient.stopAt(2)->opacity, 0.25);
    EXPECT_EQ(controls.hexadecimal.shown, "#000000");
    document.addToPresets({opaque, translucent});
    EXPECT_EQ(gradientsIn(document.gallery()), (std::vector{opaque, translucent}));
    history().undo();
    EXPECT_EQ(gradientsIn(document.gallery()), std::vector<Gradient>{});
}

TEST_F(DocumentTest, oneActionIsOneStepAndNothingIsNone) {
    const struct {
        std::function<void(int)> act; ///< with a number that counts its calls
        int times;
        std::size_t steps;
        std::string_view name; ///< of what undo would take back then
    } rows[] = {
        {[&](int) { drag(markerAt(0), 0); }, 1, 0, ""},
        {[&](int) { drag(markerAt(1), 500); }, 1, 1, "Move Stop"},
        {[&](int) {
             drag({220, 70}, 50, 2);
         },
         1, 1, "Add Stop"},
        {[&](int) { drag(markerAt(1), 5); }, 2, 2, "Move Stop"},
        {[&](int i) { step(StopValue::Red, i), now += 50ms; }, 30, 1, "Change Color"},
        {[&](int i) { controls.well.setBackgroundColor(Color::calibratedRGB(0, i / 30.0, 0)), now += 5s; },
         30, 1, "Change Color"},
        {[&](int) { document.editor().controls().pickingGivenUp(); }, 1, 0, "Change Color"},
        // The first takes the place of the one that was taken back.
        {[&](int i) { type(StopValue::Green, std::to_string(120 + i)); }, 2, 1, "Change Color"},
        {[&](int) { type(StopValue::Green, "121"); }, 1, 0, "Change Color"},
        {[&](int) { mouse().mouseDown(markerAt(0), 1), history().undo(), mouse().mouseUp(); }, 1, 0,
         "Change Color"},
        {[&](int) { choose(controls.orientation, 4); }, 1, 1, "Change Orientation"},
        {[&](int) {
             drag({5, 5}, 5, 2);
         },
         1, 1, "Bound Track"},
        {[&](int) { document.gallery().addGradientIntoPreset(); }, 1, 1, "Add Preset"},
        {[&](int) { document.gallery().applyPreset(0); }, 1, 0, "Add Preset"}};
    for (const auto& [act, times, steps, name] : rows) {
        SCOPED_TRACE(name);
        const std::size_t before = history().stepCount();
        for (int i = 0; i < times; ++i) {
            act(i);
        }
        now += 2s;
        EXPECT_EQ(history().stepCount() - before, steps);
        EXPECT_EQ(history().undoName(), name);
    }
}

TEST_F(DocumentTest, aMovedPresetIsShownWhereItComesToLieAndItsRunIsOneStep) {
    constexpr std::size_t count = 4;
    for (std::size_t i = 0; i < count; ++i) {
        document.takeGradient(Gradient{{{0.1 * static_cast<double>(i)}}}, editStep::pasteGradient);
        document.gallery().addGradientIntoPreset();
    }
    const std::vector<Gradient> before = gradientsIn(document.gallery());
    for (std::size_t pair = 0; pair < count * count; ++pair) {
        const std::size_t from = pair / count, to = pair % count;
        document.gallery().movePreset(from, to);
        EXPECT_EQ(history().undoName(), from != to ? "Move Preset" : "Add Preset");
        EXPECT_EQ(gradientsIn(document.gallery())[to], before[from]);
        if (from != to) {
            EXPECT_EQ(gallery.shown, to);
            history().undo();
            EXPECT_EQ(gallery.shown, from);
            history().redo();
            EXPECT_EQ(gallery.shown, to);
            history().undo();
        }
        EXPECT_EQ(gradientsIn(document.gallery()), before);
    }
    const auto movesBeside = [this](std::initializer_list<std::pair<std::size_t, int>> moves) {
        for (const auto& [position, direction] : moves) {
            document.gallery().movePresetBeside(position, direction);
        }
        return history().stepCount();
    };
    const std::size_t steps = movesBeside({{0, -1}, {3, 1}}); // there is no neighbour
    EXPECT_EQ(history().undoName(), "Add Preset");
    EXPECT_EQ(movesBeside({{0, 1}, {1, 1}, {2, 1}}), steps) << "one run, in place of what was taken back";
    EXPECT_EQ(gallery.shown, 3U);
    EXPECT_EQ(movesBeside({{0, 1}}), steps + 1) << "of another preset";
    history().undo();
    history().undo();
    EXPECT_EQ(gradientsIn(document.gallery()), before);
}

TEST_F(DocumentTest, asksTheStoreForChangedPresetsAloneAndKeepsItsStepsWhenThatFails) {
    document.gallery().addGradientIntoPreset();
    drag(markerAt(1), 20);
    const std::vector<Gradient> before = stored();
    const auto saves = [this] {
        return std::ranges::count_if(log.messages, [](const auto& line) {
            return line.starts_with("sql: ") || line.starts_with("Presets not saved");
        });
    };
    const auto count = saves();
    history().undo();
    EXPECT_EQ(saves(), count);
    {
        const auto full = limitFileSize(0);
        history().undo();
        EXPECT_GT(saves(), count);
        EXPECT_EQ(document.gallery().presetGradient().size(), 0U);
    }
    EXPECT_EQ(stored(), before) << "the file as it was";
    EXPECT_EQ(history().stepCount(), 2U);
    history().redo();
    history().redo();
    EXPECT_EQ(history().undoName(), "Move Stop");
    EXPECT_EQ(stored(), before);
}

} // namespace
} // namespace tessaly
