#include "foundation/qt/AccessibleItems.h"

#include "foundation/qt/AccessibleItem.h"

#include <QAccessibleWidget>
#include <map>

namespace tessaly {
namespace {

// A widget that paints its items itself, as assistive tools see it: the items are its children.
class AccessibleItemList : public QAccessibleWidget {
  public:
    AccessibleItemList(QWidget& widget, AccessibleItems& items)
        : QAccessibleWidget{&widget, items.accessibleListRole()}, items_{items} {}
    AccessibleItemList(const AccessibleItemList&) = delete;
    AccessibleItemList& operator=(const AccessibleItemList&) = delete;
    ~AccessibleItemList() override;

    int childCount() const override { return items_.accessibleItemCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override {
        return widget()->hasFocus() ? child(items_.currentAccessibleItem()) : nullptr;
    }

  private:
    AccessibleItems& items_;
    mutable std::map<int, QAccessible::Id> children_; // made when first asked for
};

AccessibleItemList::~AccessibleItemList() {
    for (const auto& [index, id] : children_) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* AccessibleItemList::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto known = children_.find(index);
    if (known != children_.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    auto* const item = new AccessibleItem{*widget(), items_, index}; // the toolkit's registry will own it
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

} // namespace tessaly
