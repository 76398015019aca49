#include "codegen/qt/engine/PreviewPage.h"

#include <QWebEngineScript>
#include <QWebEngineSettings>

namespace tessaly {
namespace {

// Both tell of the order, %1, on the console. What it changed is in the frame after the next one at the
// latest.
constexpr const char* tellWhenPainted = R"(
    requestAnimationFrame(() => requestAnimationFrame(() => console.log('painted %1')));
)";
constexpr const char* replaceStylesheet = R"(
    const old = document.querySelector('link[href^="styles.css"]');
    const fresh = document.createElement('link');
    fresh.rel = 'stylesheet';
    fresh.href = 'styles.css?%1'; // an address that no cache knows
    fresh.onload = fresh.onerror = () => { // it counts as an error when a file that it imports is refused
        old.remove();
        console.log('renewed %1');
        %2
    };
    if (old === null) { // the user has changed the page
        console.log('failed %1');
    } else {
        old.after(fresh);
    }
)";

} // namespace

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
    connect(this, &QWebEnginePage::loadFinished, this, [this](bool sound) {
        if (sound) {
            run(QString::fromLatin1(tellWhenPainted), loading_);
        }
        Q_EMIT finished(loading_, sound);
    });
}

void PreviewPage::show(const QUrl& url, int order) {
    url_ = url;
    loading_ = order;
    load(url);
}

void PreviewPage::renewStylesheet(int order) {
    run(QString::fromLatin1(replaceStylesheet)
            .replace(QStringLiteral("%2"), QString::fromLatin1(tellWhenPainted)),
        order);
}

void PreviewPage::run(const QString& script, int order) {
    const QString numbered = QString{script}.replace(QStringLiteral("%1"), QString::number(order));
    runJavaScript(u'{' + numbered + u'}', QWebEngineScript::ApplicationWorld);
}

bool PreviewPage::acceptNavigationRequest(const QUrl& url, NavigationType /*type*/, bool /*isMainFrame*/) {
    return url == url_;
}

void PreviewPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/, const QString& message,
                                           int /*line*/, const QString& /*source*/) {
    const QString what = message.section(u' ', 0, 0);
    const int order = message.section(u' ', 1).toInt();
    if (what == QLatin1String{"painted"}) {
        Q_EMIT painted(order);
    } else if (what == QLatin1String{"renewed"} || what == QLatin1String{"failed"}) {
        Q_EMIT finished(order, what == QLatin1String{"renewed"});
    }
}

} // namespace tessaly
