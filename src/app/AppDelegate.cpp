#include "app/AppDelegate.h"

#include <QApplication>

namespace tessaly {

AppDelegate::AppDelegate(QApplication& application) : QObject{&application} {
    QApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
}

} // namespace tessaly
