// A thumbnail of many carried over the list, and the list painted with it.

#include "Measure.h"
#include "presets/qt/PresetGradienContainerView.h"
#include "presets/qt/PresetPanel.h"
#include "support/NoHistory.h"
#include "support/PresetProgram.h"

#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

namespace tessaly {
namespace {

void dragPreset(benchmark::State& state) {
    PresetPanel panel;
    Gradient edited{std::vector<ColorStop>(static_cast<std::size_t>(state.range(1))), orientation::radial};
    NoHistory history;
    PresetGallery gallery{edited, history, panel, {[] {}, [] {}}};
    panel.connectTo(gallery);
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        gallery.addGradientIntoPreset(edited);
    }
    panel.show();
    auto& container = *panel.findChild<PresetGradienContainerView*>();
    const auto send = [&](QEvent::Type type, const QPointF& place) {
        QMouseEvent event{type,
                          place,
                          container.mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          Qt::LeftButton,
                          Qt::ControlModifier};
        QCoreApplication::sendEvent(&container, &event);
    };
    QCoreApplication::processEvents();
    send(QEvent::MouseButtonPress, container.accessibleItemRect(0).center());
    measure(state, [&](std::size_t number) {
        send(QEvent::MouseMove, {40.0 + static_cast<double>(number % 200), 120});
        container.repaint();
    });
}

BENCHMARK(dragPreset)
    ->ArgNames({"presets", "stops"})
    ->Args({1000, 5})
    ->Args({10, 100'000})
    ->Iterations(500)
    ->UseManualTime();

} // namespace
} // namespace tessaly
