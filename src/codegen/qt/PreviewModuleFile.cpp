#include "codegen/qt/PreviewModuleFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QOpenGLContext>
#include <QPluginLoader>

QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void
qt_gl_set_global_share_context(QOpenGLContext* context); // the toolkit's own, for its modules
Q_GUI_EXPORT QOpenGLContext* qt_gl_global_share_context();
QT_END_NAMESPACE

namespace tessaly {
namespace {

// The engine ends the process when it is loaded after the application object was made and there is no such
// context. It only has to exist: nothing here draws by it, and no graphics driver is loaded for it.
void provideShareContext() {
    if (qt_gl_global_share_context() == nullptr) {
        qt_gl_set_global_share_context(new QOpenGLContext{QCoreApplication::instance()});
    }
}

} // namespace

QString installedPreviewModule() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../" TESSALY_MODULES "/preview.so"));
}

LoadedPreviewModule loadPreviewModule(const QString& path) {
    if (!QFile::exists(path)) {
        return {nullptr, QCoreApplication::translate("Preview", "%1 is missing").arg(path)};
    }
    QPluginLoader loader{path};
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    const QJsonObject told = loader.metaData().value(QStringLiteral("MetaData")).toObject();
    if (told.value(QStringLiteral("version")) != QStringLiteral(TESSALY_VERSION)) {
        return {nullptr,
                QCoreApplication::translate("Preview", "%1 is not of this program's version").arg(path)};
    }
    provideShareContext();
    QObject* const instance = loader.instance();
    if (instance == nullptr) {
        return {nullptr, loader.errorString()};
    }
    auto* const module = qobject_cast<PreviewModule*>(instance);
    return {module, module == nullptr
                        ? QCoreApplication::translate("Preview", "%1 holds no preview").arg(path)
                        : QString{}};
}

} // namespace tessaly
