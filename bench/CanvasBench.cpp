#include "Measure.h"
#include "app/MainWindow.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "support/NoPresets.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace tessaly {
namespace {

// The whole program without its event loop. The preview has not been looked at, so no browser engine runs.
class Program {
  public:
    Program() {
        GlobalData::sharedData() = GlobalData{};
        window.canvasView().awakeFromNib(noPresets);
        controller.awakeFromNib();
    }

    GradientEditor& editor() { return window.canvasView().editor(); }

    void setStops(std::int64_t orientation, std::int64_t count) {
        std::vector<ColorStop> stops;
        for (std::int64_t i = 0; i < count; ++i) {
            const double at = static_cast<double>(i) / static_cast<double>(count - 1);
            stops.push_back({at, Color::calibratedRGB(at, 1 - at, i % 2 == 0 ? 0.0 : 1.0)});
        }
        GlobalData::sharedData().gradient() = Gradient{std::move(stops), orientation};
        editor().repaint();
    }

    TemporaryFolder temporary;
    MainWindow window;
    Tessaly controller{window, temporary.path};
};

// One repaint of a changed gradient from the idle form, nested repaint included, nobody listening.
void createBackground(benchmark::State& state) {
    StopControlPanel panel;
    CanvasView canvas{panel};
    GlobalData::sharedData() = GlobalData{};
    canvas.awakeFromNib(noPresets);
    GlobalData& data = GlobalData::sharedData();
    data.gradient().setOrientation(state.range(0));
    for (int i = 1; i < 9; ++i) {
        canvas.editor().markers().addColorMarker(Color::calibratedRGB(i / 9.0, 0.5, 1 - i / 9.0), i / 9.0,
                                                 1.0, ColorMarkers::insertSorted);
    }
    measure(state, [&](std::size_t number) {
        ColorStop stop = data.gradient().stops()[4];
        stop.position = 0.4 + 1e-6 * static_cast<double>(number % 1000); // another picture each time
        data.gradient().replace(4, stop);
        canvas.editor().createBackground();
    });
}

// A mouse move with a marker in hand: arrays, picture, eight replacements in the text view, file on the disk.
void dragStep(benchmark::State& state) {
    Program program;
    program.setStops(orientation::leftToRight, state.range(0));
    const CanvasGeometry& geometry = program.editor().geometry();
    MarkerInteraction& mouse = program.editor().interaction();
    mouse.mouseDown(geometry.markerRect(orientation::leftToRight, 0.0).center(), 1);
    measure(state, [&](std::size_t number) {
        mouse.mouseDragged({20.0 + static_cast<double>(number % 600), 25.0});
    });
}

BENCHMARK(createBackground)->ArgName("orientation")->DenseRange(0, 4)->UseManualTime();
// The disk makes one drag or another wait; the median of five drags tells what is the program's own.
BENCHMARK(dragStep)->ArgName("stops")->Arg(10)->Arg(100)->Iterations(1000)->Repetitions(5)->UseManualTime();

} // namespace
} // namespace tessaly
