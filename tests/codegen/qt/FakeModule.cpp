// A module whose engine is a plain widget that does as the test says.

#include "codegen/qt/PreviewEngine.h"

#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace tessaly {

class FakeEngine : public QWidget, public PreviewEngine {
    Q_OBJECT

  public:
    FakeEngine(QWidget& parent, Events events) : QWidget{&parent}, events_{std::move(events)} {}

    void load(const QUrl& page) override { add(QStringLiteral("load ") + page.fileName()); }
    void renewStylesheet() override { add(QStringLiteral("renew")); }
    QWidget& widget() override { return *this; }

    Q_INVOKABLE void finish(bool sound) { events_.finished(sound); }
    Q_INVOKABLE void paint() { events_.painted(); }
    Q_INVOKABLE void end() { events_.ended(); }

  private:
    void add(const QString& order) { setProperty("orders", property("orders").toStringList() << order); }

    Events events_;
};

class FakeModule : public QObject, public PreviewModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tessaly.PreviewModule" FILE "module.json")
    Q_INTERFACES(tessaly::PreviewModule)

  public:
    std::unique_ptr<PreviewEngine> makeEngine(QWidget& parent, PreviewEngine::Events events,
                                              const Log& /*log*/) override {
        return std::make_unique<FakeEngine>(parent, std::move(events));
    }
};

} // namespace tessaly

#include "FakeModule.moc"
