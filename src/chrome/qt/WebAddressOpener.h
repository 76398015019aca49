#pragma once

#include <QString>
#include <QUrl>
#include <functional>

namespace tessaly {

/// Opens addresses in the user's default browser.
class WebAddressOpener {
  public:
    using Opener = std::function<void(const QUrl&)>;

    /// Has no effect when `address` is no valid address.
    static void open(const QString& address);

    /// Sends all further addresses to `opener` and returns the one that had them before.
    static Opener exchangeOpener(Opener opener);
};

} // namespace tessaly
