#include "codegen/qt/engine/BrowserEngine.h"

#include <utility>

namespace tessaly {

BrowserEngine::BrowserEngine(QWidget& parent, Events events) : view_{&parent} {
    profile_.setUrlRequestInterceptor(&filter_);
    QObject::connect(&page_, &PreviewPage::finished, &view_, std::move(events.finished));
    QObject::connect(&page_, &PreviewPage::painted, &view_, std::move(events.painted));
    QObject::connect(&page_, &QWebEnginePage::renderProcessTerminated, &view_, std::move(events.ended));
    view_.setPage(&page_);
    view_.setContextMenuPolicy(Qt::NoContextMenu);
}

void BrowserEngine::load(const QUrl& page, int order) {
    filter_.setPage(page);
    page_.show(page, order);
}

} // namespace tessaly
