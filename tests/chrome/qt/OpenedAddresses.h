#pragma once

#include "chrome/qt/WebAddressOpener.h"

#include <QStringList>
#include <utility>

namespace tessaly {

/// Keeps the addresses that are opened during its life, instead of starting a browser.
class OpenedAddresses {
  public:
    OpenedAddresses()
        : previous_{WebAddressOpener::exchangeOpener([this](const QUrl& url) { list += url.toString(); })} {}
    OpenedAddresses(const OpenedAddresses&) = delete;
    OpenedAddresses& operator=(const OpenedAddresses&) = delete;
    OpenedAddresses(OpenedAddresses&&) = delete;
    OpenedAddresses& operator=(OpenedAddresses&&) = delete;
    ~OpenedAddresses() { WebAddressOpener::exchangeOpener(std::move(previous_)); }

    QStringList list;

  private:
    WebAddressOpener::Opener previous_;
};

} // namespace tessaly
