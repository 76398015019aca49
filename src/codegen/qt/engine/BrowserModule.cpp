// What the program finds in the module.

#include "codegen/qt/engine/BrowserEngine.h"
#include "codegen/qt/engine/EngineSurroundings.h"

#include <QObject>
#include <optional>
#include <utility>

namespace tessaly {

/// Makes engines, and prepares the process for the first one.
class BrowserModule : public QObject, public PreviewModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tessaly.PreviewModule" FILE "module.json")
    Q_INTERFACES(tessaly::PreviewModule)

  public:
    std::unique_ptr<PreviewEngine> makeEngine(QWidget& parent, PreviewEngine::Events events,
                                              const Log& log) override {
        std::optional<EngineSurroundings> process;
        if (!std::exchange(isPrepared_, true)) {
            process.emplace(log);
        }
        return std::make_unique<BrowserEngine>(parent, std::move(events));
    }

  private:
    bool isPrepared_ = false;
};

} // namespace tessaly

#include "BrowserModule.moc"
