// What the program finds in the module.

#include "codegen/qt/engine/BrowserEngine.h"
#include "codegen/qt/engine/EngineProcess.h"

#include <QObject>

namespace tessaly {

/// Makes engines, and prepares the process for the first one.
class BrowserModule : public QObject, public PreviewModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tessaly.PreviewModule" FILE "module.json")
    Q_INTERFACES(tessaly::PreviewModule)

  public:
    std::unique_ptr<PreviewEngine> makeEngine(QWidget& parent, PreviewEngine::Events events,
                                              const Log& log) override {
        const EngineProcess process{log};
        return std::make_unique<BrowserEngine>(parent, std::move(events));
    }
};

} // namespace tessaly

#include "BrowserModule.moc"
