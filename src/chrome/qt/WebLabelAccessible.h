#pragma once

namespace tessaly {

/// Makes every link label known to assistive tools as a link that can be pressed; once is enough.
void installWebLabelAccessible();

} // namespace tessaly
