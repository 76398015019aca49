#include "codegen/qt/PreviewPage.h"

#include <QWebEngineSettings>

namespace tessaly {

PreviewPage::PreviewPage(QWebEngineProfile& profile) : QWebEnginePage{&profile} {
    using Attribute = QWebEngineSettings::WebAttribute;
    for (const Attribute off :
         {Attribute::JavascriptEnabled, Attribute::LocalStorageEnabled, Attribute::PluginsEnabled,
          Attribute::PdfViewerEnabled, Attribute::WebGLEnabled, Attribute::Accelerated2dCanvasEnabled,
          Attribute::NavigateOnDropEnabled, Attribute::LocalContentCanAccessRemoteUrls,
          Attribute::FullScreenSupportEnabled, Attribute::ErrorPageEnabled}) {
        settings()->setAttribute(off, false);
    }
    // The stylesheet lies beside the page; what else lies there is kept out by the request filter.
    settings()->setAttribute(Attribute::LocalContentCanAccessFileUrls, true);
}

void PreviewPage::show(const QUrl& url) {
    url_ = url;
    load(url);
}

bool PreviewPage::acceptNavigationRequest(const QUrl& url, NavigationType /*type*/, bool /*isMainFrame*/) {
    return url == url_;
}

} // namespace tessaly
