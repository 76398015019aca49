#pragma once

#include <QAccessibleWidget>
#include <map>

namespace tessaly {

class AccessibleItems;

/// A widget that paints its items itself, as assistive tools see it: the items are its children.
class AccessibleItemList : public QAccessibleWidget {
  public:
    AccessibleItemList(QWidget& widget, AccessibleItems& items);
    AccessibleItemList(const AccessibleItemList&) = delete;
    AccessibleItemList& operator=(const AccessibleItemList&) = delete;
    ~AccessibleItemList() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    AccessibleItems& items_;
    mutable std::map<int, QAccessible::Id> children_; ///< made when first asked for
};

} // namespace tessaly
