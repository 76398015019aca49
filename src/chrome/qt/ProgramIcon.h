#pragma once

#include <QIcon>

namespace tessaly {

/// The program's own icon, in every size that a desktop or the About sheet asks for. It is part of the
/// program, so that it is there before anything is installed, and needs no plugin.
QIcon programIcon();

} // namespace tessaly
