#include "chrome/qt/WebAddressOpener.h"

#include "foundation/DiagnosticLog.h"

#include <QDesktopServices>
#include <utility>

namespace tessaly {
namespace {

void openInBrowser(const QUrl& address) {
    if (!QDesktopServices::openUrl(address)) {
        DiagnosticLog::write("No browser for " + address.toString().toStdString());
    }
}

WebAddressOpener::Opener& currentOpener() {
    static WebAddressOpener::Opener opener = openInBrowser;
    return opener;
}

} // namespace

void WebAddressOpener::open(const QString& address) {
    const QUrl url{address, QUrl::StrictMode};
    if (url.isValid()) {
        currentOpener()(url);
    }
}

WebAddressOpener::Opener WebAddressOpener::exchangeOpener(Opener opener) {
    return std::exchange(currentOpener(), std::move(opener));
}

} // namespace tessaly
