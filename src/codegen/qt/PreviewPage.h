#pragma once

#include <QUrl>
#include <QWebEnginePage>

namespace tessaly {

/// The page of the preview: it stays where it was put and runs nothing.
class PreviewPage : public QWebEnginePage {
    Q_OBJECT

  public:
    explicit PreviewPage(QWebEngineProfile& profile);

    void show(const QUrl& url);

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;

  private:
    QUrl url_;
};

} // namespace tessaly
