#pragma once

#include <QAccessibleWidget>
#include <map>

namespace tessaly {

class MainTabView;

/// The tab bar as assistive tools see it: a list of page tabs.
class MainTabListAccessible : public QAccessibleWidget {
  public:
    explicit MainTabListAccessible(MainTabView* bar);
    MainTabListAccessible(const MainTabListAccessible&) = delete;
    MainTabListAccessible& operator=(const MainTabListAccessible&) = delete;
    MainTabListAccessible(MainTabListAccessible&&) = delete;
    MainTabListAccessible& operator=(MainTabListAccessible&&) = delete;
    ~MainTabListAccessible() override;

    /// Makes every tab bar known to assistive tools by this class; once is enough.
    static void install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    MainTabView* bar() const;

    mutable std::map<int, QAccessible::Id> tabs_; // made when first asked for
};

} // namespace tessaly
