#include "document/Document.h"

#include "model/EditStep.h"
#include "presets/SqliteConnection.h"
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
    std::string rows; ///< of the database

    bool operator==(const Content&) const = default;
};

class DocumentTest : public testing::Test {
  protected:
    DocumentTest() { document.open(); }

    Content content() {
        Content content{document.record(),
                        document.editor().interaction().lowerBound(),
                        gradientsIn(document.gallery()),
                        {}};
        SqliteConnection database =
            SqliteConnection::openImmutable(temporary.path / "Tessaly" / "localDB.sqlite3");
        for (const char* const query :
             {"select count(*) || ':' || ifnull(group_concat(mainIndex || ',' || orientationType), '') from "
              "MainTable",
              "select count(*) || ':' || ifnull(group_concat(mainIndex || ',' || position || ',' || red || "
              "',' || "
              "green || ',' || blue || ',' || opacity), '') from AdditionalTable"}) {
            content.rows += database.value(query).value();
        }
        return content;
    }
    std::int64_t selection() { return document.editor().markers().selectedColorMarkerIndex(); }
    History& history() { return document.history(); }
    MarkerInteraction& mouse() { return document.editor().interaction(); }

    Point markerAt(std::int64_t stop) {
        const Gradient& gradient = document.record().gradient;
        const Rect rect = geometry.markerRect(gradient.orientation(), gradient.stopAt(stop)->position);
        return {rect.x + rect.width / 2, rect.y + rect.height / 2};
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
    void actAtRandom();

    std::mt19937 random{12};
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

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

void DocumentTest::actAtRandom() {
    const auto stops = std::ssize(document.record().gradient.stops());
    const auto presets = document.gallery().presetGradient().size();
    const auto anyStop = [&] { return static_cast<std::int64_t>(below(static_cast<int>(stops))); };
    const auto anyPreset = [&] { return static_cast<std::size_t>(below(static_cast<int>(presets))); };
    const auto anyValue = static_cast<StopValue>(below(8));
    now += std::chrono::milliseconds{below(1500)};
    switch (below(16)) {
    case 0:
        return drag(stops > 0 ? markerAt(anyStop()) : Point{}, below(40));
    case 1:
        return drag({below(440) * 1.0, below(140) * 1.0}, below(3) * 10, 2);
    case 2:
        stops > 0 && mouse().rightMouseDown(markerAt(anyStop())); // which selects it
        return;
    case 3:
        return mouse().deleteColorMarker();
    case 4:
        return mouse().addBesideSelected();
    case 5:
        for (int times = below(4); times > 0; --times) {
            mouse().moveSelected(1 - 2 * below(2), 0, 1);
        }
        return;
    case 6:
        mouse().selectNeighbour(1 - 2 * below(2));
        return;
    case 7:
        return type(anyValue, std::to_string(below(300)) + (below(2) == 0 ? "" : ".5"));
    case 8:
        for (int times = below(4); times > 0; --times) {
            step(anyValue, below(300) / 100.0);
        }
        return;
    case 9:
        return controls.well.setBackgroundColor(Color::calibratedRGB(below(9) / 8.0, below(9) / 8.0, 0));
    case 10:
        controls.orientation.selected = below(5);
        return document.editor().controls().updateOrientationComboBoxValue();
    case 11:
        controls.colorFormat.selected = below(5);
        return document.editor().controls().updateColorFormatComboBoxValue();
    case 12:
        return document.gallery().addGradientIntoPreset();
    case 13:
        return presets > 0 ? document.gallery().applyPreset(anyPreset()) : void();
    case 14:
        return presets > 0 ? document.gallery().deletePreset(anyPreset()) : void();
    default:
        return below(4) == 0 ? document.newGradient() : void();
    }
}

TEST_F(DocumentTest, undoGivesBackEveryStateThatAnyActionsMade) {
    std::vector<Content> states{content()}; // by the number of steps done
    std::vector<std::int64_t> selections;   // before each step
    std::vector<std::int64_t> selectionsAfter;
    const auto goTo = [&](std::size_t steps) {
        std::size_t at = states.size() - 1;
        for (; at > steps; --at) {
            ASSERT_TRUE(history().undo());
            ASSERT_EQ(content(), states[at - 1]) << "step " << at << ": " << history().redoName();
            ASSERT_EQ(selection(), selections[at - 1]);
        }
    };
    for (int action = 0; action < 1500; ++action) {
        const std::int64_t selected = selection();
        actAtRandom();
        const Content made = content();
        const std::size_t steps = history().stepCount();
        ASSERT_EQ(history().redoName(), "");
        if (steps == states.size()) {
            states.push_back(made);
            selections.push_back(selected);
            selectionsAfter.push_back(selection());
        } else if (steps + 1 == states.size()) { // nothing, or one run with the action before
            if (made != states.back()) {
                selectionsAfter.back() = selection();
                states.back() = made;
            }
        } else {
            ASSERT_EQ(steps + 2, states.size()) << "more than one step is gone";
            states.pop_back();
            selections.pop_back();
            selectionsAfter.pop_back();
            ASSERT_EQ(made, states.back()) << "a run back to its start";
        }
        if (action % 50 == 49) {
            const std::size_t undone = std::min<std::size_t>(steps, static_cast<std::size_t>(below(30)));
            goTo(steps - undone);
            for (std::size_t at = states.size() - 1 - undone; at + 1 < states.size(); ++at) {
                ASSERT_TRUE(history().redo());
                ASSERT_EQ(content(), states[at + 1]);
                ASSERT_EQ(selection(), selectionsAfter[at]);
            }
            ASSERT_FALSE(history().redo());
            now += 2s;
        }
    }
    EXPECT_GT(states.size(), 800U);
    goTo(0);
    EXPECT_FALSE(history().undo());
}

TEST_F(DocumentTest, takesAGradientInANotationThatCanSayIt) {
    const Gradient opaque{{{0.0, Color::white()}, {0.5}, {1.0}}, orientation::radial};
    const Gradient translucent{{{0.5, Color::white(), 0.5}}};
    for (const auto& [notation, carrying] : {std::pair{0, 2}, {1, 2}, {2, 2}, {3, 4}, {4, 4}}) {
        controls.colorFormat.selected = notation;
        document.editor().controls().updateColorFormatComboBoxValue();
        document.takeGradient(opaque, editStep::openGradient);
        EXPECT_EQ(document.record(), (GlobalData{opaque, notation}));
        mouse().select(2);
        document.takeGradient(translucent, editStep::pasteGradient);
        EXPECT_EQ(document.record(), (GlobalData{translucent, carrying}));
        EXPECT_EQ(controls.colorFormat.selected, carrying);
        EXPECT_EQ(selection(), 0);
        EXPECT_EQ(history().undoName(), "Paste Gradient");
        history().undo();
        EXPECT_EQ(document.record(), (GlobalData{opaque, notation}));
        EXPECT_EQ(selection(), 2);
    }
    EXPECT_TRUE(document.takeColor({Color::black(), 0.25}));
    EXPECT_EQ(document.record().gradient.stopAt(2)->opacity, 0.25);
    EXPECT_EQ(controls.hexadecimal.shown, "#000000");
    document.addToPresets({opaque, translucent});
    EXPECT_EQ(gradientsIn(document.gallery()), (std::vector{opaque, translucent}));
    history().undo();
    EXPECT_EQ(content().presets, std::vector<Gradient>{});
}

TEST_F(DocumentTest, oneActionIsOneStepAndNothingIsNone) {
    const auto steps = [this](const std::function<void()>& act) {
        const std::size_t before = history().stepCount();
        act();
        now += 2s;
        return std::pair{history().stepCount() - before, std::string{history().undoName()}};
    };
    using Made = std::pair<std::size_t, std::string>;
    EXPECT_EQ(steps([&] { drag(markerAt(0), 0); }), (Made{0, ""}));
    EXPECT_EQ(steps([&] { drag(markerAt(1), 500); }), (Made{1, "Move Stop"}));
    EXPECT_EQ(steps([&] { drag(markerAt(1), 0); }), (Made{0, "Move Stop"}));
    EXPECT_EQ(steps([&] { drag({220, 70}, 50, 2); }), (Made{1, "Add Stop"}));
    EXPECT_EQ(steps([&] { drag(markerAt(1), 5), drag(markerAt(1), 5); }), (Made{2, "Move Stop"}));
    EXPECT_EQ(steps([&] {
                  for (int i = 1; i <= 30; ++i) {
                      step(StopValue::Red, i);
                      now += 50ms;
                  }
              }),
              (Made{1, "Change Color"}));
    EXPECT_EQ(steps([&] {
                  for (int i = 1; i <= 30; ++i) {
                      controls.well.setBackgroundColor(Color::calibratedRGB(0, i / 30.0, 0));
                      now += 5s;
                  }
              }),
              (Made{1, "Change Color"}));
    EXPECT_EQ(steps([&] { document.editor().controls().pickingGivenUp(); }), (Made{0, "Change Color"}));
    EXPECT_EQ(controls.well.shown, Color::calibratedRGB(static_cast<double>(30 / 255.0F), 1, 1));
    EXPECT_EQ(steps([&] { type(StopValue::Green, "120"), type(StopValue::Green, "121"); }),
              (Made{1, "Change Color"}))
        << "two, after one that was taken back";
    EXPECT_EQ(steps([&] { type(StopValue::Green, "121"); }), (Made{0, "Change Color"}));
    mouse().mouseDown(markerAt(0), 1);
    EXPECT_FALSE(history().undo());
    mouse().mouseUp();
    controls.orientation.selected = 4;
    EXPECT_EQ(steps([&] { document.editor().controls().updateOrientationComboBoxValue(); }),
              (Made{1, "Change Orientation"}));
    EXPECT_EQ(steps([&] { drag({5, 5}, 5, 2); }), (Made{1, "Bound Track"}));
    EXPECT_EQ(steps([&] { document.gallery().addGradientIntoPreset(); }), (Made{1, "Add Preset"}));
    EXPECT_EQ(steps([&] { document.gallery().applyPreset(0); }), (Made{0, "Add Preset"}));
    const int paints = surface.paints;
    history().undo();
    history().redo();
    EXPECT_EQ(document.gallery().presetGradient().size(), 1U);
    EXPECT_GT(surface.paints, paints);
}

TEST_F(DocumentTest, asksTheStoreForChangedPresetsAloneAndKeepsItsStepsWhenThatFails) {
    document.gallery().addGradientIntoPreset();
    drag(markerAt(1), 20);
    const std::string stored = content().rows;
    const auto saves = [this] {
        return std::ranges::count_if(log.messages, [](const auto& line) {
            return line.starts_with("sql: ") || line.starts_with("Presets not saved");
        });
    };
    const auto before = saves();
    history().undo();
    EXPECT_EQ(saves(), before);
    {
        const auto full = limitFileSize(0);
        history().undo();
        EXPECT_GT(saves(), before);
        EXPECT_EQ(content().rows, stored) << "the file as it was";
        EXPECT_EQ(document.gallery().presetGradient().size(), 0U);
    }
    EXPECT_EQ(history().stepCount(), 2U);
    history().redo();
    history().redo();
    EXPECT_EQ(history().undoName(), "Move Stop");
    EXPECT_EQ(content().rows, stored);
}

} // namespace
} // namespace tessaly
