#include "codegen/qt/engine/PreviewPage.h"

#include <QWebEngineScript>
#include <QWebEngineSettings>

namespace tessaly {
namespace {

// Both say what became of which order. A frame after the next one what they changed is on its way to the
// screen.
constexpr const char* tellWhenPainted = R"(
    requestAnimationFrame(() => requestAnimationFrame(() => console.log('painted %1')));
)";
constexpr const char* replaceStylesheet = R"(
    const old = document.querySelector('link');
    const fresh = old.cloneNode();
    fresh.href = 'styles.css?%1'; // an address that no cache knows
    fresh.onload = fresh.onerror = () => { // it counts as an error when a file that it imports is refused
        old.remove();
        console.log('renewed %1');
        requestAnimationFrame(() => requestAnimationFrame(() => console.log('painted %1')));
    };
    old.after(fresh);
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
            run(tellWhenPainted);
        }
        Q_EMIT finished(sound);
    });
}

void PreviewPage::show(const QUrl& url) {
    ++order_;
    url_ = url;
    load(url);
}

void PreviewPage::renewStylesheet() {
    ++order_;
    run(replaceStylesheet);
}

void PreviewPage::run(const char* script) {
    runJavaScript(QStringLiteral("{%1}").arg(QString::fromLatin1(script).arg(order_)),
                  QWebEngineScript::ApplicationWorld);
}

bool PreviewPage::acceptNavigationRequest(const QUrl& url, NavigationType /*type*/, bool /*isMainFrame*/) {
    return url == url_;
}

void PreviewPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/, const QString& message,
                                           int /*line*/, const QString& /*source*/) {
    const auto is = [&](const char* what) {
        return message == QLatin1String{what} + QString::number(order_); // an older one is of no interest
    };
    if (is("painted ")) {
        Q_EMIT painted();
    } else if (is("renewed ")) {
        Q_EMIT finished(true);
    }
}

} // namespace tessaly
