// A module whose engine is a plain widget that does as the test says.

#include "codegen/qt/PreviewEngine.h"

#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace tessaly {

class FakeEngine : public QWidget, public PreviewEngine {
    Q_OBJECT

  public:
    FakeEngine(QWidget& parent, Events events) : QWidget{&parent}, events_{std::move(events)} {
        setObjectName(QStringLiteral("engine"));
    }

    void load(const QUrl& page, int order) override { add(QStringLiteral("load ") + page.fileName(), order); }
    void renewStylesheet(int order) override { add(QStringLiteral("renew"), order); }
    QWidget& widget() override { return *this; }

    /// Of the last order, or so many before it.
    Q_INVOKABLE void finish(bool sound, int before) { events_.finished(order_ - before, sound); }
    Q_INVOKABLE void paint(int before) { events_.painted(order_ - before); }
    Q_INVOKABLE void end() { events_.ended(); }

  private:
    void add(const QString& text, int order) {
        setProperty("orders", property("orders").toStringList() << text);
        order_ = order;
    }

    Events events_;
    int order_ = 0;
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
