#pragma once

#include "exchange/Reading.h"

#include <QString>
#include <functional>

class QWidget;

namespace tessaly {

/// Does `work` on a thread of its own, with its title, progress and a Cancel over the window, which waits
/// meanwhile. `done` is called afterwards, on the main thread; after Cancel it is not.
void workBeside(QWidget& window, const QString& title, const std::function<void(const Progress&)>& work,
                const std::function<void()>& done);

} // namespace tessaly
