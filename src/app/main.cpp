#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Presets.h"
#include "app/QuitOnSignal.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "chrome/ProductInfo.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <csignal>

int main(int argc, char** argv) {
    using namespace tessaly;
    std::signal(SIGPIPE, SIG_IGN); // a log that nobody reads any more must not end the program
    WebPreviewView::prepareProcess();
    QApplication application{argc, argv};
    QApplication::setApplicationName(toQString(product::name));
    QApplication::setApplicationVersion(toQString(product::version()));
    AppDelegate delegate{application};
    const QuitOnSignal quitOnSignal;

    MainWindow mainWindow;
    const QString temporaryFolder = QDir::tempPath(); // empty when the environment names a missing one
    Tessaly tessaly{mainWindow, temporaryFolder.isEmpty() ? "/tmp" : temporaryFolder.toStdString()};
    CanvasView& canvas = mainWindow.canvasView();
    Presets presets{mainWindow.presetPanel(), canvas.editor(),
                    QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString()};
    canvas.awakeFromNib(presets.steps());
    tessaly.awakeFromNib();
    delegate.setWindow(&mainWindow);
    mainWindow.show();
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
