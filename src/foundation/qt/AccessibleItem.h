#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <QPointer>
#include <QWidget>

namespace tessaly {

class AccessibleItems;

/// One item of a widget that paints its items itself: has a name and a place, can be pressed, may have a
/// context menu and may be deleted.
class AccessibleItem : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    /// `items` is the widget itself.
    AccessibleItem(QWidget& widget, AccessibleItems& items, int index);

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

  private:
    QPointer<QWidget> widget_;
    AccessibleItems& items_; ///< as alive as the widget
    int index_;
};

} // namespace tessaly
