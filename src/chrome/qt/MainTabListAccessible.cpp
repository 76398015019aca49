#include "chrome/qt/MainTabListAccessible.h"

#include "chrome/qt/MainTabAccessible.h"
#include "chrome/qt/MainTabView.h"

namespace tessaly {
namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* const bar = qobject_cast<MainTabView*>(object);
    return bar != nullptr ? new MainTabListAccessible{bar} : nullptr;
}

} // namespace

MainTabListAccessible::MainTabListAccessible(MainTabView* bar)
    : QAccessibleWidget{bar, QAccessible::PageTabList} {}

MainTabListAccessible::~MainTabListAccessible() {
    for (const auto& [index, id] : tabs_) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

void MainTabListAccessible::install() {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeInterface), true);
}

int MainTabListAccessible::childCount() const {
    return static_cast<int>(bar()->tabs().size());
}

QAccessibleInterface* MainTabListAccessible::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto known = tabs_.find(index);
    if (known != tabs_.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    auto* const tab = new MainTabAccessible{bar(), index}; // the toolkit's registry owns it from here on
    tabs_[index] = QAccessible::registerAccessibleInterface(tab);
    return tab;
}

int MainTabListAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (const auto& [index, id] : tabs_) {
        if (QAccessible::accessibleInterface(id) == child) {
            return index;
        }
    }
    return -1;
}

QAccessibleInterface* MainTabListAccessible::childAt(int x, int y) const {
    return child(static_cast<int>(bar()->tabAt(bar()->mapFromGlobal(QPointF(x, y)))));
}

QAccessibleInterface* MainTabListAccessible::focusChild() const {
    return bar()->hasFocus() ? child(static_cast<int>(bar()->selectIndex())) : nullptr;
}

MainTabView* MainTabListAccessible::bar() const {
    return static_cast<MainTabView*>(widget());
}

} // namespace tessaly
