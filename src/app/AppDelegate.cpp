#include "app/AppDelegate.h"

#include <QApplication>

namespace tessaly {

AppDelegate::AppDelegate(QApplication& application) : QObject{&application} {
    connect(&application, &QApplication::aboutToQuit, this, &AppDelegate::applicationWillTerminate);
    QApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
}

} // namespace tessaly
