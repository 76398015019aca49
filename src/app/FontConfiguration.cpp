#include "app/FontConfiguration.h"

#include <fontconfig/fontconfig.h>

namespace tessaly {

std::jthread loadFontConfiguration() {
    return std::jthread{[] { FcInit(); }}; // where it fails, the toolkit tries again and reports
}

} // namespace tessaly
