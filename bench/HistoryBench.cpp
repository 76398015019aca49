// The move of a stop taken back and done again, as the user sees it, and what it keeps.

#include "Measure.h"
#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "document/Document.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "support/FakeControls.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <benchmark/benchmark.h>
#include <vector>

namespace tessaly {
namespace {

// The first of the presets is the gradient with that many stops, the others have five.
void store(const std::filesystem::path& folder, std::int64_t stops, std::int64_t presets) {
    PresetProgram program{folder};
    program.gallery.addGradientIntoPreset(Gradient{std::vector<ColorStop>(static_cast<std::size_t>(stops))});
    for (std::int64_t i = 0; i < presets; ++i) {
        program.gallery.addGradientIntoPreset(Gradient{std::vector<ColorStop>(5)});
    }
    program.store.insertData();
}

// What one more move of a stop takes of the history's room.
std::size_t bytesOfStep(const std::filesystem::path& folder) {
    FakeControls controls;
    FakeSurface surface;
    FakeGalleryView gallery;
    const CanvasGeometry geometry{Size{624, 197}};
    Document document{{geometry, surface, controls.set, gallery}, folder, [] {}};
    document.open();
    document.gallery().applyPreset(0);
    const std::size_t before = document.history().bytes();
    document.editor().interaction().moveSelected(1, 0, 100);
    return document.history().bytes() - before;
}

void stepBack(benchmark::State& state) {
    const TemporaryFolder temporary;
    store(temporary.path, state.range(0), state.range(1));
    Tessaly program{temporary.path, temporary.path};
    program.mainWindow().findChild<PresetGradienContainerView*>()->pressAccessibleItem(0);
    QKeyEvent right{QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier};
    QCoreApplication::sendEvent(program.mainWindow().views().canvas, &right);
    const QList<QAction*> items = program.mainWindow().views().menu->actions().at(1)->menu()->actions();
    if (items.front()->text() != QStringLiteral("&Undo Move Stop")) {
        state.SkipWithError("nothing was moved");
        return;
    }
    measure(state, [&](std::size_t number) { items.at(static_cast<int>(number % 2))->trigger(); });
    state.counters["bytes"] = static_cast<double>(bytesOfStep(temporary.path));
}

BENCHMARK(stepBack)
    ->ArgNames({"stops", "presets"})
    ->Args({10, 0})
    ->Args({1000, 0})
    ->Args({10'000, 0})
    ->Args({10, 10'000})
    ->Iterations(100)
    ->UseManualTime();

} // namespace
} // namespace tessaly
