#include "foundation/qt/AccessibleItem.h"

#include "foundation/qt/AccessibleItems.h"

namespace tessaly {
namespace {

constexpr QLatin1StringView deleteAction{"delete"}; // the toolkit has no name for it

} // namespace

AccessibleItem::AccessibleItem(QWidget& widget, AccessibleItems& items, int index)
    : widget_{&widget}, items_{items}, index_{index} {}

bool AccessibleItem::isValid() const {
    return widget_ != nullptr && index_ < items_.accessibleItemCount();
}

QAccessibleInterface* AccessibleItem::parent() const {
    return QAccessible::queryAccessibleInterface(widget_);
}

QString AccessibleItem::text(QAccessible::Text kind) const {
    if (!isValid()) {
        return {};
    }
    switch (kind) {
    case QAccessible::Name:
        return items_.accessibleItemName(index_);
    case QAccessible::Description:
        return items_.accessibleItemDescription(index_);
    default:
        return {};
    }
}

QRect AccessibleItem::rect() const {
    if (!isValid()) {
        return {};
    }
    const QRect place = items_.accessibleItemRect(index_);
    return {widget_->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role AccessibleItem::role() const {
    return isValid() ? items_.accessibleItemRole() : QAccessible::NoRole;
}

QAccessible::State AccessibleItem::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.focusable = true;
    state.selected = items_.currentAccessibleItem() == index_;
    state.focused = state.selected && widget_->hasFocus();
    state.invisible = !widget_->isVisible();
    state.disabled = !widget_->isEnabled();
    return state;
}

void* AccessibleItem::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleItem::actionNames() const {
    QStringList names{pressAction()};
    if (items_.accessibleItemsHaveMenu()) {
        names << showMenuAction();
    }
    if (items_.accessibleItemsCanBeDeleted()) {
        names << deleteAction;
    }
    return names;
}

void AccessibleItem::doAction(const QString& name) {
    if (!isValid() || !widget_->isEnabled()) {
        return;
    }
    if (name == pressAction()) {
        items_.pressAccessibleItem(index_);
    } else if (name == showMenuAction()) {
        items_.openAccessibleItemMenu(index_);
    } else if (name == deleteAction) {
        items_.deleteAccessibleItem(index_);
    }
}

} // namespace tessaly
