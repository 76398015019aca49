#include "foundation/qt/AccessibleItemList.h"

#include "foundation/qt/AccessibleItem.h"
#include "foundation/qt/AccessibleItems.h"

namespace tessaly {
namespace {

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (!className.startsWith(QLatin1String{"tessaly::"})) {
        return nullptr; // the browser engine's objects are asked for too, and do not know their own types
    }
    auto* const items = dynamic_cast<AccessibleItems*>(object);
    return items != nullptr ? new AccessibleItemList{*static_cast<QWidget*>(object), *items} : nullptr;
}

} // namespace

void installAccessibleItems() {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(makeInterface), true);
}

void announceCurrentAccessibleItem(QWidget& widget, const AccessibleItems& items) {
    const int current = items.currentAccessibleItem();
    if (!QAccessible::isActive() || current < 0) {
        return;
    }
    for (const QAccessible::Event change : {QAccessible::Selection, QAccessible::Focus}) {
        if (change == QAccessible::Selection || widget.hasFocus()) {
            QAccessibleEvent event{&widget, change};
            event.setChild(current);
            QAccessible::updateAccessibility(&event);
        }
    }
}

AccessibleItemList::AccessibleItemList(QWidget& widget, AccessibleItems& items)
    : QAccessibleWidget{&widget, items.accessibleListRole()}, items_{items} {}

AccessibleItemList::~AccessibleItemList() {
    for (const auto& [index, id] : children_) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

int AccessibleItemList::childCount() const {
    return items_.accessibleItemCount();
}

QAccessibleInterface* AccessibleItemList::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto known = children_.find(index);
    if (known != children_.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    auto* const item =
        new AccessibleItem{*widget(), items_, index}; // the toolkit's registry owns it from here on
    children_[index] = QAccessible::registerAccessibleInterface(item);
    return item;
}

int AccessibleItemList::indexOfChild(const QAccessibleInterface* child) const {
    for (const auto& [index, id] : children_) {
        if (QAccessible::accessibleInterface(id) == child) {
            return index;
        }
    }
    return -1;
}

QAccessibleInterface* AccessibleItemList::childAt(int x, int y) const {
    const QPoint point = widget()->mapFromGlobal(QPoint{x, y});
    for (int item = 0; item < childCount(); ++item) {
        if (items_.accessibleItemRect(item).contains(point)) {
            return child(item);
        }
    }
    return nullptr;
}

QAccessibleInterface* AccessibleItemList::focusChild() const {
    return widget()->hasFocus() ? child(items_.currentAccessibleItem()) : nullptr;
}

} // namespace tessaly
