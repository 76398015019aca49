#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace tessaly {

/// Lets the preview read its own two files and nothing else, from the disk or from anywhere.
class PreviewRequestFilter : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

  public:
    void setPage(const QUrl& page) { page_ = page; }

    /// Whether the preview may read `url`: the page, or the stylesheet under any query, which makes it read
    /// anew.
    bool isOwnFile(const QUrl& url) const;

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

  private:
    QUrl page_;
};

} // namespace tessaly
