#include "codegen/qt/engine/EngineProcess.h"

#include <QLoggingCategory>
#include <QQuickWindow>
#include <unistd.h>

namespace tessaly {

EngineProcess::EngineProcess(const PreviewModule::Log& log) {
    // The engine reports its whole configuration otherwise, in the middle of our log.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
    // Gradients are painted faster without a graphics card in between, no driver has to be loaded, and the
    // main window stays what it is: for a card the toolkit would make it anew, visibly.
    if (QQuickWindow::graphicsApi() != QSGRendererInterface::Software) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    setForNow("QT_XCB_GL_INTEGRATION", "none"); // else the engine asks the driver for its name
    if (::geteuid() == 0 && setForNow("QTWEBENGINE_DISABLE_SANDBOX", "1")) {
        log("Running as root: the browser engine's sandbox is off, it cannot start otherwise");
    }
}

EngineProcess::~EngineProcess() {
    for (const QByteArray& variable : added_) {
        qunsetenv(variable.constData());
    }
}

// False when whoever started the program has set it.
bool EngineProcess::setForNow(const char* variable, const char* value) {
    if (qEnvironmentVariableIsSet(variable)) {
        return false;
    }
    added_.emplace_back(variable);
    return qputenv(variable, value);
}

} // namespace tessaly
