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
    WebAddressOpener::open(product::homepage().empty()
                               ? QString::fromLatin1(QUrl::fromLocalFile(guide).toEncoded())
                               : toQString(product::homepage()));
}

} // namespace tessaly
