// The program up to its first painted window.

#include "Probe.h"
#include "app/FontConfiguration.h"
#include "app/MainWindow.h"
#include "app/Tessaly.h"
#include "foundation/qt/AfterFirstPaint.h"

#include <QDir>

int main(int argc, char** argv) {
    using namespace tessaly;
    const std::jthread fonts = loadFontConfiguration();
    const QApplication application{argc, argv};
    Tessaly program{QDir::tempPath().toStdString(), argv[2]};
    afterFirstPaint(program.mainWindow(), [&] { report(argv[1]); });
    program.mainWindow().show();
    return QApplication::exec();
}
