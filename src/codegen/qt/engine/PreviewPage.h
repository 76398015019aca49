#pragma once

#include <QUrl>
#include <QWebEnginePage>

namespace tessaly {

/// The page of the preview: it stays where it was put and runs nothing. What the program itself does to it
/// happens in a world apart, which answers by messages on the page's console.
class PreviewPage : public QWebEnginePage {
    Q_OBJECT

  public:
    explicit PreviewPage(QWebEngineProfile& profile);

    void show(const QUrl& url, int order);

    /// Replaces the stylesheet by what its file says now, once that is loaded, so that nothing flickers.
    void renewStylesheet(int order);

  Q_SIGNALS:
    /// Not `sound` when the page could not be loaded, or has no stylesheet.
    void finished(int order, bool sound);

    /// What the order brought has been painted.
    void painted(int order);

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString& source) override;

  private:
    void run(const QString& script, int order);

    QUrl url_;
    int loading_ = 0; ///< the order to load the page
};

} // namespace tessaly
