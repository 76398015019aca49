// The program up to its first painted window.

#include "Probe.h"
#include "app/FontConfiguration.h"
#include "app/WiredWindow.h"
#include "foundation/qt/AfterFirstPaint.h"

#include <QDir>

int main(int argc, char** argv) {
    using namespace tessaly;
    const std::jthread fonts = loadFontConfiguration();
    const QApplication application{argc, argv};
    WiredWindow wired{QDir::tempPath().toStdString(), argv[2]};
    afterFirstPaint(wired.mainWindow(), [&] { report(argv[1]); });
    wired.mainWindow().show();
    return QApplication::exec();
}
