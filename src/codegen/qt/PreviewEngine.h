#pragma once

#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>
#include <string_view>

class QWidget;

namespace tessaly {

/// A browser engine with one page, shown in a child of the widget that it was made for.
class PreviewEngine {
  public:
    /// What the engine tells its owner, from the event loop; it must live on until the call has returned.
    struct Events {
        std::function<void(int order, bool sound)> finished; ///< and whether it could be carried out
        std::function<void(int order)> painted;              ///< what it brought is on its way to the screen
        std::function<void()> ended; ///< the process that paints; the engine is of no use any more
    };

    virtual ~PreviewEngine() = default;

    virtual void load(const QUrl& page, int order) = 0;

    /// Shows the page that is loaded with what its stylesheet's file says now.
    virtual void renewStylesheet(int order) = 0;

    virtual QWidget& widget() = 0;
};

/// The root of the module that has all that is engine. The program links none of it.
class PreviewModule {
  public:
    using Log = std::function<void(std::string_view message)>;

    virtual ~PreviewModule() = default;

    /// `log` takes what is to be known of how the engine runs. The widget must outlive the engine.
    virtual std::unique_ptr<PreviewEngine> makeEngine(QWidget& parent, PreviewEngine::Events events,
                                                      const Log& log) = 0;
};

} // namespace tessaly

Q_DECLARE_INTERFACE(tessaly::PreviewModule, "tessaly.PreviewModule")
