#pragma once

#include <QMenu>

namespace tessaly {

/// For an item that assistive tools press: it leaves its menu open, and beneath one no command acts. Only
/// what is connected to an item after it was added to the menu finds the menu closed.
inline void closeWhenTriggered(QMenu& menu) {
    QObject::connect(&menu, &QMenu::triggered, &menu, &QMenu::hide);
}

} // namespace tessaly
