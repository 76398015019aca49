#include "chrome/qt/MainTabAccessible.h"

#include "chrome/qt/MainTabView.h"

namespace tessaly {

MainTabAccessible::MainTabAccessible(MainTabView* bar, int index) : bar_{bar}, index_{index} {}

bool MainTabAccessible::isValid() const {
    return bar_ != nullptr && index_ < bar_->tabs().size();
}

QAccessibleInterface* MainTabAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(bar_);
}

QString MainTabAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name && isValid() ? bar_->tabs()[index_] : QString{};
}

QRect MainTabAccessible::rect() const {
    if (!isValid()) {
        return {};
    }
    const QRect tab = bar_->tabRectangle(index_).toAlignedRect();
    return {bar_->mapToGlobal(tab.topLeft()), tab.size()};
}

QAccessible::State MainTabAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.focusable = true;
    state.selected = bar_->selectIndex() == index_;
    state.focused = state.selected && bar_->hasFocus();
    state.invisible = !bar_->isVisible();
    state.disabled = !bar_->isEnabled();
    return state;
}

void* MainTabAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList MainTabAccessible::actionNames() const {
    return {pressAction()};
}

void MainTabAccessible::doAction(const QString& name) {
    if (isValid() && bar_->isEnabled() && name == pressAction()) {
        bar_->pressTab(index_);
    }
}

} // namespace tessaly
