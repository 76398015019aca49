#include "canvas/StopFormatter.h"

#include "canvas/OnlyDecimalValueFormatter.h"
#include "canvas/OnlyIntegerValueFormatter.h"

namespace tessaly {

const NumberFormatter& formatterOf(StopValue value) {
    static const OnlyDecimalValueFormatter decimal;
    static const OnlyIntegerValueFormatter integer;
    if (traitsOf(value).decimal) {
        return decimal;
    }
    return integer;
}

} // namespace tessaly
