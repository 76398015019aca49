// The program up to its first painted window.

#include "Probe.h"
#include "app/MainWindow.h"
#include "app/Presets.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "codegen/qt/WebPreviewView.h"

int main(int argc, char** argv) {
    using namespace tessaly;
    WebPreviewView::prepareProcess();
    QApplication application{argc, argv};
    MainWindow mainWindow;
    Tessaly tessaly{mainWindow, "/tmp"};
    Presets presets{mainWindow.presetPanel(), mainWindow.canvasView().editor(), argv[2]};
    mainWindow.canvasView().awakeFromNib(presets.steps());
    tessaly.awakeFromNib();
    const Probe probe{mainWindow, argv[1]};
    mainWindow.show();
    return QApplication::exec();
}
