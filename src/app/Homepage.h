#pragma once

namespace tessaly {

/// Opens the homepage that the build was given, or else the user's guide that is installed with the program.
void openHomepage();

} // namespace tessaly
