#include "codegen/qt/PreviewRequestFilter.h"

#include "codegen/PreviewFolder.h"
#include "foundation/qt/ToQString.h"

namespace tessaly {

bool PreviewRequestFilter::isOwnFile(const QUrl& url) const {
    const QString name = toQString(PreviewFolder::stylesheetName);
    return page_.isValid() && (url == page_ || url == page_.resolved(QUrl{name}));
}

void PreviewRequestFilter::interceptRequest(QWebEngineUrlRequestInfo& request) {
    request.block(!isOwnFile(request.requestUrl()));
}

} // namespace tessaly
