#pragma once

namespace tessaly {

/// Mends what whoever started the process left out, and keeps it from being ended by what can be handled:
/// standard streams that are closed, an environment without a home, writes to a closed pipe or beyond the
/// limit of a file's size. To be called before anything else.
void setUpProcess();

} // namespace tessaly
