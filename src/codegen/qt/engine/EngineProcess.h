#pragma once

#include "codegen/qt/PreviewEngine.h"

#include <QByteArray>
#include <vector>

namespace tessaly {

/// The surroundings that the engine finds when it is started, which is when the first view is made. They last
/// as long as the object: what they add to the environment must not reach the programs that a link opens.
class EngineProcess {
  public:
    explicit EngineProcess(const PreviewModule::Log& log);
    EngineProcess(const EngineProcess&) = delete;
    EngineProcess& operator=(const EngineProcess&) = delete;
    ~EngineProcess();

  private:
    bool setForNow(const char* variable, const char* value);

    std::vector<QByteArray> added_;
};

} // namespace tessaly
