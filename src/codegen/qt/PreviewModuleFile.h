#pragma once

#include "codegen/qt/PreviewEngine.h"

#include <QString>

namespace tessaly {

/// The file of the engine's module: found beside the program, loaded on demand and kept for the rest of the
/// run.
class PreviewModuleFile {
  public:
    /// Where the program was installed or built, whatever folder it is started from.
    static QString installedPath();

    explicit PreviewModuleFile(QString path) : path_{std::move(path)} {}

    /// Null when there is none that fits this program; `failure` then says why, in one line.
    PreviewModule* load();

    const QString& failure() const { return failure_; }

  private:
    QString path_;
    QString failure_;
};

} // namespace tessaly
