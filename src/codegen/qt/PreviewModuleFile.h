#pragma once

#include "codegen/qt/PreviewEngine.h"

#include <QString>

namespace tessaly {

/// The engine's module, or why there is none.
struct LoadedPreviewModule {
    PreviewModule* module = nullptr; ///< kept for the rest of the run; null when none fits this program
    QString failure;                 ///< in one line
};

/// Where the module's file was installed or built, beside the program and whatever folder that is started
/// from.
QString installedPreviewModule();

LoadedPreviewModule loadPreviewModule(const QString& path);

} // namespace tessaly
