#include "codegen/qt/engine/EngineSurroundings.h"

#include <QLoggingCategory>
#include <QQuickWindow>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr const char* sandbox = "QTWEBENGINE_DISABLE_SANDBOX";
constexpr const char* flags = "QTWEBENGINE_CHROMIUM_FLAGS";
constexpr const char* glIntegration = "QT_XCB_GL_INTEGRATION";

} // namespace

EngineSurroundings::EngineSurroundings(const PreviewModule::Log& log) {
    // The engine reports its whole configuration otherwise, in the middle of our log.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
    // Gradients are painted faster without a graphics card in between, no driver has to be loaded, and the
    // main window stays what it is: for a card the toolkit would make it anew, visibly.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    if (!qEnvironmentVariableIsSet(glIntegration)) {
        setForNow(glIntegration, "none"); // else the engine asks the driver for its name
    }
    if (::geteuid() == 0 && !qEnvironmentVariableIsSet(sandbox)) {
        log("Running as root: the browser engine's sandbox is off, it cannot start otherwise");
        setForNow(sandbox, "1");
    }
    if (::access("/dev/shm", W_OK | X_OK) != 0) { // the engine would end the program
        log("The browser engine shares memory through the temporary folder, since it cannot in /dev/shm");
        setForNow(flags, qgetenv(flags) + " --disable-dev-shm-usage");
    }
}

EngineSurroundings::~EngineSurroundings() {
    for (const auto& [variable, value] : before_) {
        if (value.isNull()) {
            qunsetenv(variable.constData());
        } else {
            qputenv(variable.constData(), value);
        }
    }
}

void EngineSurroundings::setForNow(const char* variable, const QByteArray& value) {
    before_.emplace(variable, qgetenv(variable));
    qputenv(variable, value);
}

} // namespace tessaly
