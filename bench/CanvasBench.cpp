#include "Measure.h"
#include "app/MainWindow.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "canvas/qt/StopControlPanel.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "support/NoHistory.h"
#include "support/PresetProgram.h"
#include "support/TemporaryFolder.h"

#include <QMouseEvent>
#include <benchmark/benchmark.h>
#include <vector>

namespace tessaly {
namespace {

Gradient gradientOf(std::int64_t orientation, std::int64_t count) {
    std::vector<ColorStop> stops;
    for (std::int64_t i = 0; i < count; ++i) {
        const double at = static_cast<double>(i) / static_cast<double>(count - 1);
        stops.push_back({at, Color::calibratedRGB(at, 1 - at, i % 2 == 0 ? 0.0 : 1.0)});
    }
    return Gradient{std::move(stops), orientation};
}

// One repaint of a changed gradient from the idle form, nested repaint included, nobody listening.
void createBackground(benchmark::State& state) {
    StopControlPanel panel;
    CanvasView canvas;
    GlobalData record;
    NoHistory history;
    GradientEditor editor{record, history, canvas.geometry(), canvas, panel.controlSet()};
    canvas.edit(editor);
    editor.awakeFromNib();
    record.gradient = gradientOf(state.range(0), 10);
    measure(state, [&](std::size_t number) {
        ColorStop stop = record.gradient.stops()[4];
        stop.position = 0.4 + 1e-6 * static_cast<double>(number % 1000); // another picture each time
        record.gradient.replace(4, stop);
        editor.createBackground();
    });
}

// A mouse move with a marker in hand, in the whole program without its event loop: picture, controls, eight
// replacements in the text view, file on the disk. The preview has not been looked at, so no browser engine
// runs.
void dragStep(benchmark::State& state) {
    const TemporaryFolder temporary;
    {
        PresetProgram before{temporary.path};
        before.gallery.addGradientIntoPreset(gradientOf(orientation::leftToRight, state.range(0)));
        before.store.insertData();
    }
    Tessaly program{temporary.path, temporary.path};
    program.mainWindow().findChild<PresetGradienContainerView*>()->pressAccessibleItem(0);
    CanvasView& canvas = *program.mainWindow().views().canvas;
    const Rect marker = canvas.geometry().markerRect(orientation::leftToRight, 0.0);
    const double y = canvas.height() - marker.center().y;
    const auto send = [&](QEvent::Type type, double x) {
        QMouseEvent event{type,           QPointF{x, y},
                          QPointF{x, y},  type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier};
        QCoreApplication::sendEvent(&canvas, &event);
    };
    send(QEvent::MouseButtonPress, marker.center().x);
    measure(state,
            [&](std::size_t number) { send(QEvent::MouseMove, 20.0 + static_cast<double>(number % 600)); });
}

BENCHMARK(createBackground)->ArgName("orientation")->DenseRange(0, 4)->UseManualTime();
// The disk makes one drag or another wait; the median of five drags tells what is the program's own.
BENCHMARK(dragStep)->ArgName("stops")->Arg(10)->Arg(100)->Iterations(1000)->Repetitions(5)->UseManualTime();

} // namespace
} // namespace tessaly
