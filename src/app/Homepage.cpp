#include "app/Homepage.h"

#include "chrome/ProductInfo.h"
#include "chrome/qt/WebAddressOpener.h"
#include "foundation/qt/ToQString.h"

#include <QCoreApplication>
#include <QDir>

namespace tessaly {

void openHomepage() {
    const QString guide = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                          QStringLiteral("/../share/doc/tessaly/guide.html"));
    WebAddressOpener::open(product::homepage().empty() ? QUrl::fromLocalFile(guide).toString()
                                                       : toQString(product::homepage()));
}

} // namespace tessaly
