// The program up to its first painted window.

#include "Probe.h"
#include "app/WiredWindow.h"
#include "chrome/qt/ProgramIcon.h"

#include <QDir>

int main(int argc, char** argv) {
    using namespace tessaly;
    QApplication application{argc, argv};
    QApplication::setWindowIcon(programIcon());
    WiredWindow wired{QDir::tempPath().toStdString(), argv[2]};
    [[maybe_unused]] const Probe probe{wired.mainWindow(), argv[1]};
    wired.mainWindow().show();
    return QApplication::exec();
}
