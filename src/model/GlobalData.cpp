#include "model/GlobalData.h"

namespace tessaly {

GlobalData& GlobalData::sharedData() {
    static GlobalData data; // the language guards its creation against a second thread
    return data;
}

} // namespace tessaly
