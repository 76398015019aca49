#pragma once

#include "codegen/qt/PreviewEngine.h"

#include <QByteArray>
#include <map>

namespace tessaly {

/// The surroundings that the engine finds when it is started, which is when the first view is made. What they
/// change in the environment lasts as long as the object: it must not reach the programs that a link opens.
class EngineSurroundings {
  public:
    explicit EngineSurroundings(const PreviewModule::Log& log);
    EngineSurroundings(const EngineSurroundings&) = delete;
    EngineSurroundings& operator=(const EngineSurroundings&) = delete;
    ~EngineSurroundings();

  private:
    void setForNow(const char* variable, const QByteArray& value);

    std::map<QByteArray, QByteArray> before_; ///< null where a variable was not set
};

} // namespace tessaly
