// The yardstick of the start-up: an empty window of the toolkit, linked to nothing of the program's.

#include "Probe.h"
#include "foundation/qt/AfterFirstPaint.h"

#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    QWidget window;
    window.resize(980, 760);
    tessaly::afterFirstPaint(window, [&] { tessaly::report(argv[1]); });
    window.show();
    return QApplication::exec();
}
