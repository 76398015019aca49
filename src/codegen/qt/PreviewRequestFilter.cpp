#include "codegen/qt/PreviewRequestFilter.h"

#include "codegen/PreviewFolder.h"

namespace tessaly {

bool PreviewRequestFilter::isOwnFile(const QUrl& url) const {
    const auto stylesheet = PreviewFolder::stylesheetName;
    const QString name = QString::fromLatin1(stylesheet.data(), static_cast<qsizetype>(stylesheet.size()));
    return page_.isValid() && (url == page_ || url == page_.resolved(QUrl{name}));
}

void PreviewRequestFilter::interceptRequest(QWebEngineUrlRequestInfo& request) {
    request.block(!isOwnFile(request.requestUrl()));
}

} // namespace tessaly
