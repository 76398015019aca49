#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/QuitOnSignal.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "chrome/ProductInfo.h"
#include "codegen/qt/WebPreviewView.h"
#include "foundation/qt/ToQString.h"

#include <QApplication>
#include <QDir>

int main(int argc, char** argv) {
    using namespace tessaly;
    WebPreviewView::prepareProcess();
    QApplication application{argc, argv};
    QApplication::setApplicationName(toQString(product::name));
    QApplication::setApplicationVersion(toQString(product::version()));
    const AppDelegate delegate{application};
    const QuitOnSignal quitOnSignal;

    MainWindow mainWindow;
    Tessaly tessaly{mainWindow, QDir::tempPath().toStdString()};
    mainWindow.canvasView().awakeFromNib();
    tessaly.awakeFromNib();
    mainWindow.show();
    return QApplication::exec();
}
