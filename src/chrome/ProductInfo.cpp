#include "chrome/ProductInfo.h"

namespace tessaly::product {

std::string_view version() {
    return TESSALY_VERSION;
}

std::string_view homepage() {
    return TESSALY_HOMEPAGE_URL;
}

std::string_view desktopId() {
    return TESSALY_DESKTOP_ID;
}

} // namespace tessaly::product
