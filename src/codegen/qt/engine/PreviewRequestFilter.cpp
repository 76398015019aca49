#include "codegen/qt/engine/PreviewRequestFilter.h"

#include "codegen/PreviewFolder.h"

namespace tessaly {

bool PreviewRequestFilter::isOwnFile(const QUrl& url) const {
    const QUrl stylesheet = page_.resolved(QUrl{QString::fromLatin1(PreviewFolder::stylesheetName)});
    return page_.isValid() && (url == page_ || url.adjusted(QUrl::RemoveQuery) == stylesheet);
}

void PreviewRequestFilter::interceptRequest(QWebEngineUrlRequestInfo& request) {
    request.block(!isOwnFile(request.requestUrl()));
}

} // namespace tessaly
