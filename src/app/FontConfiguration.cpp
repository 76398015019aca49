#include "app/FontConfiguration.h"

#include <clocale>
#include <fontconfig/fontconfig.h>

namespace tessaly {

std::jthread loadFontConfiguration() {
    std::setlocale(LC_ALL, "");            // the toolkit would do so, and beside the thread would be too late
    return std::jthread{[] { FcInit(); }}; // where it fails, the toolkit tries again and reports
}

} // namespace tessaly
