// The yardstick of the start-up: an empty window that is linked to all that the program is linked to.

#include "Probe.h"

#include <QWebEngineView>

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    if (argc > 100) {
        const QWebEngineView neverMade; // what keeps the engine among the linked libraries
    }
    QWidget window;
    window.resize(980, 760);
    [[maybe_unused]] const tessaly::Probe probe{window, argv[1]};
    window.show();
    return QApplication::exec();
}
