#include "app/WiredWindow.h"

#include "canvas/qt/CanvasView.h"

#include <utility>

namespace tessaly {

WiredWindow::WiredWindow(std::filesystem::path temporaryDirectory,
                         const std::filesystem::path& applicationSupport)
    : tessaly_{mainWindow_, std::move(temporaryDirectory)},
      presets_{mainWindow_.presetPanel(), mainWindow_.canvasView().editor(), applicationSupport} {
    mainWindow_.canvasView().awakeFromNib(presets_.steps());
    tessaly_.awakeFromNib();
}

} // namespace tessaly
