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

    void show(const QUrl& url);

    /// Replaces the stylesheet by what its file says now, once that is loaded, so that nothing flickers.
    void renewStylesheet();

  Q_SIGNALS:
    /// The last order; not `sound` when the page could not be loaded.
    void finished(bool sound);

    /// What the last order brought has been painted.
    void painted();

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString& source) override;

  private:
    void run(const char* script);

    QUrl url_;
    int order_ = 0; ///< the number of the last one
};

} // namespace tessaly
