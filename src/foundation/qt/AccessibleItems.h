#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>

namespace tessaly {

/// What a widget that paints its items itself (tabs, markers, thumbnails) tells assistive tools of them.
/// Items are numbered from 0; an operation is only called with the number of an item that exists.
class AccessibleItems {
  public:
    virtual ~AccessibleItems() = default;

    /// Of the widget as a whole, and of one item.
    virtual QAccessible::Role accessibleListRole() const = 0;
    virtual QAccessible::Role accessibleItemRole() const = 0;

    virtual int accessibleItemCount() const = 0;
    virtual QString accessibleItemName(int item) const = 0;
    virtual QString accessibleItemDescription(int /*item*/) const { return {}; }

    /// In the widget's coordinates.
    virtual QRect accessibleItemRect(int item) const = 0;

    /// The item that is selected and has the keyboard when the widget has it; -1 for none.
    virtual int currentAccessibleItem() const = 0;
    virtual void pressAccessibleItem(int item) = 0;

    /// Whether items have a context menu; if so, opens that of one.
    virtual bool accessibleItemsHaveMenu() const { return false; }
    virtual void openAccessibleItemMenu(int /*item*/) {}

    /// Whether assistive tools may delete items; if so, deletes one.
    virtual bool accessibleItemsCanBeDeleted() const { return false; }
    virtual void deleteAccessibleItem(int /*item*/) {}
};

/// Makes every widget that is an `AccessibleItems` known to assistive tools as a list of its items.
void installAccessibleItems();

/// Tells assistive tools that another item of `widget` is current.
void announceCurrentAccessibleItem(QWidget& widget, const AccessibleItems& items);

} // namespace tessaly
